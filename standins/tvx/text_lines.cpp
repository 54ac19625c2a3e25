#include "tvx/text_lines.h"

namespace Zudunmaf
{
namespace tvx
{

TextLines::TextLines(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

} // namespace tvx
} // namespace Zudunmaf
