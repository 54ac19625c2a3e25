#ifndef TVX_MUTED_SELECTION_H
#define TVX_MUTED_SELECTION_H

class QStyleOptionViewItem;

namespace Zudunmaf
{
namespace tvx
{

/// Makes a cell look like one of an inactive window, whose selection is muted. Mixes the colours of the selection if
/// the palette has the same ones for both, as that of Fusion does.
void muteSelection(QStyleOptionViewItem *cell);

} // namespace tvx
} // namespace Zudunmaf

#endif
