#include "tvx/attribute_table.h"

#include "gdm/items/attr_roles.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLocale>
#include <QMimeData>
#include <QPainter>
#include <QToolTip>

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

QByteArray windowMark(const QWidget *widget)
{
    return QByteArray::number(reinterpret_cast<quintptr>(widget->window()));
}

} // namespace

AttributeTable::SilentChange::SilentChange(AttributeTable *table)
    : m_table(table)
    , m_blocker(table->model())
{
}

AttributeTable::SilentChange::~SilentChange()
{
    m_table->viewport()->update();
}

AttributeTable::AttributeTable(QWidget *parent)
    : QTableWidget(0, ColumnCount, parent)
{
    setLocale(plainNumbers());
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
    setUpHeaders();
}

void AttributeTable::setUpHeaders()
{
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    fixRowHeight();

    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    header->setStretchLastSection(true);
    alignHeader();
    // The view selects a whole column at a press on its header; here the press sorts.
    disconnect(header, &QHeaderView::sectionPressed, this, nullptr);
    disconnect(header, &QHeaderView::sectionEntered, this, nullptr);
    connect(header, &QHeaderView::sectionClicked, this, &AttributeTable::sortByClick);
    connect(header, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (column != NameColumn || m_applyingWidth)
            return;
        setNameWidth(boundedNameWidth(width));
        Q_EMIT nameWidthChanged(m_nameWidth);
    });
}

/// The header itself takes no notice of the direction of the layout.
void AttributeTable::alignHeader()
{
    horizontalHeader()->setDefaultAlignment(
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter));
}

void AttributeTable::setEmptyText(const QString &text)
{
    if (text == m_emptyText)
        return;
    m_emptyText = text;
    viewport()->update();
}

QString AttributeTable::shownEmptyText() const
{
    return visibleRowCount() > 0 ? QString() : m_emptyText;
}

void AttributeTable::setDragTypes(const QString &own, const QString &accepted)
{
    m_ownDragType = own;
    m_acceptedDragType = accepted;
}

int AttributeTable::visibleRowCount() const
{
    return rowCount() - verticalHeader()->hiddenSectionCount();
}

