#ifndef GDM_HOST_QT_COMPAT_H
#define GDM_HOST_QT_COMPAT_H

#include <QString>
#include <QVariant>

/// @file
/// What the versions of Qt answer differently, each given one answer. Nothing else in the library looks at
/// the version. Internal: not installed.

/// Whether Qt has JSON. Without it, the functions of gdm/conditions/attr_documents.h are not defined.
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

/// The metatype of a signed char; -1, which no variant has, with Qt 4.8.
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
const int SignedCharType = -1;
#else
const int SignedCharType = QMetaType::SChar;
#endif

/// Whether a variant counts as null: also where it holds a null QString, which Qt 6 no longer calls null. A
/// held null pointer is a separate question, answered by recordIn().
inline bool isNullVariant(const QVariant &variant)
{
    return variant.isNull() || (variant.userType() == QMetaType::QString && variant.toString().isNull());
}

} // namespace compat
} // namespace Zudunmaf

#endif
