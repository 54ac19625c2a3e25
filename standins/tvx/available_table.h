#ifndef TVX_AVAILABLE_TABLE_H
#define TVX_AVAILABLE_TABLE_H

#include "tvx/attribute_table.h"
#include "tvx/deferred_selection.h"
#include "tvx/row_cache.h"

#include <QTimer>

namespace Zudunmaf
{
namespace tvx
{

class BatchUpdate;
class MatchHighlightDelegate;

/// The available attributes: the contract's top view. fill() inserts all rows at once; after that, rows are only
/// hidden, shown and sorted. Does not decide which rows are visible.
class AvailableTable : public AttributeTable
{
    Q_OBJECT

public:
    explicit AvailableTable(QWidget *parent);

    /// Replaces the rows by two clones of each item, all visible. The current attribute stays current, without
    /// scrolling, if it is among them; else the first row becomes current.
    void fill(const QList<QTableWidgetItem *> &items);
    /// Returns how often fill() was called. Each call deletes the items of the table.
    int fillCount() const { return m_fillCount; }
    /// Returns the value items of all rows, hidden ones included, in row order.
    QList<QTableWidgetItem *> allItems() const { return m_cache.items(); }
    /// Returns the value item of the attribute with this internal name, the first of several; null if there is none.
    QTableWidgetItem *findByName(const QString &name) { return m_cache.findByName(name); }

    /// Hides or shows a row. Does nothing if it is out of range.
    void setRowVisible(int row, bool visible);
    /// Makes the first visible row current and the only selected one; without a visible row, none is. Takes effect at
    /// once, while a batch update defers the signals.
    void makeFirstVisibleRowCurrent();
    /// Does the same for the row of an item. Does nothing if the item is not in this table.
    void makeItemCurrent(const QTableWidgetItem *item);

    /// Highlights what this text, a pattern with wildcards, matches in the names.
    void setHighlightedText(const QString &text);
    /// Returns a width that fits the names, estimated from a sample of the rows.
    int wantedNameWidth() const;

Q_SIGNALS:
    /// Emitted when Enter is pressed or a row double-clicked.
    void rowsActivated();
    /// Emitted when Enter is pressed while no row is visible.
    void enteredWithoutRows();
    /// Emitted when rows were hidden or shown outside of a batch update: once for all of them, from the event loop.
    void rowsHiddenOrShown();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    friend class BatchUpdate;

    void beginBatchUpdate();
    void endBatchUpdate();
    void insertClones(const QList<QTableWidgetItem *> &items);
    void makeCurrent(int row);

    MatchHighlightDelegate *m_delegate;
    RowCache m_cache;
    int m_fillCount = 0;
    int m_batchUpdates = 0;
    /// Rows were hidden or shown in the present batch update.
    bool m_haveRowsChanged = false;
    DeferredSelection m_deferredSelection;
    /// Delays rowsHiddenOrShown() to the event loop.
    QTimer m_rowsTimer;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
