#ifndef GDM_ITEMS_ATTR_ACCESS_H
#define GDM_ITEMS_ATTR_ACCESS_H

#include "gdm/host/qt_compat.h"
#include "gdm/items/attr_records.h"

#include <QString>
#include <QVariant>

/// How records travel in variants, and the rules that lead from a definition to a first condition or value.
/// Each rule stands here once for the items, the delegate and the dialogs. Internal: not installed.
namespace Zudunmaf
{

/// A variant of metatype VoidStar that holds the pointer and owns nothing.
inline QVariant variantOfRecord(const void *record)
{
    return QVariant::fromValue<void *>(const_cast<void *>(record));
}

/// The record that such a variant points to; null where the variant is null or holds a null pointer.
template <class Record>
Record *recordIn(const QVariant &variant)
{
    // Read in place: the held pointer already tells null. Nearly every variant that comes here is one of
    // these.
    if (variant.userType() == QMetaType::VoidStar)
        return static_cast<Record *>(*static_cast<void *const *>(variant.constData()));
    return compat::isNullVariant(variant) ? nullptr : static_cast<Record *>(qvariant_cast<void *>(variant));
}

/// The definition that an item's dmlAttribute() points to, or null.
inline const DmlAttrDef *definitionIn(const QVariant &dmlAttribute)
{
    return recordIn<const DmlAttrDef>(dmlAttribute);
}

/// What both kinds of item answer for DmlAttrNameRole, DmlAttrPromptRole, DmlAttrTypeRole and DmlAttrDefRole;
/// invalid for any other role. The definition must not be null.
QVariant definitionData(const QVariant &dmlAttribute, int role);

/// The text that an item is labelled with.
QString labelText(const DmlAttrDef &definition, bool byPrompt);

/// Makes a condition that is not set, whose bounds span the definition's whole range.
void prime(DmlAttrValue &condition, const DmlAttrDef &definition);

/// Entry number `index` of the definition's option list, or null where the index names no entry.
const char *optionEntry(const DmlAttrDef &definition, int index);

/// The value that the definition's default stands for, by type; an invalid variant for an unknown type. A
/// text without a default gives a null QString. An option without one gives an empty QString that is not
/// null, so that its editor fills at once.
QVariant defaultValue(const DmlAttrDef &definition);

} // namespace Zudunmaf

#endif
