#ifndef GDM_CONDITIONS_ITEM_NAMES_H
#define GDM_CONDITIONS_ITEM_NAMES_H

#include "gdm/items/attr_roles.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QTableWidgetItem>

namespace Zudunmaf
{

/// Returns the internal names of the items that are an `Item`, whatever they are labelled with. Internal: not
/// installed.
template <class Item>
QSet<QString> namesOf(const QList<QTableWidgetItem *> &items)
{
    QSet<QString> names;
    for (const QTableWidgetItem *item : items) {
        if (dynamic_cast<const Item *>(item))
            names.insert(item->data(DmlAttrNameRole).toString());
    }
    return names;
}

} // namespace Zudunmaf

#endif
