#include "tvx/chosen_rows.h"

#include "tvx/attribute_table.h"
#include "tvx/row_sorter.h"

#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace Zudunmaf
{
namespace tvx
{

ChosenRows::ChosenRows(AttributeTable *table)
    : m_table(table)
{
}

void ChosenRows::append(std::vector<ChosenRow> rows)
{
    for (const ChosenRow &row : rows)
        m_table->sorter()->numberRow(row.name.get());
    insertAtEnd(std::move(rows));
    m_table->sorter()->sortIfByColumn();
}

void ChosenRows::restore(std::vector<ChosenRow> rows)
{
    QVector<int> formerRows;
    formerRows.reserve(static_cast<int>(rows.size()));
    for (const ChosenRow &row : rows)
        formerRows.append(row.formerRow);
    insertAtEnd(std::move(rows));
    m_table->sorter()->moveRestoredRows(formerRows);
}

void ChosenRows::insertAtEnd(std::vector<ChosenRow> rows)
{
    const int first = m_table->rowCount();
    m_table->model()->insertRows(first, static_cast<int>(rows.size()));
    {
        const QSignalBlocker blocker(m_table->model());
        int next = first;
        for (ChosenRow &row : rows) {
            m_table->setItem(next, AttributeTable::NameColumn, row.name.release());
            m_table->setItem(next++, AttributeTable::ValueColumn, row.value.release());
        }
    }
    m_table->viewport()->update();
    if (first == 0)
        m_table->updateRowHeight();
}

std::vector<ChosenRow> ChosenRows::take(const QVector<int> &rows)
{
    std::vector<ChosenRow> taken(rows.size());
    {
        const QSignalBlocker blocker(m_table->model());
        for (int i = 0; i < rows.size(); ++i) {
            ChosenRow &row = taken[static_cast<std::size_t>(i)];
            row.name.reset(m_table->takeItem(rows[i], AttributeTable::NameColumn));
            row.value.reset(m_table->takeItem(rows[i], AttributeTable::ValueColumn));
            row.formerRow = rows[i];
        }
    }
    removeRows(rows);
    if (!rows.isEmpty())
        refreshItemPositions(rows.first());
    m_table->viewport()->update();
    return taken;
}

/// Removes adjacent rows together, from the last ones: each removal moves all rows below it.
void ChosenRows::removeRows(const QVector<int> &rows)
{
    for (auto last = rows.size() - 1; last >= 0;) {
        auto first = last;
        while (first > 0 && rows[first - 1] == rows[first] - 1)
            --first;
        m_table->model()->removeRows(rows[first], static_cast<int>(last - first + 1));
        last = first - 1;
    }
}

/// Re-inserts the items from this row on, because QTableWidgetItem caches its index: after rows above it have come or
/// gone, each call of column() would search the table for the item.
void ChosenRows::refreshItemPositions(int firstRow)
{
    const QSignalBlocker blocker(m_table->model());
    for (int row = firstRow; row < m_table->rowCount(); ++row) {
        for (const int column : {AttributeTable::NameColumn, AttributeTable::ValueColumn})
            m_table->setItem(row, column, m_table->takeItem(row, column));
    }
}

void ChosenRows::exchangeValue(int row, std::unique_ptr<QTableWidgetItem> *value)
{
    const QSignalBlocker blocker(m_table->model());
    QTableWidgetItem *other = m_table->takeItem(row, AttributeTable::ValueColumn);
    m_table->setItem(row, AttributeTable::ValueColumn, value->release());
    value->reset(other);
    m_table->viewport()->update();
}

QHash<const QTableWidgetItem *, int> ChosenRows::rowOfNames() const
{
    QHash<const QTableWidgetItem *, int> rows;
    rows.reserve(m_table->rowCount());
    for (int row = 0; row < m_table->rowCount(); ++row)
        rows.insert(m_table->item(row, AttributeTable::NameColumn), row);
    return rows;
}

void ChosenRows::select(const QVector<QTableWidgetItem *> &values)
{
    if (values.isEmpty())
        return;
    QVector<int> rows;
    rows.reserve(values.size());
    for (const QTableWidgetItem *value : values)
        rows.append(value->row());
    std::sort(rows.begin(), rows.end());

    m_table->setCurrentCell(rows.first(), AttributeTable::NameColumn, QItemSelectionModel::NoUpdate);
    m_table->selectRows(rows);
    m_table->scrollToItem(m_table->item(rows.last(), AttributeTable::NameColumn));
}

} // namespace tvx
} // namespace Zudunmaf
