#include "tvx/picture_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace Zudunmaf
{
namespace tvx
{

void PictureButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    // The style has mirrored the places already, and the painter would mirror the alignment of the text once more.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace tvx
} // namespace Zudunmaf
