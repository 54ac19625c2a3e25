#include "tvx/row_sorter.h"

#include "tvx/attribute_table.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <limits>
#include <numeric>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// Unlikely to be a role of a host.
constexpr int ArrivalNumberRole = 0x7a756e01;
constexpr qint64 NoNumber = std::numeric_limits<qint64>::max();

/// A host's item may override data(), so this reads what the base class stores.
qint64 arrivalNumberOf(const QTableWidgetItem *name)
{
    const QVariant number = name ? name->QTableWidgetItem::data(ArrivalNumberRole) : QVariant();
    return number.isValid() ? number.toLongLong() : NoNumber;
}

/// Returns the order in which the last rows move to their former rows, and the others keep their order.
QVector<int> orderOfFormerRows(int rowCount, const QVector<int> &formerRows)
{
    const int others = rowCount - static_cast<int>(formerRows.size());
    QVector<int> order;
    order.reserve(rowCount);
    int restored = 0;
    for (int row = 0; row < rowCount; ++row) {
        const int other = row - restored;
        const bool isRestored =
            other == others || (restored < formerRows.size() && formerRows[restored] <= row);
        order.append(isRestored ? others + restored++ : other);
    }
    return order;
}

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
    const auto text = [this](int row) { return textOf(row); };
    numberNewRows();
    moveRows(m_order.isSorted() ? m_order.arrange(m_table->rowCount(), text) : orderOfArrival());
}

void RowSorter::moveRestoredRows(const QVector<int> &formerRows)
{
    // Also if they are sorted then, so that they return to their positions among rows of equal text.
    moveRows(orderOfFormerRows(m_table->rowCount(), formerRows));
    if (!m_order.isPresentOrderKept())
        sort();
}

void RowSorter::numberRow(QTableWidgetItem *name)
{
    name->QTableWidgetItem::setData(ArrivalNumberRole, m_nextNumber++);
}

void RowSorter::numberNewRows()
{
    const QSignalBlocker blocker(m_table->model());
    for (int row = 0; row < m_table->rowCount(); ++row) {
        QTableWidgetItem *name = m_table->item(row, AttributeTable::NameColumn);
        if (name && arrivalNumberOf(name) == NoNumber)
            numberRow(name);
    }
}

QVector<int> RowSorter::orderOfArrival() const
{
    QVector<qint64> numbers;
    numbers.reserve(m_table->rowCount());
    for (int row = 0; row < m_table->rowCount(); ++row)
        numbers.append(arrivalNumberOf(m_table->item(row, AttributeTable::NameColumn)));
    QVector<int> rows(m_table->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(),
                     [&numbers](int a, int b) { return numbers.at(a) < numbers.at(b); });
    return rows;
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
    selected.reserve(static_cast<int>(rows.size()));
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
    Q_EMIT sorted();
}

} // namespace tvx
} // namespace Zudunmaf
