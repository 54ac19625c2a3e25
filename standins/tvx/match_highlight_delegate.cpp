#include "tvx/match_highlight_delegate.h"

#include "common/wildcards.h"
#include "tvx/attribute_table.h"
#include "tvx/mixed_colour.h"
#include "tvx/muted_colour.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

QTextCharFormat markFormat(const QStyleOptionViewItem &cell)
{
    const QPalette::ColorGroup group = colourGroupOf(cell);
    const bool selected = cell.state & QStyle::State_Selected;
    const QColor back = cell.palette.color(group, selected ? QPalette::Highlight : QPalette::Base);
    const QColor front = cell.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const bool isMuted = group == QPalette::Inactive;
    const QColor mark =
        selected && !isMuted ? front : cell.palette.color(QPalette::Active, QPalette::Highlight);

    QTextCharFormat format;
    format.setBackground(mixedColour(mark, back, 0.3));
    format.setForeground(front);
    format.setFontUnderline(true);
    return format;
}

/// Returns the rectangle of the text. The style measures the text for that, so it is asked only about a cell with a
/// picture.
QRect textArea(const QStyleOptionViewItem &cell, const QStyle &style)
{
    const bool hasPicture =
        cell.features & (QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDecoration);
    return hasPicture ? style.subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget) : cell.rect;
}

/// Returns the marks of a text for its elided form. A match in the part that was left out marks the ellipsis.
QVector<QTextLayout::FormatRange> marksIn(const QString &elided, const QString &text,
                                          const QVector<QTextLayout::FormatRange> &marks)
{
    const int length = static_cast<int>(elided.size());
    const int cut = static_cast<int>(text.size()) - length;
    const int start = static_cast<int>(
        std::mismatch(elided.begin(), elided.end(), text.begin(), text.end()).first - elided.begin());
    int end = length;
    while (end > start && elided[end - 1] == text[end - 1 + cut])
        --end;
    const auto placeOf = [=](int position, int ifHidden) {
        if (position <= start)
            return position;
        return position >= end + cut ? position - cut : ifHidden;
    };
    QVector<QTextLayout::FormatRange> found;
    found.reserve(marks.size());
    for (const QTextLayout::FormatRange &mark : marks) {
        const int from = placeOf(mark.start, start);
        found.append({from, placeOf(mark.start + mark.length, end) - from, mark.format});
    }
    return found;
}

QTextLine layOut(QTextLayout *layout, int width)
{
    layout->beginLayout();
    QTextLine line = layout->createLine();
    line.setLineWidth(width);
    layout->endLayout();
    return line;
}

} // namespace

MatchHighlightDelegate::MatchHighlightDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

void MatchHighlightDelegate::setSearchedText(const QString &text)
{
    m_searched = standins::wildcardExpression(text);
}

MatchHighlightDelegate::Marks MatchHighlightDelegate::marksOf(const QStyleOptionViewItem &cell) const
{
    Marks marks;
    if (m_searched.pattern().isEmpty() || cell.index.column() != AttributeTable::NameColumn)
        return marks;
    const QTextCharFormat format = markFormat(cell);
    auto matches = m_searched.globalMatch(cell.text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        marks.append(
            {static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength()), format});
    }
    return marks;
}

void MatchHighlightDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.replace(QChar::LineSeparator, QLatin1Char(' '));
    const Marks marks = marksOf(cell);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    // Only the style knows what a style sheet says about the text.
    if (marks.isEmpty() && style->inherits("QStyleSheetStyle")) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    // The style would lay out the text three times: to place it, to elide it and to draw it.
    const QRect area = textArea(cell, *style);
    QStyleOptionViewItem bare = cell;
    bare.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &bare, painter, cell.widget);
    if (!cell.text.isEmpty())
        paintText(painter, cell, area, marks);
}

void MatchHighlightDelegate::paintText(QPainter *painter, const QStyleOptionViewItem &cell, const QRect &area,
                                       const Marks &marks) const
{
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    const QRect inner = area.adjusted(margin, 0, -margin, 0);

    QTextLayout layout(cell.text, cell.font);
    QTextOption direction(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
    direction.setTextDirection(cell.direction);
    direction.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(direction);
    layout.setFormats(marks);
    QTextLine line = layOut(&layout, inner.width());
    if (line.naturalTextWidth() > inner.width()) {
        layout.setText(cell.fontMetrics.elidedText(cell.text, cell.textElideMode, inner.width()));
        layout.setFormats(marksIn(layout.text(), cell.text, marks));
        line = layOut(&layout, inner.width());
    }

    const bool selected = cell.state & QStyle::State_Selected;
    painter->save();
    if (line.height() > area.height() || line.naturalTextWidth() > inner.width())
        painter->setClipRect(area);
    painter->setPen(
        cell.palette.color(colourGroupOf(cell), selected ? QPalette::HighlightedText : QPalette::Text));
    layout.draw(painter, QPointF(inner.left(), inner.top() + (inner.height() - line.height()) / 2));
    painter->restore();
}

QSize MatchHighlightDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, AttributeTable::DelegateMargin);
}

} // namespace tvx
} // namespace Zudunmaf
