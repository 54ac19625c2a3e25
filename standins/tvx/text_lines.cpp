#include "tvx/text_lines.h"

#include <QEvent>
#include <QStyle>
#include <QTextDocument>

namespace Zudunmaf
{
namespace tvx
{

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString truncated(const QString &text, int length)
{
    return text.size() > length ? text.left(length) + QChar(0x2026) : text; // an ellipsis
}

TextLines::TextLines(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWordWrap(true);
    setLeadingAlignment(Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TextLines::setLeadingAlignment(Qt::Alignment vertical)
{
    m_vertical = vertical;
    setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading) | Qt::AlignAbsolute | vertical);
}

bool TextLines::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        setLeadingAlignment(m_vertical);
    return QLabel::event(event);
}

} // namespace tvx
} // namespace Zudunmaf
