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
    const QColor colour = palette.color(group, QPalette::ButtonText);
    const int side = qMin(rect.width(), rect.height());
    const int thickness = qMax(1, side / 8);
    const int length = thickness + side * 2 / 7 * 2; // symmetric about the centre

    QRect bar(0, 0, length, thickness);
    bar.moveCenter(rect.center());
    painter->fillRect(bar, colour);
    if (m_shape == Plus) {
        bar = QRect(0, 0, thickness, length);
        bar.moveCenter(rect.center());
        painter->fillRect(bar, colour);
    }
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
