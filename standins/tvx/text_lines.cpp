#include "tvx/text_lines.h"

#include <QApplication>
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
    const bool handled = QLabel::event(event);
    const bool mayEnd = event->type() == QEvent::Leave || event->type() == QEvent::FocusOut;
    if (event->type() == QEvent::Enter)
        setTextInteractionFlags(Qt::TextSelectableByMouse);
    else if (mayEnd && !underMouse() && !hasSelectedText() &&
             !QApplication::activePopupWidget()) // such as its menu
        setTextInteractionFlags(Qt::NoTextInteraction);
    return handled;
}

} // namespace tvx
} // namespace Zudunmaf
