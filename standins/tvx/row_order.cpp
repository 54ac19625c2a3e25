#include "tvx/row_order.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// Returns a collator for the user's language that compares numbers in texts by value, so that 2 comes before 10. The C
/// locale supports neither, so English replaces it.
QCollator newCollator()
{
    const QLocale user;
    QCollator collator(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    return collator;
}

/// The text of a cell, prepared for comparison: numbers before texts before empty texts.
struct SortKey {
    enum Kind { Number, Text, Nothing };

    SortKey(const QString &cell, const QCollator &collator)
        : text(collator.sortKey(cell))
    {
        if (cell.isEmpty())
            return;
        kind = Text;
        bool isNumber = false;
        const double value = QLocale::c().toDouble(cell.section(QLatin1Char(' '), 0, 0), &isNumber);
        // toDouble() also reads "nan", which has no order, and "inf".
        if (isNumber && std::isfinite(value)) {
            kind = Number;
            number = value;
        }
    }

    bool operator<(const SortKey &other) const
    {
        if (kind != other.kind)
            return kind < other.kind;
        if (kind == Number && number != other.number)
            return number < other.number;
        return text.compare(other.text) < 0;
    }

    Kind kind = Nothing;
    double number = 0;
    QCollatorSortKey text;
};

} // namespace

void RowOrder::advance(int column)
{
    if (column != m_column) {
        m_column = column;
        m_direction = Qt::AscendingOrder;
    } else if (m_direction == Qt::AscendingOrder) {
        m_direction = Qt::DescendingOrder;
    } else {
        m_column = -1;
    }
}

QVector<int> RowOrder::arrange(int rowCount, const std::function<QString(int)> &textOfRow)
{
    indexRows(rowCount);
    if (!isSorted()) {
        const QVector<int> order = orderOfArrival();
        m_arrivalIndexes.clear();
        return order;
    }
    const QVector<int> order = orderOfTexts(rowCount, textOfRow);
    m_arrivalIndexes = arrivalIndexesOf(order);
    return order;
}

bool RowOrder::isInOrder(int rowCount, const std::function<QString(int)> &textOfRow) const
{
    const QVector<int> rows = orderOfTexts(rowCount, textOfRow);
    return std::is_sorted(rows.begin(), rows.end());
}

QVector<int> RowOrder::arrivalIndexesOf(const QVector<int> &rows) const
{
    if (m_arrivalIndexes.isEmpty())
        return rows;
    QVector<int> indexes;
    indexes.reserve(rows.size());
    for (int row : rows)
        indexes.append(m_arrivalIndexes[row]);
    return indexes;
}

void RowOrder::keepPresentOrder()
{
    m_column = -1;
    m_arrivalIndexes.clear();
}

void RowOrder::rowsReplaced()
{
    m_arrivalIndexes.clear();
}

void RowOrder::rowsRemoved(const QVector<int> &rows)
{
    if (m_arrivalIndexes.isEmpty())
        return;
    QVector<int> removed = arrivalIndexesOf(rows);
    std::sort(removed.begin(), removed.end());
    QVector<int> remaining;
    remaining.reserve(m_arrivalIndexes.size() - rows.size());
    auto next = rows.begin();
    for (int row = 0; row < m_arrivalIndexes.size(); ++row) {
        if (next != rows.end() && *next == row) {
            ++next;
            continue;
        }
        const int index = m_arrivalIndexes.at(row);
        const auto removedBefore = std::lower_bound(removed.begin(), removed.end(), index) - removed.begin();
        remaining.append(index - static_cast<int>(removedBefore));
    }
    m_arrivalIndexes = remaining;
}

void RowOrder::rowsRestored(int rowCount, const QVector<int> &arrivalIndexes)
{
    const int others = rowCount - static_cast<int>(arrivalIndexes.size());
    indexRows(others);
    QVector<int> restored;
    QVector<int> free;
    for (int index = 0; index < rowCount; ++index) {
        const int next = static_cast<int>(restored.size());
        const bool isRestored =
            next < arrivalIndexes.size() && std::min(arrivalIndexes[next], others + next) == index;
        (isRestored ? restored : free).append(index);
    }
    for (int &index : m_arrivalIndexes)
        index = free[index];
    m_arrivalIndexes += restored;
}

void RowOrder::indexRows(int rowCount)
{
    while (m_arrivalIndexes.size() < rowCount)
        m_arrivalIndexes.append(static_cast<int>(m_arrivalIndexes.size()));
}

QVector<int> RowOrder::orderOfArrival() const
{
    QVector<int> rows(m_arrivalIndexes.size());
    for (int row = 0; row < m_arrivalIndexes.size(); ++row)
        rows[m_arrivalIndexes[row]] = row;
    return rows;
}

QVector<int> RowOrder::orderOfTexts(int rowCount, const std::function<QString(int)> &textOfRow) const
{
    const QCollator collator = newCollator();
    std::vector<SortKey> keys;
    keys.reserve(rowCount);
    for (int row = 0; row < rowCount; ++row)
        keys.emplace_back(textOfRow(row), collator);

    QVector<int> rows(rowCount);
    std::iota(rows.begin(), rows.end(), 0);
    const bool ascending = m_direction == Qt::AscendingOrder;
    std::stable_sort(rows.begin(), rows.end(), [&keys, ascending](int a, int b) {
        return ascending ? keys[a] < keys[b] : keys[b] < keys[a];
    });
    return rows;
}

} // namespace tvx
} // namespace Zudunmaf
