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
    /// and by value. The caller puts the rows into this order.
    QVector<int> arrange(int rowCount, const std::function<QString(int row)> &textOfRow);

    /// All rows were replaced; the column stays.
    void rowsReplaced();
    /// Rows were taken out. Rows that are appended need no call.
    void rowsRemoved(int first, int count);

private:
    void numberRows(int rowCount);
    QVector<int> orderOfArrival() const;
    QVector<int> orderOfTexts(int rowCount, const std::function<QString(int row)> &textOfRow) const;

    int m_column = -1;
    Qt::SortOrder m_direction = Qt::AscendingOrder;
    /// Each row's place in the order of arrival. Empty while the rows stand in that order.
    QVector<int> m_arrival;
    int m_nextArrival = 0;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
