#ifndef GDM_DIALOGS_ROW_FILTER_H
#define GDM_DIALOGS_ROW_FILTER_H

#include "gdm/dialogs/filter_pattern.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_roles.h"

#include <QTableWidgetItem>

#include <typeinfo>

namespace Zudunmaf
{

/// The rule that decides which rows of the top view are visible, made once for each pass over the rows. It
/// differs on purpose from AttributeOffer, which decides which attributes get a row. Internal: not installed.
class RowFilter
{
public:
    /// `group` is the selected group's text; `allGroups` is the text that stands for all of them.
    RowFilter(int entityMask, const QString &group, const QString &allGroups, const QString &filterText,
              bool byPrompt);

    bool shows(const DmlAttrDef &definition) const;

private:
    bool groupShows(const DmlAttrDef &definition) const;

    unsigned int m_entityMask;
    QString m_group;
    bool m_allGroups;
    FilterPattern m_pattern;
    bool m_byPrompt;
};

/// The row's item as an `Item`, or null. Nearly every row holds that very class, which is told without a
/// search.
template <class Item>
const Item *itemOfRow(const QTableWidgetItem *row)
{
    if (row && typeid(*row) == typeid(Item))
        return static_cast<const Item *>(row);
    return dynamic_cast<const Item *>(row);
}

/// Shows or hides each row. Rows whose item is no `Item`, or has no definition, stay as they are. `isTaken`
/// tells of a definition that its row is to be hidden whatever the filter says.
template <class Item, class IsTaken>
void applyRowFilter(TvxAttributesSelectionDialog &dialog, const QList<QTableWidgetItem *> &rows,
                    const RowFilter &filter, IsTaken isTaken)
{
    for (QTableWidgetItem *row : rows) {
        const Item *item = itemOfRow<Item>(row);
        const DmlAttrDef *definition = item ? definitionIn(item->data(DmlAttrDefRole)) : nullptr;
        if (definition)
            dialog.setTopViewRowsVisiblity(item->row(), filter.shows(*definition) && !isTaken(*definition));
    }
}

} // namespace Zudunmaf

#endif
