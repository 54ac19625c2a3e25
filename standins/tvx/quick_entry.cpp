#include "tvx/quick_entry.h"

#include "tvx/available_table.h"
#include "tvx/chosen_table.h"
#include "tvx/filter_line_keys.h"
#include "tvx/row_mover.h"
#include "tvx/selection_widgets.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

namespace Zudunmaf
{
namespace tvx
{

QuickEntry::QuickEntry(const SelectionWidgets &widgets, RowMover *mover, QObject *parent)
    : QObject(parent)
    , m_widgets(widgets)
    , m_mover(mover)
{
    widgets.filterText->installEventFilter(this);
    widgets.topView->installEventFilter(this);
    connect(widgets.chosenList, &ChosenTable::editingStarted, this, [this] { m_origin = nullptr; });
    connect(widgets.chosenList, &ChosenTable::entered, this, &QuickEntry::returnToOrigin);
    auto *edit = new QShortcut(Qt::Key_F2, widgets.chosenList->window());
    edit->setAutoRepeat(false);
    connect(edit, &QShortcut::activated, this, &QuickEntry::editCurrentRow);
}

bool QuickEntry::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!isEnter || !(key->modifiers() & Qt::ControlModifier))
        return QObject::eventFilter(watched, event);
    if (!key->isAutoRepeat())
        addAndEdit();
    return true;
}

void QuickEntry::addAndEdit()
{
    if (!m_widgets.topView->hasVisibleSelection())
        return;
    m_mover->addSelected();
    const QVector<int> added = m_widgets.chosenList->selectedVisibleRows();
    if (added.isEmpty())
        return;
    m_widgets.chosenList->setCurrentCell(added.last(), AttributeTable::NameColumn,
                                         QItemSelectionModel::NoUpdate);
    editRow(added.last(), m_widgets.topView->window()->focusWidget());
}

void QuickEntry::editCurrentRow()
{
    ChosenTable *chosen = m_widgets.chosenList;
    QWidget *focus = chosen->window()->focusWidget();
    if (!chosen->openEditor())
        editRow(chosen->currentRow(), focus == chosen ? nullptr : focus);
}

void QuickEntry::editRow(int row, QWidget *origin)
{
    if (const QTableWidgetItem *item = m_widgets.chosenList->rowItem(row))
        m_widgets.chosenList->scrollToItem(item);
    m_widgets.chosenList->editRow(row);
    // A boolean has no editor.
    if (m_widgets.chosenList->openEditor())
        m_origin = origin;
}

void QuickEntry::returnToOrigin()
{
    if (!m_origin)
        return;
    m_origin->setFocus();
    endSearch(m_widgets.filterText);
}

} // namespace tvx
} // namespace Zudunmaf
