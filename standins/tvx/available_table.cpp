#include "tvx/available_table.h"

#include "gdm/items/attr_roles.h"
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

AvailableTable::Pass::Pass(AvailableTable *table)
    : m_table(table)
{
    if (m_table->m_passes++ > 0)
        return;
    m_table->setUpdatesEnabled(false);
    m_table->verticalHeader()->setUpdatesEnabled(false);
    m_table->rememberAnnounced();
}

AvailableTable::Pass::~Pass()
{
    if (--m_table->m_passes > 0)
        return;
    m_table->verticalHeader()->setUpdatesEnabled(true);
    if (std::exchange(m_table->m_rowsChanged, false))
        m_table->updateGeometries();
    m_table->setUpdatesEnabled(true);
    m_table->announceCurrentRow();
}

AvailableTable::AvailableTable(QWidget *parent)
    : AttributeTable(parent)
    , m_delegate(new MatchHighlightDelegate(this))
{
    setItemDelegate(m_delegate);
    connect(sorter(), &RowSorter::sorted, this, &AvailableTable::rereadRows);
    connect(this, &QTableWidget::doubleClicked, this, &AvailableTable::rowsActivated);
    m_announcement.setSingleShot(true);
    connect(&m_announcement, &QTimer::timeout, this, &AvailableTable::rowsHiddenOrShown);
}

void AvailableTable::fill(const QList<QTableWidgetItem *> &items)
{
    const QTableWidgetItem *current = rowItem(currentRow());
    const QString name = current ? current->data(DmlAttrNameRole).toString() : QString();
    const int scrolled = verticalScrollBar()->value();
    const Pass pass(this);

    ++m_fills;
    // Rows that are used again would stay hidden.
    setRowCount(0);
    sorter()->order().rowsReplaced();
    insertClones(items);
    updateRowHeight();
    sorter()->sortIfByColumn();

    const QTableWidgetItem *found = name.isNull() ? nullptr : findByName(name);
    const bool autoScroll = hasAutoScroll();
    setAutoScroll(!found);
    makeRowCurrent(found ? found->row() : 0);
    setAutoScroll(autoScroll);
    rememberAnnounced();
    if (found)
        verticalScrollBar()->setValue(scrolled);
}

void AvailableTable::insertClones(const QList<QTableWidgetItem *> &items)
{
    setRowCount(static_cast<int>(items.size()));
    const QSignalBlocker blocker(model());
    int row = 0;
    m_items.clear();
    for (const QTableWidgetItem *item : items) {
        setItem(row, NameColumn, item->clone());
        m_items.append(item->clone());
        setItem(row++, ValueColumn, m_items.constLast());
    }
    forgetRowNumbers();
    viewport()->update();
}

void AvailableTable::setRowVisible(int row, bool visible)
{
    if (row < 0 || row >= m_items.size())
        return;
    if (m_passes > 0) {
        // Told of each row, the view would keep a list of them, and paint a second time after the end of the pass.
        const QSignalBlocker blocker(verticalHeader());
        setRowShown(row, visible);
        m_rowsChanged = true;
    } else {
        setRowShown(row, visible);
        if (!m_announcement.isActive())
            m_announcement.start();
    }
    if (visible)
        m_firstVisibleBound = std::min(m_firstVisibleBound, row);
}

int AvailableTable::firstVisibleRow()
{
    const int row = nextVisibleRow(m_firstVisibleBound, 1);
    m_firstVisibleBound = row < 0 ? rowCount() : row;
    return row;
}

void AvailableTable::makeFirstVisibleRowCurrent()
{
    requestRow(firstVisibleRow());
}

void AvailableTable::makeItemCurrent(const QTableWidgetItem *item)
{
    if (item && item->tableWidget() == this)
        requestRow(item->row());
}

void AvailableTable::requestRow(int row)
{
    // In a pass, the view would look up the position of each row that becomes current, a pass over the rows by itself.
    const QSignalBlocker blocker(m_passes > 0 ? selectionModel() : nullptr);
    makeRowCurrent(row);
}

void AvailableTable::rememberAnnounced()
{
    m_announcedCurrent = currentIndex();
    m_announcedSelection = selectionModel()->selection();
}

/// Restores without a signal what was current and selected before the pass, and then sets what is so now with signals.
void AvailableTable::announceCurrentRow()
{
    const QModelIndex current = currentIndex();
    const QItemSelection selection = selectionModel()->selection();
    if (current == m_announcedCurrent && selection == m_announcedSelection)
        return;
    const auto set = [this](const QModelIndex &index, const QItemSelection &rows) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    };
    {
        const QSignalBlocker blocker(selectionModel());
        set(m_announcedCurrent, m_announcedSelection);
    }
    set(current, selection);
}

QTableWidgetItem *AvailableTable::findByName(const QString &name)
{
    if (!m_namesKnown) {
        m_rowOfName.reserve(rowCount());
        for (int row = rowCount() - 1; row >= 0; --row)
            m_rowOfName.insert(rowItem(row)->data(DmlAttrNameRole).toString(), row);
        m_namesKnown = true;
    }
    return rowItem(m_rowOfName.value(name, -1));
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
    else if (!event->isAutoRepeat())
        Q_EMIT rowsActivated();
}

/// The view takes two clicks of any button for a double-click.
void AvailableTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        AttributeTable::mouseDoubleClickEvent(event);
    else
        mousePressEvent(event);
}

void AvailableTable::rereadRows()
{
    m_items = rowItems(false);
    forgetRowNumbers();
}

QList<QTableWidgetItem *> AvailableTable::allItems() const
{
    return m_items;
}

void AvailableTable::forgetRowNumbers()
{
    m_rowOfName.clear();
    m_namesKnown = false;
    m_firstVisibleBound = 0;
}

} // namespace tvx
} // namespace Zudunmaf
