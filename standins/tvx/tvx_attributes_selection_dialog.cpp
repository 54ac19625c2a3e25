#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include "tvx/available_table.h"
#include "tvx/button_picture.h"
#include "tvx/chosen_table.h"
#include "tvx/row_menu.h"
#include "tvx/selection_controller.h"

#include <QCloseEvent>
#include <QMenu>
#include <QPushButton>
#include <QStyledItemDelegate>

class TvxAttributesSelectionDialog::Private : public Zudunmaf::tvx::SelectionController
{
public:
    using SelectionController::SelectionController;
};

using Zudunmaf::tvx::AttributeTable;

TvxAttributesSelectionDialog::TvxAttributesSelectionDialog(int did, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , d(new Private(did, this))
{
}

TvxAttributesSelectionDialog::~TvxAttributesSelectionDialog()
{
    // Before QWidget deletes the children: no signal of theirs must reach a dialog that is half destroyed.
    delete d;
}

void TvxAttributesSelectionDialog::connectSignal2Slots()
{
    d->connectWidgets();
}

void TvxAttributesSelectionDialog::setDisplayUnits(int units)
{
    d->setDisplayUnits(units);
}

void TvxAttributesSelectionDialog::addButtonClickedCB(QTableWidgetItem *) {}

void TvxAttributesSelectionDialog::removeButtonClickedCB(QTableWidgetItem *) {}

int TvxAttributesSelectionDialog::getEntityDID() const
{
    return d->criteria().dictionary();
}

int TvxAttributesSelectionDialog::getSelectedEntityMask() const
{
    return d->criteria().mask();
}

QString TvxAttributesSelectionDialog::getSelectedGroupName() const
{
    return d->criteria().group();
}

QString TvxAttributesSelectionDialog::getUserFilterText()
{
    return d->criteria().text();
}

int TvxAttributesSelectionDialog::displayUnits()
{
    return d->displayUnits();
}

QList<QTableWidgetItem *> TvxAttributesSelectionDialog::getTopListItems(bool visibleOnly) const
{
    const Zudunmaf::tvx::AvailableTable *top = d->widgets().topView;
    return visibleOnly ? top->rowItems(true) : top->allItems();
}

void TvxAttributesSelectionDialog::setTopViewRowsVisiblity(int row, bool visible)
{
    d->widgets().topView->setRowVisible(row, visible);
}

void TvxAttributesSelectionDialog::setFirstVisibleItemAsCurrent()
{
    d->widgets().topView->makeFirstVisibleRowCurrent();
}

void TvxAttributesSelectionDialog::setTopViewCurrentItem(QTableWidgetItem *item)
{
    d->widgets().topView->makeItemCurrent(item);
}

QTableWidgetItem *TvxAttributesSelectionDialog::findItemByAttrName(const QString &name)
{
    return d->widgets().topView->findByName(name);
}

QList<QTableWidgetItem *> TvxAttributesSelectionDialog::getChosenList() const
{
    return d->widgets().chosenList->rowItems(false);
}

void TvxAttributesSelectionDialog::setItemDelegate(QStyledItemDelegate *delegate)
{
    d->widgets().chosenList->setItemDelegate(delegate);
}

void TvxAttributesSelectionDialog::setHeaderTitle(int column, const QString &title)
{
    if (column < 0 || column >= AttributeTable::ColumnCount)
        return;
    d->widgets().topView->setHorizontalHeaderItem(column, new QTableWidgetItem(title));
    d->widgets().chosenList->setHorizontalHeaderItem(column, new QTableWidgetItem(title));
}

bool TvxAttributesSelectionDialog::setButtonPixmap(Buttons_Enum button, const QString &name)
{
    QPushButton *target = button == Buttons_Add ? d->widgets().addButton : d->widgets().removeButton;
    return Zudunmaf::tvx::setButtonPicture(target, button, name);
}

void TvxAttributesSelectionDialog::setCustomContextMenu(QMenu *menu)
{
    d->widgets().chosenList->menu()->setMenu(menu);
}

QList<QTableWidgetItem *> TvxAttributesSelectionDialog::getItemsForContextMenuCallback()
{
    return d->widgets().chosenList->menu()->items();
}

void TvxAttributesSelectionDialog::editCurrentItem()
{
    d->widgets().chosenList->editRow(d->widgets().chosenList->currentRow());
}

void TvxAttributesSelectionDialog::fillEntityList(const QList<TvxDataItem *> &items)
{
    d->criteria().setEntities(items);
}

void TvxAttributesSelectionDialog::fillGroupsList(const QStringList &groups)
{
    d->criteria().setGroups(groups);
}

void TvxAttributesSelectionDialog::fillAttributeList(const QList<QTableWidgetItem *> &items)
{
    d->fillAvailable(items);
}

void TvxAttributesSelectionDialog::closeEvent(QCloseEvent *event)
{
    QDialog::closeEvent(event);
}
