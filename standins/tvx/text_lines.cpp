#include "tvx/text_lines.h"

#include <QEvent>

namespace Zudunmaf
{
namespace tvx
{

TextLines::TextLines(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

bool TextLines::event(QEvent *event)
{
    if (event->type() == QEvent::Enter)
        setTextInteractionFlags(Qt::TextSelectableByMouse);
    else if (event->type() == QEvent::Leave && !hasSelectedText())
        setTextInteractionFlags(Qt::NoTextInteraction);
    return QLabel::event(event);
}

} // namespace tvx
} // namespace Zudunmaf
