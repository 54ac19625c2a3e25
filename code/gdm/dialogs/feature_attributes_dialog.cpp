#include "gdm/dialogs/feature_attributes_dialog.h"

#include "gdm/dialogs/chosen_entries.h"
#include "gdm/dialogs/context_menu.h"
#include "gdm/dialogs/fill.h"
#include "gdm/dialogs/filter_rows.h"
#include "gdm/editing/attr_item_delegate.h"
#include "gdm/editing/value_editing.h"
#include "gdm/host/message_keys.h"
#include "gdm/items/feature_attr_lwi.h"

namespace Zudunmaf
{

constexpr DialogKind FeatureDialog = {keys::FeatureAllGroupsRow,
                                      keys::FeatureAllGroupsAtFill,
                                      keys::FeatureAllGroupsAtFilter,
                                      keys::FeatureEditValue,
                                      keys::FeatureSetDefault,
                                      EntityFeature,
                                      HideChosenRows};

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
    fillEntityList();
    fillGroupsList();
    fillAttributeList();
}

void FeatureAttributesDialog::fillEntityList()
{
    QList<TvxDataItem *> entities;
    entities << newEntity(keys::FeatureEntityFeature, EntityFeature);
    TvxAttributesSelectionDialog::fillEntityList(entities);
}

void FeatureAttributesDialog::fillGroupsList()
{
    QStringList groups;
    if (collectGroups(*this, FeatureDialog, GDM_HERE, &groups))
        TvxAttributesSelectionDialog::fillGroupsList(groups);
}

void FeatureAttributesDialog::fillAttributeList()
{
    if (getEntityDID() < 0)
        return;
    Fill fill(*this, FeatureDialog);
    bool isFilled = fill.readLabels(GDM_HERE);
    isFilled = isFilled && fill.readObsolete(GDM_HERE);
    isFilled = isFilled && fill.collect<FeatureAttrLWI>(GDM_HERE);
    if (isFilled)
        TvxAttributesSelectionDialog::fillAttributeList(fill.items());
}

void FeatureAttributesDialog::filterAttributeList()
{
    if (filterRows<FeatureAttrLWI>(*this, FeatureDialog, GDM_HERE))
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
    QTableWidgetItem *available = findItemByAttrName(item->data(DmlAttrNameRole).toString());
    if (!dynamic_cast<FeatureAttrLWI *>(available))
        return;
    setTopViewRowsVisiblity(available->row(), true);
    setTopViewCurrentItem(available);
}

void FeatureAttributesDialog::setupContextMenu()
{
    contextMenu = installContextMenu(this, FeatureDialog);
}

void FeatureAttributesDialog::contextMenu_triggered(QAction *action)
{
    runMenuAction(this, action, setDefaultValue);
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
