#ifndef GDM_DIALOGS_CHOSEN_ENTRIES_H
#define GDM_DIALOGS_CHOSEN_ENTRIES_H

#include "gdm/conditions/chosen_items.h"
#include "gdm/conditions/restore_target.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <QTableWidgetItem>

// Conditions or values of the chosen table, for both dialogs. Internal: not installed.
namespace Zudunmaf
{

/// Returns an entry for each chosen item that is an `Item`, in the order of the chosen table.
template <class Item, class Entry>
QList<Entry> chosenEntries(const TvxAttributesSelectionDialog &dialog, Entry (*entryOf)(const Item &))
{
    QList<Entry> entries;
    const QList<QTableWidgetItem *> chosen = dialog.getChosenList();
    for (const QTableWidgetItem *item : chosen) {
        if (const Item *attribute = dynamic_cast<const Item *>(item))
            entries.append(entryOf(*attribute));
    }
    return entries;
}

inline RestoreTarget restoreTarget(const TvxAttributesSelectionDialog &dialog, const AddToChosen &add)
{
    RestoreTarget target;
    target.did = dialog.getEntityDID();
    target.available = dialog.getTopListItems(false);
    target.chosen = dialog.getChosenList();
    target.add = add;
    return target;
}

} // namespace Zudunmaf

#endif
