#ifndef TVX_ATTRIBUTE_ITEM_H
#define TVX_ATTRIBUTE_ITEM_H

#include "gdm/items/attr_records.h"
#include "gdm/items/attr_roles.h"

#include <QLocale>
#include <QPointF>
#include <QStringList>
#include <QTableWidgetItem>

namespace Zudunmaf
{
namespace tvx
{

/// @file
/// What the base dialog reads of an item through its roles: it knows no class of items.

/// Returns the internal name of the item's attribute; empty for an item without attribute.
inline QString nameOf(const QTableWidgetItem &item)
{
    return item.data(DmlAttrNameRole).toString();
}

/// Returns the definition of the item's attribute; null for an item without one.
inline const DmlAttrDef *definitionOf(const QTableWidgetItem &item)
{
    return static_cast<const DmlAttrDef *>(item.data(DmlAttrDefRole).value<void *>());
}

/// Returns true if the item holds a condition, false if it holds a value. Only a condition has a result line.
inline bool isCondition(const QTableWidgetItem &item)
{
    return item.data(DmlAttrFilterTextRole).isValid();
}

/// Returns a text that is equal for two items exactly if they have the same attribute, and the same value or condition.
inline QString contentOf(const QTableWidgetItem &item)
{
    const QVariant value = item.data(DmlAttrValueRole);
    // The bounds of a range: a range has no text of its own, and its line is rounded.
    const QPointF bounds = value.toPointF();
    const auto exact = [](double number) {
        return QString::number(number, 'g', QLocale::FloatingPointShortest);
    };
    const QStringList parts = {nameOf(item),      QLatin1String(value.typeName()),
                               value.toString(),  item.data(DmlAttrFilterTextRole).toString(),
                               exact(bounds.x()), exact(bounds.y())};
    return parts.join(QLatin1Char('\n'));
}

} // namespace tvx
} // namespace Zudunmaf

#endif
