#include "tvx/live_preview.h"

#include "gdm/items/attr_roles.h"
#include "tvx/chosen_table.h"

#include <QTableWidget>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

QString lineOf(const QTableWidgetItem *item)
{
    return item ? item->data(DmlAttrFilterTextRole).toString() : QString();
}

/// Stores the editor in a clone of the item. Only the delegate knows what an editor means, and it finds the item by its
/// table. That must not be in the dialog, where a host could find it.
QString lineIfStored(const ChosenTable &chosen, const QTableWidgetItem &edited)
{
    QTableWidget table(1, AttributeTable::ColumnCount);
    table.setItem(0, AttributeTable::ValueColumn, edited.clone());
    chosen.itemDelegate()->setModelData(chosen.openEditor(), table.model(),
                                        table.model()->index(0, AttributeTable::ValueColumn));
    return lineOf(table.item(0, AttributeTable::ValueColumn));
}

} // namespace

QString currentResultLine(const ChosenTable &chosen)
{
    const QTableWidgetItem *edited = chosen.editedItem();
    if (!edited)
        return lineOf(chosen.rowItem(chosen.currentRow()));
    if (chosen.isEntryRefused())
        return QString();
    // A value has no line.
    const bool isShown = !lineOf(edited).isEmpty() && chosen.doesEnterStore();
    return isShown ? lineIfStored(chosen, *edited) : lineOf(edited);
}

} // namespace tvx
} // namespace Zudunmaf
