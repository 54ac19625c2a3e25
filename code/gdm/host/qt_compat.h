#ifndef GDM_HOST_QT_COMPAT_H
#define GDM_HOST_QT_COMPAT_H

#include <QString>
#include <QVariant>

/// @file
/// Differences between the versions of Qt. Nothing else in the library depends on the version, but for the check of the
/// major version in gdm_qt.h. Internal: not installed.

/// 1 if Qt has JSON. If not, the functions of gdm/conditions/attr_documents.h are not defined.
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#    define GDM_HAS_JSON 0
#else
#    define GDM_HAS_JSON 1
#endif

namespace Zudunmaf
{
namespace compat
{

#if QT_VERSION < QT_VERSION_CHECK(5, 14, 0)
const QString::SplitBehavior SkipEmptyParts = QString::SkipEmptyParts;
#else
const Qt::SplitBehavior SkipEmptyParts = Qt::SkipEmptyParts;
#endif

/// The metatype of a signed char. Qt 4.8 has none: -1, which is the metatype of no variant.
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
const int SignedCharType = -1;
#else
const int SignedCharType = QMetaType::SChar;
#endif

/// Returns true if the variant is null or holds a null QString; QVariant::isNull() says false for the latter in Qt 6.
/// For null pointers, see recordIn().
inline bool isNullVariant(const QVariant &variant)
{
    return variant.isNull() || (variant.userType() == QMetaType::QString && variant.toString().isNull());
}

} // namespace compat
} // namespace Zudunmaf

#endif
