#include "tvx/attribute_table.h"

#include "gdm/items/attr_roles.h"
#include "tvx/elided_cell_tip.h"
#include "tvx/muted_selection.h"
#include "tvx/name_column_width.h"
#include "tvx/row_drag.h"
#include "tvx/row_sorter.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

constexpr int MinimumRows = 4;
constexpr int MinimumCharacters = 20;

QLocale plainNumbers()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

} // namespace

AttributeTable::AttributeTable(QWidget *parent, CellHints::Kind hints)
    : QTableWidget(0, ColumnCount, parent)
    , m_hints(this, hints)
    , m_emptyText(this)
    , m_nameColumnWidth(new NameColumnWidth(this))
    , m_sorter(new RowSorter(this))
    , m_drag(new RowDrag(this))
{
    setLocale(plainNumbers());
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    // Long names often differ only at the end.
    setTextElideMode(Qt::ElideMiddle);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
    m_afterFocus.setSingleShot(true);
    connect(&m_afterFocus, &QTimer::timeout, this, [this] { m_hints.announceCurrentRow(); });
    setUpHeaders();
    new ElidedCellTip(this);
    connect(m_drag, &RowDrag::rowsDropped, this, &AttributeTable::rowsDropped);
}

void AttributeTable::setUpHeaders()
{
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    updateRowHeight();

    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    header->setStretchLastSection(true);
    alignHeader();
    // The view would select a whole column at a press on its header, which sorts here.
    disconnect(header, &QHeaderView::sectionPressed, this, nullptr);
    disconnect(header, &QHeaderView::sectionEntered, this, nullptr);
}

/// QHeaderView does not mirror its default alignment.
void AttributeTable::alignHeader()
{
    horizontalHeader()->setDefaultAlignment(
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter));
}

int AttributeTable::visibleRowCount() const
{
    return rowCount() - verticalHeader()->hiddenSectionCount();
}

bool AttributeTable::isUsable(int row) const
{
    const Qt::ItemFlags needed = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const auto isEnabled = [this, row, needed](int column) {
        return (model()->flags(model()->index(row, column)) & needed) == needed;
    };
    // A host has the value items only.
    return !isRowHidden(row) && isEnabled(NameColumn) && isEnabled(ValueColumn);
}

bool AttributeTable::hasVisibleSelection() const
{
    const QItemSelection selection = selectionModel()->selection();
    return std::any_of(selection.begin(), selection.end(), [this](const QItemSelectionRange &range) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (isUsable(row))
                return true;
        }
        return false;
    });
}

