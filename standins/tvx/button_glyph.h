#ifndef TVX_BUTTON_GLYPH_H
#define TVX_BUTTON_GLYPH_H

#include <QIconEngine>
#include <QPointer>
#include <QWidget>

namespace Zudunmaf
{
namespace tvx
{

/// A plus or minus sign, drawn at the size that is asked for and in the colour of the text of its button, so
/// that it stays sharp at every scale and visible on every palette.
class ButtonGlyph : public QIconEngine
{
public:
    enum Shape { Plus, Minus };

    /// `button` lends its palette; it may go before the icon.
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
