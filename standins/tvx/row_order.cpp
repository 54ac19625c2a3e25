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

std::vector<SortKey> keysOf(int rowCount, const std::function<QString(int)> &textOfRow)
{
    const QCollator collator = newCollator();
    std::vector<SortKey> keys;
    keys.reserve(static_cast<std::size_t>(rowCount));
    for (int row = 0; row < rowCount; ++row)
        keys.emplace_back(textOfRow(row), collator);
    return keys;
}

} // namespace

void RowOrder::advance(int column)
{
    m_isPresentOrderKept = false;
    if (column != m_column) {
        m_column = column;
        m_direction = Qt::AscendingOrder;
    } else if (m_direction == Qt::AscendingOrder) {
        m_direction = Qt::DescendingOrder;
    } else {
        m_column = -1;
    }
}

void RowOrder::keepPresentOrder()
{
    m_column = -1;
    m_isPresentOrderKept = true;
}

QVector<int> RowOrder::arrange(int rowCount, const std::function<QString(int)> &textOfRow) const
{
    const std::vector<SortKey> keys = keysOf(rowCount, textOfRow);
    QVector<int> rows(rowCount);
    std::iota(rows.begin(), rows.end(), 0);
    const bool ascending = m_direction == Qt::AscendingOrder;
    std::stable_sort(rows.begin(), rows.end(), [&keys, ascending](int a, int b) {
        return ascending ? keys[a] < keys[b] : keys[b] < keys[a];
    });
    return rows;
}

bool RowOrder::isInOrder(int rowCount, const std::function<QString(int)> &textOfRow) const
{
    const std::vector<SortKey> keys = keysOf(rowCount, textOfRow);
    return m_direction == Qt::AscendingOrder ? std::is_sorted(keys.begin(), keys.end())
                                             : std::is_sorted(keys.rbegin(), keys.rend());
}

} // namespace tvx
} // namespace Zudunmaf
