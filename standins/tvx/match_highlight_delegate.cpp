#include "tvx/match_highlight_delegate.h"

#include "tvx/attribute_table.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

QColor mixed(const QColor &front, const QColor &back, qreal share)
{
    return QColor::fromRgbF(front.redF() * share + back.redF() * (1 - share),
                            front.greenF() * share + back.greenF() * (1 - share),
                            front.blueF() * share + back.blueF() * (1 - share));
}

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

QVector<QTextLayout::FormatRange> formats(const QStyleOptionViewItem &option, const QString &shown,
                                          const QVector<MatchFinder::Match> &matches)
{
    QVector<QTextLayout::FormatRange> ranges;
    if (matches.isEmpty())
        return ranges;
    const QPalette::ColorGroup group = colorGroup(option);
    const bool selected = option.state & QStyle::State_Selected;
    const QColor back = option.palette.color(group, selected ? QPalette::Highlight : QPalette::Base);
    const QColor front = option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor mark =
        option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Highlight);

    QTextCharFormat format;
    format.setBackground(mixed(mark, back, 0.3));
    format.setForeground(front);
    format.setFontUnderline(true);
    for (const MatchFinder::Match &match : matches) {
        if (match.start + match.length <= shown.size())
            ranges.append({match.start, match.length, format});
    }
    return ranges;
}

/// Where the text of a cell belongs. The style finds it by measuring the text, which only a picture beside it makes
/// needful.
QRect textArea(const QStyleOptionViewItem &cell, const QStyle &style)
{
    const bool hasPicture =
        cell.features & (QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDecoration);
    return hasPicture ? style.subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget) : cell.rect;
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

void MatchHighlightDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.replace(QChar::LineSeparator, QLatin1Char(' '));
    QVector<MatchFinder::Match> matches;
    if (index.column() == AttributeTable::NameColumn)
        matches = m_finder.matchesIn(cell.text);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    // What a style sheet says of the text only the style knows.
    if (matches.isEmpty() && style->inherits("QStyleSheetStyle")) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    // The style would set the text three times over: to place it, to shorten it and to draw it.
    const QRect area = textArea(cell, *style);
    QStyleOptionViewItem bare = cell;
    bare.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &bare, painter, cell.widget);
    if (!cell.text.isEmpty())
        paintText(painter, cell, area, matches);
}

void MatchHighlightDelegate::paintText(QPainter *painter, const QStyleOptionViewItem &option,
                                       const QRect &area, const QVector<MatchFinder::Match> &matches) const
{
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
    const QRect inner = area.adjusted(margin, 0, -margin, 0);

    QTextLayout layout(option.text, option.font);
    QTextOption direction(QStyle::visualAlignment(option.direction, option.displayAlignment));
    direction.setTextDirection(option.direction);
    direction.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(direction);
    layout.setFormats(formats(option, option.text, matches));
    QTextLine line = layOut(&layout, inner.width());
    if (line.naturalTextWidth() > inner.width()) {
        layout.setText(option.fontMetrics.elidedText(option.text, option.textElideMode, inner.width()));
        layout.setFormats(formats(option, layout.text(), matches));
        line = layOut(&layout, inner.width());
    }

    const bool selected = option.state & QStyle::State_Selected;
    painter->save();
    if (line.height() > area.height() || line.naturalTextWidth() > inner.width())
        painter->setClipRect(area);
    painter->setPen(
        option.palette.color(colorGroup(option), selected ? QPalette::HighlightedText : QPalette::Text));
    layout.draw(painter, QPointF(inner.left(), inner.top() + (inner.height() - line.height()) / 2));
    painter->restore();
}

QSize MatchHighlightDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, AttributeTable::DelegateMargin);
}

} // namespace tvx
} // namespace Zudunmaf
