#include "gdm/dialogs/attributes_filter_dialog.h"

#include "gdm/dialogs/chosen_entries.h"
#include "gdm/dialogs/context_menu.h"
#include "gdm/dialogs/fill.h"
#include "gdm/dialogs/filter_rows.h"
#include "gdm/editing/attr_item_delegate.h"
#include "gdm/editing/condition_editing.h"
#include "gdm/host/message_keys.h"
#include "gdm/items/attr_filter_lwi.h"

namespace Zudunmaf
{

constexpr DialogKind FilterDialog = {
    keys::FilterAllGroupsRow, keys::FilterAllGroupsAtFill, keys::FilterAllGroupsAtFilter,
    keys::FilterSetCondition, keys::FilterClearCondition,  EntityAll,
    KeepChosenRows,
};

static QString lineOf(const AttrFilterLWI &item)
{
    return item.toString();
}

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
    entities << newEntity(keys::FilterEntityAll, EntityAll);
    TvxAttributesSelectionDialog::fillEntityList(entities);
}

void AttributesFilterDialog::fillGroupsList()
{
    QStringList groups;
    if (collectGroups(*this, FilterDialog, GDM_HERE, &groups))
        TvxAttributesSelectionDialog::fillGroupsList(groups);
}

void AttributesFilterDialog::fillAttributeList()
{
    if (getEntityDID() < 0)
        return;
    Fill fill(*this, FilterDialog);
    bool isFilled = fill.readLabels(GDM_HERE);
    isFilled = isFilled && fill.readObsolete(GDM_HERE);
    isFilled = isFilled && fill.collect<AttrFilterLWI>(GDM_HERE);
    if (isFilled)
        TvxAttributesSelectionDialog::fillAttributeList(fill.items());
}

void AttributesFilterDialog::filterAttributeList()
{
    if (filterRows<AttrFilterLWI>(*this, FilterDialog, GDM_HERE))
        setFirstVisibleItemAsCurrent();
}

void AttributesFilterDialog::setDisplayUnits(int units)
{
    TvxAttributesSelectionDialog::setDisplayUnits(units);
    fillAttributeList();
}

void AttributesFilterDialog::setupContextMenu()
{
    contextMenu = installContextMenu(this, FilterDialog);
}

void AttributesFilterDialog::contextMenu_triggered(QAction *action)
{
    runMenuAction(this, action, clearCondition);
}

QStringList AttributesFilterDialog::getFiltersAsStringList() const
{
    return chosenEntries<AttrFilterLWI>(*this, lineOf);
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
