#ifndef GDM_DIALOGS_VISIBILITY_RULE_H
#define GDM_DIALOGS_VISIBILITY_RULE_H

#include "gdm/dialogs/filter_pattern.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_roles.h"

#include <QTableWidgetItem>

#include <typeinfo>

namespace Zudunmaf
{

/// Decides which rows of the available table are visible; constructed once for each pass over the rows. FillRule has
/// an example of how it differs from the rule that decides which attributes get a row. Internal: not installed.
class VisibilityRule
{
public:
    /// `group` is the selected group, and `allGroups` the text of the row for all groups.
    VisibilityRule(int entityMask, const QString &group, const QString &allGroups, const QString &filterText,
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

/// Returns the item as an `Item`, or null. Comparing the type first spares nearly every row the dynamic_cast.
template <class Item>
const Item *itemOfRow(const QTableWidgetItem *row)
{
    if (row && typeid(*row) == typeid(Item))
        return static_cast<const Item *>(row);
    return dynamic_cast<const Item *>(row);
}

/// Shows or hides each row. Ignores rows whose item is no `Item` or has no definition. Hides a row for whose definition
/// `isHidden` returns true, whatever the rule says.
template <class Item, class IsHidden>
void applyVisibilityRule(TvxAttributesSelectionDialog &dialog, const QList<QTableWidgetItem *> &rows,
                         const VisibilityRule &rule, IsHidden isHidden)
{
    for (QTableWidgetItem *row : rows) {
        const Item *item = itemOfRow<Item>(row);
        const DmlAttrDef *definition = item ? definitionIn(item->data(DmlAttrDefRole)) : nullptr;
        if (definition)
            dialog.setTopViewRowsVisiblity(item->row(), rule.shows(*definition) && !isHidden(*definition));
    }
}

} // namespace Zudunmaf

#endif
