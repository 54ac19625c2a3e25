#include "tvx/cell_hints.h"

#include "tvx/attribute_facts.h"
#include "tvx/attribute_item.h"
#include "tvx/attribute_table.h"
#include "tvx/chosen_counts.h"
#include "tvx/muted_colour.h"
#include "tvx/tvx_texts.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

bool isBoolean(const QTableWidgetItem &item)
{
    return item.data(DmlAttrTypeRole).toInt() == DmlAttrBoolean;
}

} // namespace

CellHints::CellHints(AttributeTable *table, Kind kind)
    : m_table(table)
    , m_kind(kind)
    , m_hasScreenReader(QAccessible::isActive())
{
    QAccessible::installActivationObserver(this);
}

CellHints::~CellHints()
{
    QAccessible::removeActivationObserver(this);
}

void CellHints::accessibilityActiveChanged(bool active)
{
    m_hasScreenReader = active;
    m_table->viewport()->update();
}

AttributeFacts CellHints::factsOf(int row) const
{
    return AttributeFacts(*m_table->rowItem(row), m_displayUnits);
}

CellHints::Hint CellHints::hintOf(const QTableWidgetItem &value) const
{
    if (!definitionOf(value))
        return {};
    const AttributeFacts facts(value, m_displayUnits);
    if (!value.text().isEmpty())
        return {QString(), facts.taken(), 0};
    if (m_kind == Available)
        return {facts.taken(), QString(),
                m_counts && isCondition(value) ? m_counts->countOf(nameOf(value)) : 0};
    const bool isAny = isCondition(value) && !isBoolean(value);
    return {emptyChosenText(value, facts), isAny ? facts.taken() : QString(), 0};
}

QString CellHints::emptyChosenText(const QTableWidgetItem &value, const AttributeFacts &facts) const
{
    if (isCondition(value))
        return textOf(isBoolean(value) ? texts::Carried : texts::Any);
    if (isBoolean(value))
        return textOf(value.data(DmlAttrValueRole).toBool() ? texts::Yes : texts::No);
    return facts.taken();
}

void CellHints::paint() const
{
    const int height = m_table->viewport()->height();
    int row = m_table->rowAt(0);
    if (row < 0)
        return;
    const QStyleOptionViewItem cell = m_table->cellOption();
    QPainter painter(m_table->viewport());
    // A range of numbers keeps its order in a layout from right to left.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    // By position, because any number of hidden rows may lie between two visible ones.
    for (int y = m_table->rowViewportPosition(row); row >= 0 && y < height; row = m_table->rowAt(y)) {
        paintRow(&painter, row, cell);
        updateSpokenText(row);
        y += std::max(1, m_table->rowHeight(row));
    }
}

void CellHints::paintRow(QPainter *painter, int row, const QStyleOptionViewItem &cell) const
{
    const QTableWidgetItem *value = m_table->rowItem(row);
    const QModelIndex index = m_table->model()->index(row, AttributeTable::ValueColumn);
    if (!value || m_table->indexWidget(index))
        return;
    const bool isSelected = m_table->selectionModel()->isSelected(index);
    const bool isActive = cell.state & QStyle::State_Active;
    const QPalette::ColorGroup group = isActive ? QPalette::Active : QPalette::Inactive;
    const int margin = m_table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_table) + 1;
    QRect area = m_table->visualRect(index).adjusted(margin, 0, -margin, 0);
    const Hint hint = hintOf(*value);
    if (hint.conditions > 0) {
        painter->setPen(cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
        area = paintMark(painter, area, hint.conditions);
    }
    painter->setPen(mutedColour(cell.palette, group, isSelected));
    paintHint(painter, area, value->text(), hint);
}

/// Paints a tick and the number at the far edge. Returns the area that is left.
QRect CellHints::paintMark(QPainter *painter, QRect area, int conditions) const
{
    const QString mark = QStringLiteral("\u2713 %1").arg(conditions);
    painter->drawText(area, flags(Qt::AlignTrailing), mark);
    const int width = m_table->fontMetrics().horizontalAdvance(mark + QLatin1String("  "));
    if (m_table->isRightToLeft())
        area.setLeft(area.left() + width);
    else
        area.setRight(area.right() - width);
    return area;
}

int CellHints::flags(Qt::Alignment side) const
{
    return int(QStyle::visualAlignment(m_table->layoutDirection(), side | Qt::AlignVCenter)) |
           Qt::TextSingleLine;
}

void CellHints::paintHint(QPainter *painter, const QRect &area, const QString &cell, const Hint &hint) const
{
    const QFontMetrics metrics = m_table->fontMetrics();
    const QString shown = cell + hint.start;
    int width = metrics.horizontalAdvance(shown);
    if (!hint.start.isEmpty()) {
        const QString text =
            width > area.width() ? metrics.elidedText(hint.start, Qt::ElideRight, area.width()) : hint.start;
        painter->drawText(area, flags(Qt::AlignLeading), text);
    }
    width += 2 * metrics.averageCharWidth() + metrics.horizontalAdvance(hint.end);
    if (!hint.end.isEmpty() && width <= area.width())
        painter->drawText(area, flags(Qt::AlignTrailing), hint.end);
}

void CellHints::updateSpokenText(int row) const
{
    QTableWidgetItem *value = m_hasScreenReader ? m_table->rowItem(row) : nullptr;
    if (!value)
        return;
    const QString cell = value->text();
    const Hint hint = hintOf(*value);
    setSpoken(row, AttributeTable::ValueColumn, Qt::AccessibleTextRole, hint.start);
    const QString end = hint.conditions > 0 ? textOf(texts::ChosenTimes).arg(hint.conditions) : hint.end;
    setSpoken(row, AttributeTable::ValueColumn, Qt::AccessibleDescriptionRole, end);
    // The current cell is that of the name.
    QStringList spoken = {cell + hint.start, end};
    spoken.removeAll(QString());
    setSpoken(row, AttributeTable::NameColumn, Qt::AccessibleDescriptionRole,
              spoken.join(QStringLiteral(", ")));
}

void CellHints::announceCurrentRow() const
{
    const QModelIndex current = m_table->currentIndex();
    if (!m_hasScreenReader || !m_table->hasFocus() || !current.isValid())
        return;
    updateSpokenText(current.row());
    if (QAccessibleInterface *cell = accessibleCell(current.row(), current.column())) {
        QAccessibleEvent event(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

QAccessibleInterface *CellHints::accessibleCell(int row, int column) const
{
    QAccessibleInterface *table = QAccessible::queryAccessibleInterface(m_table);
    QAccessibleTableInterface *cells = table ? table->tableInterface() : nullptr;
    return cells ? cells->cellAt(row, column) : nullptr;
}

/// Sets what is read of a cell. Announces a text that replaces another one, because screen readers cache texts.
void CellHints::setSpoken(int row, int column, int role, const QString &text) const
{
    QTableWidgetItem *item = m_table->item(row, column);
    const QString old = item ? item->data(role).toString() : text;
    if (old == text)
        return;
    {
        const QSignalBlocker blocker(m_table->model());
        item->setData(role, text.isEmpty() ? QVariant() : QVariant(text));
    }
    QAccessibleInterface *cell = old.isEmpty() ? nullptr : accessibleCell(row, column);
    if (!cell)
        return;
    const bool isName = role == Qt::AccessibleTextRole;
    QAccessibleEvent event(cell, isName ? QAccessible::NameChanged : QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace tvx
} // namespace Zudunmaf
