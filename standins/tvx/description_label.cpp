#include "tvx/description_label.h"

#include "tvx/attribute_facts.h"

#include <QPainter>
#include <QStyle>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// A tool tip with more characters would be higher than the dialog.
constexpr int MostTipCharacters = 1000;

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

/// Draws the parts of a line one by one: in a layout from right to left, each part keeps its own direction.
void drawLine(QPainter *painter, QRect area, Qt::LayoutDirection direction, const QString &line, bool isTitle)
{
    const QFont plain = painter->font();
    QFont bold = plain;
    bold.setBold(isTitle);
    painter->setFont(bold);
    const QStringList parts = line.split(factSeparator());
    for (int i = 0; i < parts.size() && area.width() > 0; ++i) {
        if (i > 0)
            area = drawPart(painter, area, direction, factSeparator());
        area = drawPart(painter, area, direction, parts[i]);
        painter->setFont(plain);
    }
}

} // namespace

DescriptionLabel::DescriptionLabel(QWidget *parent)
    : TextLines(parent)
{
    setWordWrap(false);
}

void DescriptionLabel::setLines(const QString &first, const QString &second, bool isTitle)
{
    const QString lines = second.isEmpty() ? first : first + QLatin1Char('\n') + second;
    if (lines == text() && isTitle == m_isTitle)
        return;
    m_isTitle = isTitle;
    setText(lines);
    setToolTip(plainToolTip(truncated(lines, MostTipCharacters)));
    update();
}

void DescriptionLabel::paintEvent(QPaintEvent *event)
{
    if (hasSelectedText()) {
        TextLines::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const QRect area = contentsRect();
    drawLine(&painter, area, layoutDirection(), text().section(QLatin1Char('\n'), 0, 0), m_isTitle);
    drawLine(&painter, area.adjusted(0, fontMetrics().lineSpacing(), 0, 0), layoutDirection(),
             text().section(QLatin1Char('\n'), 1), false);
}

} // namespace tvx
} // namespace Zudunmaf