bool AttributeTable::hasVisibleSelection() const
{
    const QItemSelection selection = selectionModel()->selection();
    return std::any_of(selection.begin(), selection.end(), [this](const QItemSelectionRange &range) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (!isRowHidden(row))
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
            if (!isRowHidden(row))
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

void AttributeTable::setNameWidth(int width)
{
    m_nameWidth = width;
    applyNameWidth();
}

void AttributeTable::setMinimumValueWidth(int width)
{
    m_minimumValueWidth = width;
    applyNameWidth();
}

void AttributeTable::setEditorWidth(int width)
{
    m_editorWidth = width;
    applyNameWidth();
}

int AttributeTable::boundedNameWidth(int width) const
{
    // Not the viewport's, so that a scroll bar of one table leaves the columns of both in one line.
    const int available = this->width();
    const int left = available - std::max(m_minimumValueWidth, m_editorWidth);
    const int narrowest = available / 4;
    return std::clamp(width, narrowest, std::max(narrowest, std::min(available * 6 / 10, left)));
}

void AttributeTable::applyNameWidth()
{
    m_applyingWidth = true;
    horizontalHeader()->resizeSection(NameColumn, boundedNameWidth(m_nameWidth));
    m_applyingWidth = false;
}

QSize AttributeTable::sizeForRows(int rows) const
{
    // A splitter asks dozens of times while a dialog opens, and Qt's own hints measure the header and the scroll bars
    // each time. The header is about as high as a row.
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
    const bool goesOn =
        m_sinceTyped.isValid() && !m_sinceTyped.hasExpired(QApplication::keyboardInputInterval());
    m_sinceTyped.start();
    m_typed = goesOn ? m_typed + search : search;
    // One letter again and again walks the rows; a text that grows may stay on the present one.
    const bool walks =
        !m_typed.isEmpty() && m_typed.count(m_typed.at(0), Qt::CaseInsensitive) == m_typed.size();
    const QString text = walks ? m_typed.left(1) : m_typed;
    const int rows = rowCount();
    const int start = std::max(currentRow() + (walks ? 1 : 0), 0);
    for (int step = 0; step < rows; ++step) {
        const int row = (start + step) % rows;
        const QTableWidgetItem *label = isRowHidden(row) ? nullptr : item(row, NameColumn);
        if (label && label->text().startsWith(text, Qt::CaseInsensitive)) {
            makeRowCurrent(row);
            return;
        }
    }
}

int AttributeTable::nextVisibleRow(int row, int step) const
{
    while (row >= 0 && row < rowCount() && isRowHidden(row))
        row += step;
    return row < rowCount() ? row : -1;
}

void AttributeTable::fixRowHeight()
{
    // Without a row there is nobody to ask, and Qt's own height is far from that of a row to come.
    const int height = rowCount() > 0 ? sizeHintForRow(0) : fontMetrics().height() + DelegateMargin;
    if (height <= 0)
        return;
    QHeaderView *header = verticalHeader();
    header->setDefaultSectionSize(height);
    // Passed over by that, a hidden row would come back as high as it was.
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

void AttributeTable::renewPlaces(int first)
{
    const SilentChange change(this);
    for (int row = first; row < rowCount(); ++row) {
        setItem(row, NameColumn, takeItem(row, NameColumn));
        setItem(row, ValueColumn, takeItem(row, ValueColumn));
    }
}

void AttributeTable::sortByClick(int column)
{
    m_order.advance(column);
    horizontalHeader()->setSortIndicatorShown(m_order.isSorted());
    if (m_order.isSorted())
        horizontalHeader()->setSortIndicator(column, m_order.direction());
    reorder();
    if (currentItem())
        scrollToItem(currentItem());
}

void AttributeTable::restoreOrder()
{
    if (m_order.isSorted())
        reorder();
}

void AttributeTable::reorder()
{
    const int column = m_order.column();
    placeRows(m_order.arrange(rowCount(), [this, column](int row) {
        const QTableWidgetItem *cell = item(row, column);
        return cell ? cell->text() : QString();
    }));
    rowsReordered();
}

/// Puts the rows into the given order. Hidden and selected belong to a row's number, so they are carried
/// along.
void AttributeTable::placeRows(const QVector<int> &order)
{
    struct Row {
        QTableWidgetItem *items[ColumnCount];
        bool hidden;
        bool selected;
    };
    const int current = currentRow();
    QVector<Row> rows;
    rows.reserve(order.size());
    for (int row : order) {
        rows.append({{item(row, NameColumn), item(row, ValueColumn)},
                     isRowHidden(row),
                     selectionModel()->isRowSelected(row, QModelIndex())});
    }

    const SilentChange change(this);
    for (int row = 0; row < rowCount(); ++row) {
        takeItem(row, NameColumn);
        takeItem(row, ValueColumn);
    }
    QItemSelection selection;
    for (int row = 0; row < rows.size(); ++row) {
        setItem(row, NameColumn, rows[row].items[NameColumn]);
        setItem(row, ValueColumn, rows[row].items[ValueColumn]);
        setRowShown(row, !rows[row].hidden);
        if (rows[row].selected)
            selection.select(model()->index(row, NameColumn), model()->index(row, ValueColumn));
    }
    if (current >= 0) {
        const int place = static_cast<int>(order.indexOf(current));
        selectionModel()->setCurrentIndex(model()->index(place, NameColumn), QItemSelectionModel::NoUpdate);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

bool AttributeTable::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (showElidedText(help->pos(), help->globalPos()))
            return true;
    }
    return QTableWidget::viewportEvent(event);
}

/// A cell that is cut off shows its whole text above what the item has to say.
bool AttributeTable::showElidedText(const QPoint &position, const QPoint &globalPosition)
{
    const QTableWidgetItem *cell = itemAt(position);
    if (!cell)
        return false;
    const QString text = cell->text();
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    if (fontMetrics().horizontalAdvance(text) + margin <= visualItemRect(cell).width())
        return false;
    const QString tip = cell->toolTip();
    QToolTip::showText(globalPosition, tip.isEmpty() ? text : text + QLatin1Char('\n') + tip, viewport());
    return true;
}

void AttributeTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fixRowHeight();
    else if (event->type() == QEvent::LayoutDirectionChange)
        alignHeader();
}

void AttributeTable::keyPressEvent(QKeyEvent *event)
{
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (event->matches(QKeySequence::Copy)) {
        copySelectedRows();
    } else if (plain && (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)) {
        // By rows, these two lead to the first and the last row and not to the ends of the present one.
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
    const QString text = shownEmptyText();
    if (text.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = fontMetrics().height();
    painter.drawText(viewport()->rect().adjusted(margin, 0, -margin, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     text);
}

void AttributeTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    applyNameWidth();
}

void AttributeTable::startDrag(Qt::DropActions)
{
    if (!hasVisibleSelection())
        return;
    auto *data = new QMimeData;
    data->setData(m_ownDragType, windowMark(this));
    auto *drag = new QDrag(this);
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction);
}

bool AttributeTable::takes(const QDropEvent *event) const
{
    return event->mimeData()->data(m_acceptedDragType) == windowMark(this);
}

void AttributeTable::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void AttributeTable::dragMoveEvent(QDragMoveEvent *event)
{
    if (takes(event)) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else {
        event->ignore();
    }
}

void AttributeTable::dropEvent(QDropEvent *event)
{
    if (!takes(event)) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT rowsDropped();
}

} // namespace tvx
} // namespace Zudunmaf
