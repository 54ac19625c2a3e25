#ifndef TVX_CHOSEN_ROWS_H
#define TVX_CHOSEN_ROWS_H

#include <QHash>
#include <QTableWidgetItem>
#include <QVector>

#include <memory>
#include <vector>

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// A row outside of the table: its two items, and the row where they were, -1 if they are new.
struct ChosenRow {
    std::unique_ptr<QTableWidgetItem> name;
    std::unique_ptr<QTableWidgetItem> value;
    int formerRow;
};

/// Appends whole rows to the chosen table, takes them out, restores and selects them. Owned by the table. Does not
/// decide which rows, and calls no hook.
class ChosenRows
{
public:
    explicit ChosenRows(AttributeTable *table);

    /// Appends new rows, then re-sorts.
    void append(std::vector<ChosenRow> rows);
    /// Takes out rows, which are in ascending order. Returns them in the same order.
    std::vector<ChosenRow> take(const QVector<int> &rows);
    /// Inserts rows that take() has returned, in ascending order of their former rows, at the positions that
    /// RowSorter::moveRestoredRows() gives them.
    void restore(std::vector<ChosenRow> rows);
    /// Exchanges the value item of a row for another one. Emits no signal of the model, as a commit does not.
    void exchangeValue(int row, std::unique_ptr<QTableWidgetItem> *value);
    /// Returns the row of each name item.
    QHash<const QTableWidgetItem *, int> rowOfNames() const;
    /// Selects the rows of these value items only, makes the first of them current and scrolls to the last. Does
    /// nothing without an item.
    void select(const QVector<QTableWidgetItem *> &values);

private:
    void insertAtEnd(std::vector<ChosenRow> rows);
    void removeRows(const QVector<int> &rows);
    void refreshItemPositions(int firstRow);

    AttributeTable *m_table;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
