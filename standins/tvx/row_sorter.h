#ifndef TVX_ROW_SORTER_H
#define TVX_ROW_SORTER_H

#include "tvx/row_order.h"

#include <QObject>
#include <QVector>

class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// Sorts the rows of a table when a header is clicked: ascending, descending, unsorted. Owned by the table. RowOrder
/// computes the order by texts; this class moves the items.
///
/// Unsorted rows are in the order of their arrival numbers, unless an edit has broken the order of a column. The name
/// item carries the number, so that it stays with the row while that is removed and restored.
class RowSorter : public QObject
{
    Q_OBJECT

public:
    explicit RowSorter(AttributeTable *table);

    /// Gives the row of this name item, which is in no table, the next arrival number. A row without a number gets one
    /// when it is first moved, after all rows that have one.
    void numberRow(QTableWidgetItem *name);
    /// Returns for each row of the order of arrival the row where it is now.
    QVector<int> orderOfArrival() const;

    /// Puts the rows into the order that the header shows.
    void sort();
    /// Does the same if the rows are sorted by a column; otherwise does nothing.
    void sortIfByColumn();
    /// Must be called after rows that had been taken out were appended again. Moves them to their former rows, which
    /// are in ascending order, and sorts the table unless valuesChanged() has hidden the arrow.
    void moveRestoredRows(const QVector<int> &formerRows);
    /// Must be called after values have changed. If the rows are no longer in the order that the header shows, hides
    /// its arrow: a row must not move away while the user edits the column.
    void valuesChanged();

Q_SIGNALS:
    /// Emitted after rows have moved.
    void sorted();

private:
    void cycleColumn(int column);
    void numberNewRows();
    QString textOf(int row) const;
    void moveRows(const QVector<int> &order);

    AttributeTable *m_table;
    RowOrder m_order;
    qint64 m_nextNumber = 0;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
