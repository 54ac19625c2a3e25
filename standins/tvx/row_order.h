#ifndef TVX_ROW_ORDER_H
#define TVX_ROW_ORDER_H

#include <QString>
#include <QVector>

#include <functional>

namespace Zudunmaf
{
namespace tvx
{

/// Computes the order of a table's rows: the order of arrival, or that of the texts of one column. Remembers the order
/// of arrival while the rows are sorted. Owned by RowSorter, which moves the rows; this class moves nothing.
class RowOrder
{
public:
    /// Cycles the column: ascending, descending, unsorted.
    void advance(int column);
    bool isSorted() const { return m_column >= 0; }
    /// Returns the column by whose texts the rows are sorted; -1 if they are not sorted.
    int column() const { return m_column; }
    Qt::SortOrder direction() const { return m_direction; }

    /// Returns for each row of the new order the row where it is now. The caller moves the rows accordingly.
    ///
    /// Rows of equal text keep their order. In ascending order, numbers come first, by value; then texts, by the rules
    /// of the user's language and with numbers in them by value; then empty texts.
    QVector<int> arrange(int rowCount, const std::function<QString(int row)> &textOfRow);

    /// Returns true if the rows, which are sorted by a column, are in the order that arrange() would give them.
    bool isInOrder(int rowCount, const std::function<QString(int row)> &textOfRow) const;

    /// Returns the arrival index of each row: its index in the order of arrival, from 0.
    QVector<int> arrivalIndexesOf(const QVector<int> &rows) const;

    /// Takes the present order of the rows as that of their arrival, sorted by no column.
    void keepPresentOrder();
    /// Must be called when all rows were replaced. The column stays.
    void rowsReplaced();
    /// Must be called when rows, in ascending order, were removed. Appended rows need no call.
    void rowsRemoved(const QVector<int> &rows);
    /// Must be called when removed rows were appended again, so that the table has `rowCount` rows now. At the next
    /// arrange() they return to their arrival indexes, which are in ascending order; if fewer rows are left, to the
    /// end.
    void rowsRestored(int rowCount, const QVector<int> &arrivalIndexes);

private:
    void indexRows(int rowCount);
    QVector<int> orderOfArrival() const;
    QVector<int> orderOfTexts(int rowCount, const std::function<QString(int row)> &textOfRow) const;

    int m_column = -1;
    Qt::SortOrder m_direction = Qt::AscendingOrder;
    /// The arrival index of each row. Empty while the rows are in the order of arrival.
    QVector<int> m_arrivalIndexes;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
