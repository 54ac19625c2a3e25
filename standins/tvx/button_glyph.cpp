#include "tvx/button_glyph.h"

#include <QPainter>
#include <QPixmap>

namespace Zudunmaf
{
namespace tvx
{

ButtonGlyph::ButtonGlyph(Shape shape, QWidget *button)
    : m_shape(shape)
    , m_button(button)
{
}

void ButtonGlyph::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State)
{
    const QPalette palette = m_button ? m_button->palette() : QPalette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const qreal side = qMin(rect.width(), rect.height());
    const qreal reach = side * 0.34;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(QRectF(rect).center());
    painter->setPen(QPen(palette.color(group, QPalette::ButtonText), qMax(1.5, side * 0.12), Qt::SolidLine,
                         Qt::RoundCap));
    painter->drawLine(QPointF(-reach, 0), QPointF(reach, 0));
    if (m_shape == Plus)
        painter->drawLine(QPointF(0, -reach), QPointF(0, reach));
    painter->restore();
}

QPixmap ButtonGlyph::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
}

QIconEngine *ButtonGlyph::clone() const
{
    return new ButtonGlyph(*this);
}

} // namespace tvx
} // namespace Zudunmaf
