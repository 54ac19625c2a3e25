#include "tvx/description_label.h"

#include <QPainter>
#include <QStyle>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// Draws a text at the leading side of the area, elided if necessary. Returns the area beside it.
QRect drawPart(QPainter *painter, const QRect &area, Qt::LayoutDirection direction, const QString &text)
{
    const QFontMetrics metrics = painter->fontMetrics();
    const int flags = int(QStyle::visualAlignment(direction, Qt::AlignLeading | Qt::AlignTop));
    const int width = metrics.horizontalAdvance(text);
    const bool fits = width <= area.width();
    painter->drawText(area, flags | Qt::TextSingleLine,
                      fits ? text : metrics.elidedText(text, Qt::ElideRight, area.width()));
    const int used = fits ? width : area.width();
    return direction == Qt::RightToLeft ? area.adjusted(0, 0, -used, 0) : area.adjusted(used, 0, 0, 0);
}

} // namespace

DescriptionLabel::DescriptionLabel(QWidget *parent)
    : TextLines(parent)
{
    setWordWrap(false);
}

void DescriptionLabel::setLines(const QString &emphasized, const QString &rest, const QString &second)
{
    const QString lines = emphasized + rest + (second.isEmpty() ? QString() : QLatin1Char('\n') + second);
    const int length = static_cast<int>(emphasized.size());
    if (lines == text() && length == m_emphasizedLength)
        return;
    m_emphasizedLength = length;
    setText(lines);
    setToolTip(lines);
    update();
}

void DescriptionLabel::paintEvent(QPaintEvent *event)
{
    if (hasSelectedText()) {
        TextLines::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const QRect area = contentsRect();
    const QString first = text().section(QLatin1Char('\n'), 0, 0);
    const QString second = text().section(QLatin1Char('\n'), 1);

    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const QRect beside = drawPart(&painter, area, layoutDirection(), first.left(m_emphasizedLength));
    painter.setFont(font());
    drawPart(&painter, beside, layoutDirection(), first.mid(m_emphasizedLength));
    drawPart(&painter, area.adjusted(0, fontMetrics().lineSpacing(), 0, 0), layoutDirection(), second);
}

} // namespace tvx
} // namespace Zudunmaf
