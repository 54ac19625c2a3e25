#ifndef TVX_MUTED_COLOUR_H
#define TVX_MUTED_COLOUR_H

#include <QColor>
#include <QPalette>

class QStyleOptionViewItem;

namespace Zudunmaf
{
namespace tvx
{

/// Returns the colour group that a cell is painted with.
QPalette::ColorGroup colourGroupOf(const QStyleOptionViewItem &cell);
/// Returns the colour of secondary text in a table row: the colour of its text mixed with that of its background, with
/// a contrast of at least 4.5 to 1. Text with less contrast than that stays as it is.
QColor mutedColour(const QPalette &palette, QPalette::ColorGroup group, bool isSelected);

} // namespace tvx
} // namespace Zudunmaf

#endif
