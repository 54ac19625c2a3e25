#ifndef TVX_BUTTON_GLYPH_H
#define TVX_BUTTON_GLYPH_H

#include <QIconEngine>
#include <QPointer>
#include <QWidget>

namespace Zudunmaf
{
namespace tvx
{

/// Paints a plus or minus sign at any size in the text colour of a button, so that it is sharp at every scale and
/// visible in every palette. Owned by the icon.
class ButtonGlyph : public QIconEngine
{
public:
    enum Shape { Plus, Minus };

    /// Uses the palette of `button`, which may be deleted before the icon.
    ButtonGlyph(Shape shape, QWidget *button);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    Shape m_shape;
    QPointer<QWidget> m_button;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
