#ifndef TVX_ROW_SORTER_H
#define TVX_ROW_SORTER_H

#include "tvx/row_order.h"

#include <QObject>

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// Sorts the rows of a table when a header is clicked: ascending, descending, unsorted. Owned by the table. RowOrder
/// computes the order; this class moves the items.
class RowSorter : public QObject
{
    Q_OBJECT

public:
    explicit RowSorter(AttributeTable *table);

    /// The order, which the table keeps informed of rows that come and go.
    RowOrder &order() { return m_order; }
    /// Puts the rows into the order that the header shows.
    void sort();
    /// Does the same if the rows are sorted by a column; else they are in the order of arrival already.
    void sortIfByColumn();
    /// Must be called after values have changed. If the rows are no longer in the order that the header shows, hides
    /// its arrow: a row must not move away while the user edits the column.
    void valuesChanged();

Q_SIGNALS:
    /// Emitted after rows have moved.
    void sorted();

private:
    void cycleColumn(int column);
    QString textOf(int row) const;
    void moveRows(const QVector<int> &order);

    AttributeTable *m_table;
    RowOrder m_order;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
