#ifndef TVX_ROW_ORDER_H
#define TVX_ROW_ORDER_H

#include <QString>
#include <QVector>

#include <functional>

namespace Zudunmaf
{
namespace tvx
{

/// The order of a table's rows: as they came, or by the text of one column. It remembers in which order the
/// rows came, so that this order can be reached again, and moves nothing itself.
class RowOrder
{
public:
    /// What a click on the header of a column brings: ascending, then descending, then as the rows came.
    void advance(int column);
    bool isSorted() const { return m_column >= 0; }
    /// The column by whose text the rows are sorted; -1 for none.
    int column() const { return m_column; }
    Qt::SortOrder direction() const { return m_direction; }

    /// Where each row is to come from: the present number of the row that goes to place 0, 1, and so on. Rows
    /// of equal text keep their present order; empty texts stand last when ascending, numbers before texts
    /// and by value, texts as the user's language has it, with numbers in them by value. The caller puts the rows
    /// into this order.
    QVector<int> arrange(int rowCount, const std::function<QString(int row)> &textOfRow);

    /// The places of rows in the order in which they came, counted from 0.
    QVector<int> placesOf(const QVector<int> &rows) const;

    /// All rows were replaced; the column stays.
    void rowsReplaced();
    /// These rows, ascending, were taken out. Rows that are appended need no call.
    void rowsRemoved(const QVector<int> &rows);
    /// The last of now `rowCount` rows have come back to these places, ascending, which placesOf() gave. They
    /// stand there at the next arrange(); where fewer rows are left, behind the others.
    void rowsReturned(int rowCount, const QVector<int> &places);

private:
    void numberRows(int rowCount);
    QVector<int> orderOfArrival() const;
    QVector<int> orderOfTexts(int rowCount, const std::function<QString(int row)> &textOfRow) const;

    int m_column = -1;
    Qt::SortOrder m_direction = Qt::AscendingOrder;
    /// Each row's place in the order of arrival, without gaps. Empty while the rows stand in that order.
    QVector<int> m_arrival;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