QVector<int> AttributeTable::selectedVisibleRows() const
{
    QVector<int> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (isUsable(row))
                rows.append(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.resize(static_cast<int>(std::unique(rows.begin(), rows.end()) - rows.begin()));
    return rows;
}

QList<QTableWidgetItem *> AttributeTable::rowItems(bool visibleOnly) const
{
    QList<QTableWidgetItem *> items;
    const int rows = rowCount();
    items.reserve(rows);
    for (int row = 0; row < rows; ++row) {
        QTableWidgetItem *item = rowItem(row);
        if (item && !(visibleOnly && isRowHidden(row)))
            items.append(item);
    }
    return items;
}

void AttributeTable::makeRowCurrent(int row)
{
    if (row >= 0 && row < rowCount()) {
        setCurrentCell(row, NameColumn, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        clearSelection();
        setCurrentItem(nullptr);
    }
}

void AttributeTable::selectRows(const QVector<int> &rows)
{
    // Adjacent rows form one range: the cost of a selection grows with the square of its ranges.
    QItemSelection selection;
    for (int first = 0; first < rows.size();) {
        int last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        selection.select(model()->index(rows[first], NameColumn), model()->index(rows[last], ValueColumn));
        first = last + 1;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QSize AttributeTable::sizeForRows(int rows) const
{
    // A splitter asks dozens of times while a dialog opens, and the hints of QTableView measure the header and the
    // scroll bars each time. The header is about as high as a row.
    return QSize(MinimumCharacters * fontMetrics().averageCharWidth(),
                 (rows + 1) * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
}

QSize AttributeTable::minimumSizeHint() const
{
    return sizeForRows(MinimumRows);
}

QSize AttributeTable::sizeHint() const
{
    return sizeForRows(3 * MinimumRows);
}

void AttributeTable::keyboardSearch(const QString &search)
{
    const int row = m_typeAhead.rowFor(search, *this);
    if (row >= 0)
        makeRowCurrent(row);
}

int AttributeTable::nextVisibleRow(int row, int step) const
{
    while (row >= 0 && row < rowCount() && isRowHidden(row))
        row += step;
    return row < rowCount() ? row : -1;
}

void AttributeTable::updateRowHeight()
{
    // Without a row there is no size hint, and the style's default height differs much from that of a later row.
    const int height = rowCount() > 0 ? sizeHintForRow(0) : fontMetrics().height() + DelegateMargin;
    if (height <= 0)
        return;
    QHeaderView *header = verticalHeader();
    header->setDefaultSectionSize(height);
    // The call above skips hidden rows, which would keep their old height when shown.
    for (int row = 0; header->sectionsHidden() && row < rowCount(); ++row) {
        if (isRowHidden(row))
            header->resizeSection(row, height);
    }
    updateGeometry();
}

void AttributeTable::setRowShown(int row, bool shown)
{
    QHeaderView *header = verticalHeader();
    const bool updates = header->updatesEnabled();
    if (updates)
        header->setUpdatesEnabled(false);
    setRowHidden(row, !shown);
    if (updates)
        header->setUpdatesEnabled(true);
}

/// Returns true if the table or an editor in it has the keyboard, also while a menu or popup is open.
bool AttributeTable::hasKeyboard() const
{
    const QWidget *focus = window()->focusWidget();
    return focus && (focus == this || isAncestorOf(focus));
}

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
QStyleOptionViewItem AttributeTable::viewOptions() const
{
    QStyleOptionViewItem option = QTableWidget::viewOptions();
    if (!hasKeyboard())
        muteSelection(&option);
    return option;
}

QStyleOptionViewItem AttributeTable::cellOption() const
{
    return viewOptions();
}
#else
void AttributeTable::initViewItemOption(QStyleOptionViewItem *option) const
{
    QTableWidget::initViewItemOption(option);
    if (!hasKeyboard())
        muteSelection(option);
}

QStyleOptionViewItem AttributeTable::cellOption() const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    return option;
}
#endif

void AttributeTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateRowHeight();
    else if (event->type() == QEvent::LayoutDirectionChange)
        alignHeader();
}

void AttributeTable::updateEditorGeometries()
{
    QTableWidget::updateEditorGeometries();
    Q_EMIT editorsPlaced();
}

void AttributeTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    // The view tells a screen reader of the new row, which may not have been painted yet.
    m_hints.updateSpokenText(current.row());
    QTableWidget::currentChanged(current, previous);
}

void AttributeTable::focusInEvent(QFocusEvent *event)
{
    QTableWidget::focusInEvent(event);
    // After QWidget::setFocus() has announced the table.
    m_afterFocus.start();
}

void AttributeTable::keyPressEvent(QKeyEvent *event)
{
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (event->matches(QKeySequence::Copy)) {
        copySelectedRows();
    } else if (plain && (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)) {
        // The view would move to the first and last cell of the current row.
        makeRowCurrent(event->key() == Qt::Key_Home ? nextVisibleRow(0, 1)
                                                    : nextVisibleRow(rowCount() - 1, -1));
    } else {
        QTableWidget::keyPressEvent(event);
    }
}

void AttributeTable::copySelectedRows() const
{
    QStringList lines;
    const QVector<int> rows = selectedVisibleRows();
    lines.reserve(rows.size());
    for (int row : rows)
        lines.append(copyLine(row));
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

QString AttributeTable::copyLine(int row) const
{
    const QTableWidgetItem *value = rowItem(row);
    const QString line = value ? value->data(DmlAttrFilterTextRole).toString() : QString();
    if (!line.isEmpty())
        return line;
    const QTableWidgetItem *name = item(row, NameColumn);
    return (name ? name->text() : QString()) + QLatin1Char('\t') + (value ? value->text() : QString());
}

void AttributeTable::paintEvent(QPaintEvent *event)
{
    QTableWidget::paintEvent(event);
    m_hints.paint();
    m_emptyText.paint();
}

void AttributeTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    m_nameColumnWidth->apply();
    m_emptyText.place();
}

void AttributeTable::startDrag(Qt::DropActions)
{
    if (hasVisibleSelection())
        m_drag->start();
}

} // namespace tvx
} // namespace Zudunmaf
