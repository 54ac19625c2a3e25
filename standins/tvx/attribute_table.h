#ifndef TVX_ATTRIBUTE_TABLE_H
#define TVX_ATTRIBUTE_TABLE_H

#include "tvx/row_order.h"

#include <QElapsedTimer>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVector>

namespace Zudunmaf
{
namespace tvx
{

/// A table of attributes, one a row: the name in column 0, the condition or value in column 1. What the two
/// tables of the dialog have in common: their looks, working by rows, ignoring hidden rows, order by a click
/// on a header, and dragging rows out.
///
/// Numbers are read and written in the C locale, without group signs, as the cells and the host's lines show
/// them.
class AttributeTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { NameColumn = 0, ValueColumn = 1, ColumnCount = 2 };
    /// What the delegates of both tables add to the height of a line.
    static constexpr int DelegateMargin = 4;

    explicit AttributeTable(QWidget *parent);

    /// The text in the middle of the table while no row is to be seen.
    void setEmptyText(const QString &text);
    /// That text while it is to be seen, else an empty one.
    QString shownEmptyText() const;

    /// The media type that drags of this table carry, and the one that it takes. The data is the address of
    /// the window as a decimal number: rows stay in their dialog.
    void setDragTypes(const QString &own, const QString &accepted);

    int visibleRowCount() const;
    bool hasVisibleSelection() const;
    /// The numbers of the selected rows that are not hidden, ascending.
    QVector<int> selectedVisibleRows() const;
    /// The item that stands for a row: that of column 1. Null out of range.
    QTableWidgetItem *rowItem(int row) const { return item(row, ValueColumn); }
    /// The items that stand for the rows, in row order.
    QList<QTableWidgetItem *> rowItems(bool visibleOnly) const;

    /// The first visible row from this one on, in steps of 1 or -1; -1 if there is none.
    int nextVisibleRow(int row, int step) const;

    /// Makes the row current and the only one selected; out of range, no row is.
    void makeRowCurrent(int row);

    /// Width of the name column, as far as the other one leaves it that much; the other has the rest.
    void setNameWidth(int width);
    /// The width that the value column keeps while the table is wide enough for it.
    void setMinimumValueWidth(int width);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;
    /// Goes to the next visible row whose name begins with what was typed, this text included.
    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    /// Rows of the other table were dropped here.
    void rowsDropped();
    /// The user has changed the width of the name column.
    void nameWidthChanged(int width);

protected:
    /// While one lives, the rows may be set without a signal to anyone; afterwards the table is painted anew.
    class SilentChange
    {
    public:
        explicit SilentChange(AttributeTable *table);
        ~SilentChange();

    private:
        Q_DISABLE_COPY(SilentChange)
        AttributeTable *m_table;
        QSignalBlocker m_blocker;
    };

    /// Takes the height of a row from the delegate, once for all rows.
    void fixRowHeight();
    /// While an editor needs more than the minimum, the value column keeps this width; 0 for no editor.
    void setEditorWidth(int width);
    /// Hides or shows a row without the look-up that makes a pass over all rows quadratic.
    void setRowShown(int row, bool shown);
    /// Lets the items from this row on know their places again, after rows above them have come or gone. An
    /// item that was moved is found by a search through the table each time that it is asked for its column.
    void renewPlaces(int first);
    /// Called after the rows have changed places.
    virtual void rowsReordered() {}
    /// Brings the rows into the order that the header shows.
    void reorder();
    /// The same where that is not the order in which they came.
    void restoreOrder();
    RowOrder &rowOrder() { return m_order; }

    bool viewportEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setUpHeaders();
    void alignHeader();
    void sortByClick(int column);
    void placeRows(const QVector<int> &order);
    QSize sizeForRows(int rows) const;
    int boundedNameWidth(int width) const;
    void applyNameWidth();
    void copySelectedRows() const;
    QString copyLine(int row) const;
    bool showElidedText(const QPoint &position, const QPoint &globalPosition);
    bool takes(const QDropEvent *event) const;

    QString m_emptyText;
    QString m_ownDragType;
    QString m_acceptedDragType;
    RowOrder m_order;
    int m_nameWidth = 0;
    int m_minimumValueWidth = 0;
    int m_editorWidth = 0;
    bool m_applyingWidth = false;
    QString m_typed;
    QElapsedTimer m_sinceTyped;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
