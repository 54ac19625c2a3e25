#ifndef GDM_ITEMS_ATTR_ACCESS_H
#define GDM_ITEMS_ATTR_ACCESS_H

#include "gdm/host/qt_compat.h"
#include "gdm/items/attr_records.h"

#include <QString>
#include <QVariant>

/// Records in variants, and the initial condition or value of a definition. Internal: not installed.
namespace Zudunmaf
{

/// Returns a variant of metatype VoidStar with the pointer. It does not own the record.
inline QVariant variantOfRecord(const void *record)
{
    return QVariant::fromValue<void *>(const_cast<void *>(record));
}

/// Returns the record that the variant points to; null if the variant is null or holds a null pointer.
template <class Record>
Record *recordIn(const QVariant &variant)
{
    // Nearly every variant is of this metatype. Reading it in place spares isNull() and the cast.
    if (variant.userType() == QMetaType::VoidStar)
        return static_cast<Record *>(*static_cast<void *const *>(variant.constData()));
    return compat::isNullVariant(variant) ? nullptr : static_cast<Record *>(qvariant_cast<void *>(variant));
}

/// Returns the definition that an item's dmlAttribute() points to, or null.
inline const DmlAttrDef *definitionIn(const QVariant &dmlAttribute)
{
    return recordIn<const DmlAttrDef>(dmlAttribute);
}

/// Returns the data of both kinds of item for DmlAttrNameRole, DmlAttrPromptRole, DmlAttrTypeRole and DmlAttrDefRole;
/// an invalid variant for other roles. The definition must not be null.
QVariant definitionData(const QVariant &dmlAttribute, int role);

/// Returns the label of an item.
QString labelText(const DmlAttrDef &definition, bool byPrompt);

/// Sets the record to a condition that is not set and whose bounds are the limits of the definition.
void prime(DmlAttrValue &condition, const DmlAttrDef &definition);

/// Returns an entry of the definition's option list; null if the index is out of range.
const char *optionEntry(const DmlAttrDef &definition, int index);

/// Returns the default value of the definition, by type; an invalid variant for an unknown type. Without a default, a
/// text is a null QString. An option is then an empty QString that is not null: loadValue() ignores a null value, and
/// the combo box would stay empty.
QVariant defaultValue(const DmlAttrDef &definition);

} // namespace Zudunmaf

#endif
