#include "gdm/dialogs/feature_attributes_dialog.h"

#include "gdm/conditions/chosen_items.h"
#include "gdm/dialogs/chosen_entries.h"
#include "gdm/dialogs/context_menu.h"
#include "gdm/dialogs/group_names.h"
#include "gdm/dialogs/offered_rows.h"
#include "gdm/dialogs/visibility_rule.h"
#include "gdm/editing/attr_item_delegate.h"
#include "gdm/host/config_keys.h"
#include "gdm/host/dictionary_walk.h"
#include "gdm/host/host_text.h"
#include "gdm/host/message_keys.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_roles.h"
#include "gdm/items/feature_attr_lwi.h"

#include <QSet>

namespace Zudunmaf
{

namespace
{

QTableWidgetItem *newRow(const DmlAttrDef *definition, bool byPrompt, int displayUnits)
{
    DmlAttrLWI *item = new FeatureAttrLWI;
    item->setDisplayPrompt(byPrompt);
    item->setDmlAttribute(variantOfRecord(definition));
    item->setDisplayUnits(displayUnits);
    return item;
}

/// The internal names of the chosen attributes, whatever the rows are labelled with.
QSet<QString> namesOf(const QList<QTableWidgetItem *> &chosen)
{
    QSet<QString> names;
    for (const QTableWidgetItem *item : chosen) {
        if (dynamic_cast<const FeatureAttrLWI *>(item))
            names.insert(item->data(DmlAttrNameRole).toString());
    }
    return names;
}

} // namespace

FeatureAttributesDialog::FeatureAttributesDialog(int did, QWidget *parent, Qt::WindowFlags flags)
    : TvxAttributesSelectionDialog(did, parent, flags)
    , contextMenu(nullptr)
{
    FeatureAttributesDialog::buildInitialLists();
    setItemDelegate(new AttrItemDelegate(this));
    connectSignal2Slots();
    FeatureAttributesDialog::setupContextMenu();
    setButtonPixmap(Buttons_Add, QLatin1String("Add.ico"));
    setButtonPixmap(Buttons_Remove, QLatin1String("Delete.ico"));
    setHeaderTitle(0, messageText(keys::FeatureHeaderName));
    setHeaderTitle(1, messageText(keys::FeatureHeaderValue));
    setWindowTitle(QLatin1String("Assign Attributes"));
}

FeatureAttributesDialog::~FeatureAttributesDialog() = default;

void FeatureAttributesDialog::buildInitialLists()
{
    // The order matters: groups and attributes depend on what is selected before them.
    fillEntityList();
    fillGroupsList();
    fillAttributeList();
}

void FeatureAttributesDialog::fillEntityList()
{
    QList<TvxDataItem *> entities;
    entities << new TvxDataItem(messageText(keys::FeatureEntityFeature), QVariant(int(EntityFeature)), 0);
    TvxAttributesSelectionDialog::fillEntityList(entities);
}

void FeatureAttributesDialog::fillGroupsList()
{
    const int did = getEntityDID();
    if (did == -1)
        return;
    GroupNames groups(messageText(keys::FeatureAllGroupsRow));
    if (walkDictionary([did] { return did; }, EntityFeature, GDM_HERE,
                       [&groups](const DmlAttrDef *definition) { groups.add(*definition); }))
        TvxAttributesSelectionDialog::fillGroupsList(groups.list());
}

void FeatureAttributesDialog::fillAttributeList()
{
    if (getEntityDID() < 0)
        return;
    const FillPositions positions = {
        GDM_HERE, // the labels
        GDM_HERE, // obsolete attributes
        GDM_HERE, // the walk
    };
    OwnedItems rows;
    if (collectRows(*this, keys::FeatureAllGroupsAtFill, positions, newRow, &rows))
        TvxAttributesSelectionDialog::fillAttributeList(rows.list());
}

void FeatureAttributesDialog::filterAttributeList()
{
    const QString group = getSelectedGroupName();
    const int entityMask = getSelectedEntityMask();
    const QSet<QString> chosen = namesOf(getChosenList());
    const QList<QTableWidgetItem *> rows = getTopListItems(false);
    bool byPrompt = false;
    if (!readFlag(keys::DisplayByPrompt, &byPrompt, GDM_HERE))
        return;

    const QString filterText = getUserFilterText();
    const QString allGroups = messageText(keys::FeatureAllGroupsAtFilter);
    const VisibilityRule rule(entityMask, group, allGroups, filterText, byPrompt);
    applyVisibilityRule<FeatureAttrLWI>(*this, rows, rule, [&chosen](const DmlAttrDef &definition) {
        return !chosen.isEmpty() && chosen.contains(fieldString(definition.name));
    });
    setFirstVisibleItemAsCurrent();
}

void FeatureAttributesDialog::setDisplayUnits(int units)
{
    TvxAttributesSelectionDialog::setDisplayUnits(units);
    fillAttributeList();
}

void FeatureAttributesDialog::addButtonClickedCB(QTableWidgetItem *item)
{
    if (!dynamic_cast<FeatureAttrLWI *>(item))
        return;
    setTopViewRowsVisiblity(item->row(), false);
    setFirstVisibleItemAsCurrent();
}

void FeatureAttributesDialog::removeButtonClickedCB(QTableWidgetItem *item)
{
    if (!dynamic_cast<FeatureAttrLWI *>(item))
        return;
    QTableWidgetItem *offered = findItemByAttrName(item->data(DmlAttrNameRole).toString());
    if (!dynamic_cast<FeatureAttrLWI *>(offered))
        return;
    setTopViewRowsVisiblity(offered->row(), true);
    setTopViewCurrentItem(offered);
}

void FeatureAttributesDialog::setupContextMenu()
{
    contextMenu = newContextMenu(this, keys::FeatureEditValue, keys::FeatureSetDefault);
    setCustomContextMenu(contextMenu);
    // clang-format off
    connect(contextMenu, SIGNAL(triggered(QAction*)), this, SLOT(contextMenu_triggered(QAction*)));
    // clang-format on
}

void FeatureAttributesDialog::contextMenu_triggered(QAction *action)
{
    if (!action)
        return;
    switch (action->data().toInt()) {
    case MenuEdit:
        editCurrentItem();
        break;
    case MenuReset: {
        const QList<QTableWidgetItem *> items = getItemsForContextMenuCallback();
        for (QTableWidgetItem *item : items) {
            FeatureAttrLWI *attribute = dynamic_cast<FeatureAttrLWI *>(item);
            const DmlAttrDef *definition = attribute ? definitionIn(attribute->dmlAttribute()) : nullptr;
            if (!definition)
                continue;
            const QVariant value = defaultValue(*definition);
            if (value.isValid())
                attribute->setAttrValue(value);
        }
        break;
    }
    default:
        break;
    }
}

QList<AttrAssignment> FeatureAttributesDialog::assignments() const
{
    return chosenEntries<FeatureAttrLWI>(*this, assignmentOf);
}

QList<RestoreResult> FeatureAttributesDialog::restoreAssignments(const QList<AttrAssignment> &assignments,
                                                                 const AddToChosen &add)
{
    return Zudunmaf::restoreAssignments(assignments, restoreTarget(*this, add));
}

DmlAttrLWI *FeatureAttributesDialog::createNewItem()
{
    return new FeatureAttrLWI;
}

} // namespace Zudunmaf
