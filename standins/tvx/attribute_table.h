#ifndef TVX_ATTRIBUTE_TABLE_H
#define TVX_ATTRIBUTE_TABLE_H

#include "tvx/cell_hints.h"
#include "tvx/empty_table_text.h"
#include "tvx/type_ahead.h"

#include <QTableWidget>
#include <QTimer>
#include <QVector>

namespace Zudunmaf
{
namespace tvx
{

class NameColumnWidth;
class RowDrag;
class RowSorter;

/// What the two tables of the dialog share: their appearance and work by rows, ignoring hidden ones. Each row is an
/// attribute, with its name in column 0 and its condition or value in column 1.
///
/// Owns the helpers for the width of the name column, sorting, dragging, tool tips of elided cells, hints, the text of
/// an empty table and type-ahead. Uses the C locale without group separators, so that editors read and write numbers as
/// cells and result lines do.
class AttributeTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { NameColumn = 0, ValueColumn = 1, ColumnCount = 2 };
    /// The height that the delegates of both tables add to that of a line of text.
    static constexpr int DelegateMargin = 4;

    AttributeTable(QWidget *parent, CellHints::Kind hints);

    /// The text that the table shows while it has no visible row.
    EmptyTableText &emptyText() { return m_emptyText; }
    const EmptyTableText &emptyText() const { return m_emptyText; }
    CellHints &hints() { return m_hints; }
    const CellHints &hints() const { return m_hints; }
    NameColumnWidth *nameColumnWidth() const { return m_nameColumnWidth; }
    RowSorter *sorter() const { return m_sorter; }
    /// Returns the colours and the state that the cells are painted with.
    QStyleOptionViewItem cellOption() const;

    int visibleRowCount() const;
    /// Returns true if the user can see and select the row. A row that the host has disabled can still become current.
    bool isUsable(int row) const;
    /// Returns true if selectedVisibleRows() is not empty.
    bool hasVisibleSelection() const;
    /// Returns the selected rows that are neither hidden nor disabled, in ascending order.
    QVector<int> selectedVisibleRows() const;
    /// Returns the value item of a row; null if the row is out of range.
    QTableWidgetItem *rowItem(int row) const { return item(row, ValueColumn); }
    /// Returns the value items of the rows, in row order.
    QList<QTableWidgetItem *> rowItems(bool visibleOnly) const;
    /// Returns the first visible row from `row` on, in steps of 1 or -1; -1 if there is none.
    int nextVisibleRow(int row, int step) const;

    /// Makes the row current and the only selected one. If it is out of range, no row is current or selected.
    void makeRowCurrent(int row);
    /// Selects these rows, which are in ascending order, and no others.
    void selectRows(const QVector<int> &rows);
    /// Hides or shows a row. In contrast to setRowHidden(), a pass over all rows takes linear time.
    void setRowShown(int row, bool shown);
    /// Sets the height of all rows to that which the delegate wants for the first one.
    void updateRowHeight();

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;
    /// Selects the next visible row whose name begins with the letters that were typed.
    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    /// Emitted when rows of the other table were dropped on this one.
    void rowsDropped();
    /// Emitted when the view has placed its open editor again.
    void editorsPlaced();

protected:
    /// Mutes the selection while the keyboard is elsewhere: only one table can have it.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QStyleOptionViewItem viewOptions() const override;
#else
    void initViewItemOption(QStyleOptionViewItem *option) const override;
#endif
    void updateEditorGeometries() override;
    void changeEvent(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    bool hasKeyboard() const;
    void setUpHeaders();
    void alignHeader();
    QSize sizeForRows(int rows) const;
    void copySelectedRows() const;
    QString copyLine(int row) const;

    CellHints m_hints;
    /// Fires when the event that gave the table the focus is over.
    QTimer m_afterFocus;
    EmptyTableText m_emptyText;
    TypeAhead m_typeAhead;
    NameColumnWidth *m_nameColumnWidth;
    RowSorter *m_sorter;
    RowDrag *m_drag;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
