#include "gdm/dialogs/attributes_filter_dialog.h"

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
#include "gdm/items/attr_filter_lwi.h"
#include "gdm/items/attr_roles.h"

namespace Zudunmaf
{

namespace
{

QTableWidgetItem *newRow(const DmlAttrDef *definition, bool byPrompt, int displayUnits)
{
    DmlAttrLWI *item = new AttrFilterLWI;
    item->setDisplayPrompt(byPrompt);
    item->setDisplayUnits(displayUnits);
    item->setDmlAttribute(variantOfRecord(definition));
    return item;
}

TvxDataItem *newEntity(const char *key, EntityMask mask)
{
    return new TvxDataItem(messageText(key), QVariant(int(mask)), 0);
}

} // namespace

AttributesFilterDialog::AttributesFilterDialog(int did, QWidget *parent, Qt::WindowFlags flags)
    : TvxAttributesSelectionDialog(did, parent, flags)
    , contextMenu(nullptr)
{
    AttributesFilterDialog::buildInitialLists();
    setItemDelegate(new AttrItemDelegate(this));
    connectSignal2Slots();
    AttributesFilterDialog::setupContextMenu();
    setHeaderTitle(0, messageText(keys::FilterHeaderName));
    setHeaderTitle(1, messageText(keys::FilterHeaderCondition));
}

AttributesFilterDialog::~AttributesFilterDialog() = default;

void AttributesFilterDialog::buildInitialLists()
{
    // The order matters: groups and attributes depend on what is selected before them.
    fillEntityList();
    fillGroupsList();
    fillAttributeList();
}

void AttributesFilterDialog::fillEntityList()
{
    QList<TvxDataItem *> entities;
    entities << newEntity(keys::FilterEntityComponent, EntityComponent);
    entities << newEntity(keys::FilterEntityFeature, EntityFeature);
    entities << newEntity(keys::FilterEntityLayer, EntityLayer);
    entities << newEntity(keys::FilterEntityJob, EntityJob);
    entities << newEntity(keys::FilterEntityStep, EntityStep);
    entities << newEntity(keys::FilterEntityNet, EntityNet);
    entities << newEntity(keys::FilterEntitySymbol, EntitySymbol);
    entities << newEntity(keys::FilterEntityWheel, EntityWheel);
    // The one row whose mask does not fit an int; QVariant gives -1 for it as an int.
    entities << new TvxDataItem(messageText(keys::FilterEntityAll), QVariant(uint(EntityAll)), 0);
    TvxAttributesSelectionDialog::fillEntityList(entities);
}

void AttributesFilterDialog::fillGroupsList()
{
    const int did = getEntityDID();
    if (did == -1)
        return;
    GroupNames groups(messageText(keys::FilterAllGroupsRow));
    if (walkDictionary([did] { return did; }, EntityAll, GDM_HERE,
                       [&groups](const DmlAttrDef *definition) { groups.add(*definition); }))
        TvxAttributesSelectionDialog::fillGroupsList(groups.list());
}

void AttributesFilterDialog::fillAttributeList()
{
    if (getEntityDID() < 0)
        return;
    const FillPositions positions = {
        GDM_HERE, // the labels
        GDM_HERE, // obsolete attributes
        GDM_HERE, // the walk
    };
    OwnedItems rows;
    if (collectRows(*this, keys::FilterAllGroupsAtFill, positions, newRow, &rows))
        TvxAttributesSelectionDialog::fillAttributeList(rows.list());
}

void AttributesFilterDialog::filterAttributeList()
{
    const QString group = getSelectedGroupName();
    const int entityMask = getSelectedEntityMask();
    const QList<QTableWidgetItem *> rows = getTopListItems(false);
    bool byPrompt = false;
    if (!readFlag(keys::DisplayByPrompt, &byPrompt, GDM_HERE))
        return;

    const QString filterText = getUserFilterText();
    const QString allGroups = messageText(keys::FilterAllGroupsAtFilter);
    const VisibilityRule rule(entityMask, group, allGroups, filterText, byPrompt);
    applyVisibilityRule<AttrFilterLWI>(*this, rows, rule, [](const DmlAttrDef &) { return false; });
    setFirstVisibleItemAsCurrent();
}

void AttributesFilterDialog::setDisplayUnits(int units)
{
    TvxAttributesSelectionDialog::setDisplayUnits(units);
    fillAttributeList();
}

void AttributesFilterDialog::setupContextMenu()
{
    contextMenu = newContextMenu(this, keys::FilterSetCondition, keys::FilterClearCondition);
    setCustomContextMenu(contextMenu);
    // clang-format off
    connect(contextMenu, SIGNAL(triggered(QAction*)), this, SLOT(contextMenu_triggered(QAction*)));
    // clang-format on
}

void AttributesFilterDialog::contextMenu_triggered(QAction *action)
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
            const DmlAttrLWI *attribute = static_cast<const DmlAttrLWI *>(item);
            const DmlAttrDef *definition = definitionIn(attribute->dmlAttribute());
            DmlAttrValue *condition = recordIn<DmlAttrValue>(attribute->attrValue());
            if (definition && condition)
                prime(*condition, *definition);
        }
        break;
    }
    default:
        break;
    }
}

QStringList AttributesFilterDialog::getFiltersAsStringList() const
{
    QStringList lines;
    const QList<QTableWidgetItem *> chosen = getChosenList();
    for (const QTableWidgetItem *item : chosen) {
        if (const AttrFilterLWI *condition = dynamic_cast<const AttrFilterLWI *>(item))
            lines.append(condition->toString());
    }
    return lines;
}

QList<AttrCondition> AttributesFilterDialog::conditions() const
{
    return chosenEntries<AttrFilterLWI>(*this, conditionOf);
}

QList<RestoreResult> AttributesFilterDialog::restoreConditions(const QList<AttrCondition> &conditions,
                                                               const AddToChosen &add)
{
    return Zudunmaf::restoreConditions(conditions, restoreTarget(*this, add));
}

DmlAttrLWI *AttributesFilterDialog::createNewItem()
{
    return new AttrFilterLWI;
}

} // namespace Zudunmaf
