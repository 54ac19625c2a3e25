#include "tvx/available_table.h"

#include "gdm/items/attr_roles.h"
#include "tvx/batch_update.h"
#include "tvx/match_highlight_delegate.h"
#include "tvx/row_sorter.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

constexpr int WidthSample = 64;

} // namespace

AvailableTable::AvailableTable(QWidget *parent)
    : AttributeTable(parent, CellHints::Available)
    , m_delegate(new MatchHighlightDelegate(this))
    , m_deferredSelection(selectionModel())
{
    setItemDelegate(m_delegate);
    connect(sorter(), &RowSorter::sorted, this, [this] { m_cache.reset(rowItems(false)); });
    connect(this, &QTableWidget::doubleClicked, this, &AvailableTable::rowsActivated);
    m_rowsTimer.setSingleShot(true);
    connect(&m_rowsTimer, &QTimer::timeout, this, &AvailableTable::rowsHiddenOrShown);
}

void AvailableTable::beginBatchUpdate()
{
    if (m_batchUpdates++ > 0)
        return;
    viewport()->setUpdatesEnabled(false);
    // Otherwise the header looks up a position for each row that is hidden or shown, and a pass takes quadratic time.
    verticalHeader()->setUpdatesEnabled(false);
    m_deferredSelection.remember();
}

void AvailableTable::endBatchUpdate()
{
    if (--m_batchUpdates > 0)
        return;
    verticalHeader()->setUpdatesEnabled(true);
    if (std::exchange(m_haveRowsChanged, false))
        updateGeometries();
    viewport()->setUpdatesEnabled(true);
    m_deferredSelection.emitChanges();
}

void AvailableTable::fill(const QList<QTableWidgetItem *> &items)
{
    const QTableWidgetItem *current = rowItem(currentRow());
    const QString name = current ? current->data(DmlAttrNameRole).toString() : QString();
    const int scrolled = verticalScrollBar()->value();
    const BatchUpdate batch(this);

    ++m_fillCount;
    // The items are deleted below, and slots can ask for them before insertClones().
    m_cache.reset({});
    // Rows that are reused would stay hidden.
    setRowCount(0);
    insertClones(items);
    updateRowHeight();
    sorter()->sortIfByColumn();

    const QTableWidgetItem *found = name.isNull() ? nullptr : findByName(name);
    const bool autoScroll = hasAutoScroll();
    setAutoScroll(!found);
    makeRowCurrent(found ? found->row() : 0);
    setAutoScroll(autoScroll);
    m_deferredSelection.remember();
    if (found)
        verticalScrollBar()->setValue(scrolled);
}

void AvailableTable::insertClones(const QList<QTableWidgetItem *> &items)
{
    setRowCount(static_cast<int>(items.size()));
    const QSignalBlocker blocker(model());
    QList<QTableWidgetItem *> values;
    values.reserve(items.size());
    int row = 0;
    for (const QTableWidgetItem *item : items) {
        setItem(row, NameColumn, item->clone());
        values.append(item->clone());
        setItem(row++, ValueColumn, values.constLast());
    }
    m_cache.reset(values);
    viewport()->update();
}

void AvailableTable::setRowVisible(int row, bool visible)
{
    if (row < 0 || row >= rowCount())
        return;
    if (m_batchUpdates > 0) {
        // Blocks the header's signals: otherwise the view queues every section and repaints after the batch update.
        const QSignalBlocker blocker(verticalHeader());
        setRowShown(row, visible);
        m_haveRowsChanged = true;
    } else {
        setRowShown(row, visible);
        if (!m_rowsTimer.isActive())
            m_rowsTimer.start();
    }
    if (visible)
        m_cache.rowShown(row);
}

void AvailableTable::makeFirstVisibleRowCurrent()
{
    makeCurrent(m_cache.firstVisibleRow(*this));
}

void AvailableTable::makeItemCurrent(const QTableWidgetItem *item)
{
    if (item && item->tableWidget() == this)
        makeCurrent(item->row());
}

void AvailableTable::makeCurrent(int row)
{
    // Otherwise the view looks up the position of each row that becomes current, which is a pass over the rows itself.
    const QSignalBlocker blocker(m_batchUpdates > 0 ? selectionModel() : nullptr);
    makeRowCurrent(row);
}

void AvailableTable::setHighlightedText(const QString &text)
{
    m_delegate->setSearchedText(text);
    viewport()->update();
}

int AvailableTable::wantedNameWidth() const
{
    QString longest;
    const int step = std::max(1, rowCount() / WidthSample);
    for (int row = 0; row < rowCount(); row += step) {
        const QString text = item(row, NameColumn)->text();
        if (text.size() > longest.size())
            longest = text;
    }
    return fontMetrics().horizontalAdvance(longest) + 2 * fontMetrics().height();
}

void AvailableTable::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        AttributeTable::keyPressEvent(event);
    else if (!event->isAutoRepeat() && visibleRowCount() > 0)
        Q_EMIT rowsActivated();
    else if (!event->isAutoRepeat())
        Q_EMIT enteredWithoutRows();
}

/// QAbstractItemView takes two clicks of any button for a double-click.
void AvailableTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        AttributeTable::mouseDoubleClickEvent(event);
    else
        mousePressEvent(event);
}

} // namespace tvx
} // namespace Zudunmaf
