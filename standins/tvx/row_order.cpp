#include "tvx/row_order.h"

#include <QLocale>

#include <algorithm>
#include <numeric>
#include <vector>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// A cell's text in a form that compares quickly.
struct SortKey {
    enum Kind { Number, Text, Nothing };

    explicit SortKey(const QString &cell)
        : text(cell)
    {
        if (text.isEmpty())
            return;
        kind = Text;
        bool isNumber = false;
        const double value = QLocale::c().toDouble(text.section(QLatin1Char(' '), 0, 0), &isNumber);
        if (isNumber) {
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
        return text.compare(other.text, Qt::CaseInsensitive) < 0;
    }

    Kind kind = Nothing;
    double number = 0;
    QString text;
};

QVector<int> countUp(int count)
{
    QVector<int> rows(count);
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

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
    const QVector<int> order = isSorted() ? orderOfTexts(rowCount, textOfRow) : orderOfArrival();
    if (isSorted()) {
        const QVector<int> before = m_arrival;
        std::transform(order.begin(), order.end(), m_arrival.begin(),
                       [&before](int row) { return before[row]; });
    } else {
        rowsReplaced();
    }
    return order;
}

void RowOrder::rowsReplaced()
{
    m_arrival.clear();
    m_nextArrival = 0;
}

void RowOrder::rowsRemoved(int first, int count)
{
    if (!m_arrival.isEmpty())
        m_arrival.remove(first, std::min<int>(count, m_arrival.size() - first));
}

void RowOrder::numberRows(int rowCount)
{
    m_arrival.reserve(rowCount);
    while (m_arrival.size() < rowCount)
        m_arrival.append(m_nextArrival++);
}

QVector<int> RowOrder::orderOfArrival() const
{
    QVector<int> rows = countUp(m_arrival.size());
    std::sort(rows.begin(), rows.end(), [this](int a, int b) { return m_arrival[a] < m_arrival[b]; });
    return rows;
}

QVector<int> RowOrder::orderOfTexts(int rowCount, const std::function<QString(int)> &textOfRow) const
{
    std::vector<SortKey> keys;
    keys.reserve(rowCount);
    for (int row = 0; row < rowCount; ++row)
        keys.emplace_back(textOfRow(row));

    QVector<int> rows = countUp(rowCount);
    const bool ascending = m_direction == Qt::AscendingOrder;
    std::stable_sort(rows.begin(), rows.end(), [&keys, ascending](int a, int b) {
        return ascending ? keys[a] < keys[b] : keys[b] < keys[a];
    });
    return rows;
}

} // namespace tvx
} // namespace Zudunmaf
