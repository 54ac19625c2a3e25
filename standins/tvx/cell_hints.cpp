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
#include <QtMath>

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
    painter.setFont(m_table->font());
    const QPalette::ColorGroup group = colourGroupOf(cell);
    const QPalette &palette = cell.palette;
    const Colours colours = {palette.color(group, QPalette::Text), mutedColour(palette, group, false)};
    const Colours selected = {palette.color(group, QPalette::HighlightedText),
                              mutedColour(palette, group, true)};
    // By position, because any number of hidden rows may lie between two visible ones.
    for (int y = m_table->rowViewportPosition(row); row >= 0 && y < height; row = m_table->rowAt(y)) {
        const QModelIndex index = m_table->model()->index(row, AttributeTable::ValueColumn);
        if (!m_table->indexWidget(index))
            paintRow(&painter, index, m_table->selectionModel()->isSelected(index) ? selected : colours);
        updateSpokenText(row);
        y += std::max(1, m_table->rowHeight(row));
    }
}

void CellHints::paintRow(QPainter *painter, const QModelIndex &index, const Colours &colours) const
{
    const QTableWidgetItem *value = m_table->rowItem(index.row());
    if (!value)
        return;
    const int margin = m_table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_table) + 1;
    QRect area = m_table->visualRect(index).adjusted(margin, 0, -margin, 0);
    const Hint hint = hintOf(*value);
    if (hint.conditions > 0) {
        painter->setPen(colours.mark);
        area = paintAtEnd(painter, area, QStringLiteral("\u2713 %1").arg(hint.conditions));
    }
    painter->setPen(colours.hint);
    area = paintAtStart(painter, area, value->text(), hint.start);
    if (!hint.end.isEmpty())
        paintAtEnd(painter, area, hint.end);
}

/// Paints the hint, elided if necessary. Returns the area beside the hint, or beside the text of the cell.
QRect CellHints::paintAtStart(QPainter *painter, QRect area, const QString &cell, const QString &hint) const
{
    const QFontMetrics metrics = m_table->fontMetrics();
    QString text = cell.isEmpty() ? hint : cell;
    if (widthOf(text) > area.width())
        text = metrics.elidedText(text, Qt::ElideRight, area.width());
    const int width = widthOf(text);
    if (cell.isEmpty())
        draw(painter, area, text, m_table->isRightToLeft() ? area.right() + 1 - width : area.left());
    const int used = width + 2 * metrics.averageCharWidth();
    return m_table->isRightToLeft() ? area.adjusted(0, 0, -used, 0) : area.adjusted(used, 0, 0, 0);
}

/// Paints a text at the far edge if there is room. Returns the area beside it.
QRect CellHints::paintAtEnd(QPainter *painter, QRect area, const QString &text) const
{
    const int width = widthOf(text);
    if (width > area.width())
        return area;
    draw(painter, area, text, m_table->isRightToLeft() ? area.left() : area.right() + 1 - width);
    const int used = width + 2 * m_table->fontMetrics().averageCharWidth();
    return m_table->isRightToLeft() ? area.adjusted(used, 0, 0, 0) : area.adjusted(0, 0, -used, 0);
}

int CellHints::widthOf(const QString &text) const
{
    return qCeil(m_texts.prepared(text, m_table->font()).size().width());
}

void CellHints::draw(QPainter *painter, const QRect &area, const QString &text, int left) const
{
    const QStaticText &prepared = m_texts.prepared(text, m_table->font());
    painter->drawStaticText(QPointF(left, area.top() + (area.height() - prepared.size().height()) / 2),
                            prepared);
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
