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

/// Orders as the user's language does, and numbers in a text by value: 2 before 10. The C locale, which could
/// do neither, counts as English.
QCollator newCollator()
{
    const QLocale user;
    QCollator collator(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    return collator;
}

/// A cell's text in a form that compares quickly.
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
        // "nan" and "inf" are read as well, and the one is neither less nor more than anything.
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
    numberRows(rowCount);
    if (!isSorted()) {
        const QVector<int> order = orderOfArrival();
        m_arrival.clear();
        return order;
    }
    const QVector<int> order = orderOfTexts(rowCount, textOfRow);
    m_arrival = placesOf(order);
    return order;
}

QVector<int> RowOrder::placesOf(const QVector<int> &rows) const
{
    if (m_arrival.isEmpty())
        return rows;
    QVector<int> places;
    places.reserve(rows.size());
    for (int row : rows)
        places.append(m_arrival[row]);
    return places;
}

void RowOrder::rowsReplaced()
{
    m_arrival.clear();
}

void RowOrder::rowsRemoved(const QVector<int> &rows)
{
    if (m_arrival.isEmpty())
        return;
    QVector<int> gone = placesOf(rows);
    std::sort(gone.begin(), gone.end());
    QVector<int> left;
    left.reserve(m_arrival.size() - rows.size());
    auto next = rows.begin();
    for (int row = 0; row < m_arrival.size(); ++row) {
        if (next != rows.end() && *next == row) {
            ++next;
            continue;
        }
        const auto goneBefore = std::lower_bound(gone.begin(), gone.end(), m_arrival[row]) - gone.begin();
        left.append(m_arrival[row] - static_cast<int>(goneBefore));
    }
    m_arrival = left;
}

void RowOrder::rowsReturned(int rowCount, const QVector<int> &places)
{
    const int others = rowCount - static_cast<int>(places.size());
    numberRows(others);
    QVector<int> returned;
    QVector<int> free;
    for (int place = 0; place < rowCount; ++place) {
        const int next = static_cast<int>(returned.size());
        const bool isTaken = next < places.size() && std::min(places[next], others + next) == place;
        (isTaken ? returned : free).append(place);
    }
    for (int &place : m_arrival)
        place = free[place];
    m_arrival += returned;
}

void RowOrder::numberRows(int rowCount)
{
    m_arrival.reserve(rowCount);
    while (m_arrival.size() < rowCount)
        m_arrival.append(static_cast<int>(m_arrival.size()));
}

QVector<int> RowOrder::orderOfArrival() const
{
    QVector<int> rows(m_arrival.size());
    for (int row = 0; row < m_arrival.size(); ++row)
        rows[m_arrival[row]] = row;
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
