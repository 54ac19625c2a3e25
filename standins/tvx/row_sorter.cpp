#include "tvx/row_sorter.h"

#include "tvx/attribute_table.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

struct Row {
    QTableWidgetItem *name;
    QTableWidgetItem *value;
    bool isHidden;
    bool isSelected;
};

QVector<Row> rowsInOrder(const AttributeTable &table, const QVector<int> &order)
{
    QVector<Row> rows;
    rows.reserve(order.size());
    for (int row : order) {
        rows.append({table.item(row, AttributeTable::NameColumn),
                     table.item(row, AttributeTable::ValueColumn), table.isRowHidden(row),
                     table.selectionModel()->isRowSelected(row, QModelIndex())});
    }
    return rows;
}

} // namespace

RowSorter::RowSorter(AttributeTable *table)
    : QObject(table)
    , m_table(table)
{
    connect(table->horizontalHeader(), &QHeaderView::sectionClicked, this, &RowSorter::cycleColumn);
}

void RowSorter::cycleColumn(int column)
{
    m_order.advance(column);
    QHeaderView *header = m_table->horizontalHeader();
    header->setSortIndicatorShown(m_order.isSorted());
    if (m_order.isSorted())
        header->setSortIndicator(column, m_order.direction());
    sort();
    if (m_table->currentItem())
        m_table->scrollToItem(m_table->currentItem());
}

void RowSorter::sortIfByColumn()
{
    if (m_order.isSorted())
        sort();
}

void RowSorter::sort()
{
    moveRows(m_order.arrange(m_table->rowCount(), [this](int row) { return textOf(row); }));
    Q_EMIT sorted();
}

void RowSorter::valuesChanged()
{
    const auto text = [this](int row) { return textOf(row); };
    if (!m_order.isSorted() || m_order.isInOrder(m_table->rowCount(), text))
        return;
    m_order.keepPresentOrder();
    m_table->horizontalHeader()->setSortIndicatorShown(false);
}

/// Returns the text of the sorted column.
QString RowSorter::textOf(int row) const
{
    const QTableWidgetItem *cell = m_table->item(row, m_order.column());
    return cell ? cell->text() : QString();
}

/// Moves the items, and with them whether a row is hidden, selected and current: the view keeps these by row.
void RowSorter::moveRows(const QVector<int> &order)
{
    const int current = m_table->currentRow();
    const QVector<Row> rows = rowsInOrder(*m_table, order);
    const QSignalBlocker blocker(m_table->model());
    for (int row = 0; row < m_table->rowCount(); ++row) {
        m_table->takeItem(row, AttributeTable::NameColumn);
        m_table->takeItem(row, AttributeTable::ValueColumn);
    }
    QVector<int> selected;
    for (int row = 0; row < rows.size(); ++row) {
        m_table->setItem(row, AttributeTable::NameColumn, rows[row].name);
        m_table->setItem(row, AttributeTable::ValueColumn, rows[row].value);
        m_table->setRowShown(row, !rows[row].isHidden);
        if (rows[row].isSelected)
            selected.append(row);
    }
    if (current >= 0) {
        const int row = static_cast<int>(order.indexOf(current));
        m_table->setCurrentCell(row, AttributeTable::NameColumn, QItemSelectionModel::NoUpdate);
    }
    m_table->selectRows(selected);
    m_table->viewport()->update();
}

} // namespace tvx
} // namespace Zudunmaf
