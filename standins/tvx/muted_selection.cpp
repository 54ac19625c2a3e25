#include "tvx/muted_selection.h"

#include "tvx/mixed_colour.h"

#include <QStyleOptionViewItem>

namespace Zudunmaf
{
namespace tvx
{

void muteSelection(QStyleOptionViewItem *cell)
{
    cell->state &= ~QStyle::State_Active;
    QPalette &palette = cell->palette;
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    if (palette.color(QPalette::Inactive, QPalette::Highlight) != highlight)
        return;
    palette.setColor(QPalette::Inactive, QPalette::Highlight,
                     mixedColour(highlight, palette.color(QPalette::Active, QPalette::Base), 0.3));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                     palette.color(QPalette::Active, QPalette::Text));
}

} // namespace tvx
} // namespace Zudunmaf
