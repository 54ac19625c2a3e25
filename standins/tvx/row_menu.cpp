#include "tvx/row_menu.h"

#include "tvx/chosen_table.h"

#include <QMenu>

namespace Zudunmaf
{
namespace tvx
{

RowMenu::RowMenu(ChosenTable *table)
    : QObject(table)
    , m_table(table)
{
}

void RowMenu::setMenu(QMenu *menu)
{
    if (m_menu)
        disconnect(m_menu, nullptr, this, nullptr);
    m_menu = menu;
    if (!menu)
        return;
    // The subclass connects later, so its slot runs after this one.
    connect(menu, &QMenu::triggered, this, [this](const QAction *action) {
        Q_EMIT aboutToRun(action);
        // A deferred delete waits for the present event loop. A queued call could be made by one that the slot runs.
        auto *over = new QObject(this);
        connect(over, &QObject::destroyed, this, &RowMenu::triggered);
        over->deleteLater();
    });
}

void RowMenu::openAt(const QPoint &globalPosition)
{
    const QTableWidgetItem *clicked = m_table->itemAt(m_table->viewport()->mapFromGlobal(globalPosition));
    if (clicked)
        open(clicked->row(), globalPosition);
}

void RowMenu::openAtCurrentRow()
{
    const QTableWidgetItem *current = m_table->item(m_table->currentRow(), AttributeTable::NameColumn);
    if (!current)
        return;
    m_table->scrollToItem(current);
    open(current->row(), m_table->viewport()->mapToGlobal(m_table->visualItemRect(current).bottomLeft()));
}

void RowMenu::open(int row, const QPoint &globalPosition)
{
    m_table->finishEditing();
    if (m_table->selectionModel()->isRowSelected(row, QModelIndex()))
        m_table->setCurrentCell(row, AttributeTable::NameColumn, QItemSelectionModel::NoUpdate);
    else
        m_table->makeRowCurrent(row);
    if (m_menu && !m_menu->isVisible())
        m_menu->popup(globalPosition);
}

QList<QTableWidgetItem *> RowMenu::items() const
{
    QList<QTableWidgetItem *> items;
    const QVector<int> rows = m_table->selectedVisibleRows();
    items.reserve(rows.size());
    for (int row : rows)
        items.append(m_table->rowItem(row));
    QTableWidgetItem *current = m_table->rowItem(m_table->currentRow());
    if (items.isEmpty() && current)
        items.append(current);
    return items;
}

} // namespace tvx
} // namespace Zudunmaf
