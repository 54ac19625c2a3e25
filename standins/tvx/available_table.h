#ifndef TVX_AVAILABLE_TABLE_H
#define TVX_AVAILABLE_TABLE_H

#include "tvx/attribute_table.h"

#include <QHash>
#include <QItemSelection>
#include <QPersistentModelIndex>
#include <QTimer>

namespace Zudunmaf
{
namespace tvx
{

class MatchHighlightDelegate;

/// The attributes on offer. Rows come all at once, by fill(), and are then only hidden and shown.
class AvailableTable : public AttributeTable
{
    Q_OBJECT

public:
    /// Brackets anything that hides, shows or makes current many rows: until the outermost one ends, nothing is painted,
    /// and nothing is signalled of the rows that become current; at the end, the last of them is.
    class Pass
    {
    public:
        explicit Pass(AvailableTable *table);
        ~Pass();

    private:
        Q_DISABLE_COPY(Pass)
        AvailableTable *m_table;
    };

    explicit AvailableTable(QWidget *parent);

    /// Replaces the rows by two clones of each item, all visible. The current attribute stays current where
    /// it is among them, without scrolling; else the first row is.
    void fill(const QList<QTableWidgetItem *> &items);
    /// How often fill() was called: an item that was asked for before the last time is gone.
    int fillCount() const { return m_fills; }
    /// The items that stand for the rows, hidden ones too, in row order.
    QList<QTableWidgetItem *> allItems() const;
    /// Shows or hides a row; out of range, nothing happens.
    void setRowVisible(int row, bool visible);
    /// Makes the first visible row current and the only one selected; without one, no row is. Takes effect at once.
    void makeFirstVisibleRowCurrent();
    /// The same for the row of an item of this table; does nothing for any other item.
    void makeItemCurrent(const QTableWidgetItem *item);
    /// The item of the row with this internal name, the first of several; null if there is none.
    QTableWidgetItem *findByName(const QString &name);
    /// Marks what this text, in which wildcards count, matches in the names.
    void setHighlightedText(const QString &text);
    /// A width that holds the names, measured on a sample of the rows.
    int wantedNameWidth() const;

Q_SIGNALS:
    /// Enter was pressed, or a row clicked twice.
    void rowsActivated();
    /// Rows were hidden or shown outside of any pass. Comes once for all of them, from the event loop.
    void rowsHiddenOrShown();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void insertClones(const QList<QTableWidgetItem *> &items);
    void rereadRows();
    void forgetRowNumbers();
    int firstVisibleRow();
    void requestRow(int row);
    void rememberAnnounced();
    void announceCurrentRow();

    MatchHighlightDelegate *m_delegate;
    /// Kept, since every key in the filter asks for it.
    QList<QTableWidgetItem *> m_items;
    QHash<QString, int> m_rowOfName;
    bool m_namesKnown = false;
    /// No row before this one is visible.
    int m_firstVisibleBound = 0;
    int m_passes = 0;
    /// Rows were hidden or shown in the present pass.
    bool m_rowsChanged = false;
    int m_fills = 0;
    /// Waits for the event loop, so that many rows are announced at once.
    QTimer m_announcement;
    /// What the view and its listeners have been told is current and selected.
    QPersistentModelIndex m_announcedCurrent;
    QItemSelection m_announcedSelection;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
