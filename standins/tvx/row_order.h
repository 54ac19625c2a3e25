#ifndef TVX_ROW_ORDER_H
#define TVX_ROW_ORDER_H

#include <QString>
#include <QVector>

#include <functional>

namespace Zudunmaf
{
namespace tvx
{

/// How a table's rows are sorted: by the texts of one column, in the order of arrival, or left as they are. Owned by
/// RowSorter, which moves the rows; this class moves nothing.
class RowOrder
{
public:
    /// Cycles the column: ascending, descending, unsorted.
    void advance(int column);
    bool isSorted() const { return m_column >= 0; }
    /// Returns the column by whose texts the rows are sorted; -1 if they are not sorted.
    int column() const { return m_column; }
    Qt::SortOrder direction() const { return m_direction; }

    /// Leaves the rows as they are, sorted by no column, until the next advance().
    void keepPresentOrder();
    bool isPresentOrderKept() const { return m_isPresentOrderKept; }

    /// Returns for each row of the order by texts the row where it is now.
    ///
    /// Rows of equal text keep their order. In ascending order, numbers come first, by value; then texts, by the rules
    /// of the user's language and with numbers in them by value; then empty texts.
    QVector<int> arrange(int rowCount, const std::function<QString(int row)> &textOfRow) const;
    /// Returns true if the rows are in the order that arrange() would give them.
    bool isInOrder(int rowCount, const std::function<QString(int row)> &textOfRow) const;

private:
    int m_column = -1;
    Qt::SortOrder m_direction = Qt::AscendingOrder;
    bool m_isPresentOrderKept = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
