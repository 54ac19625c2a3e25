#ifndef TVX_TVX_CONTROL_H
#define TVX_TVX_CONTROL_H

#include "gdm/host/gdm_export.h"

class QTableWidgetItem;
class TvxAttributesSelectionDialog;

namespace Zudunmaf
{
/// The stand-in of the base dialog.
namespace tvx
{

/// Puts an attribute into the chosen list of a dialog, best before it is shown, so that a filter or an
/// assignment can be opened again and changed. What the list gets are copies, as by the add button, behind
/// its other rows; the item stays the caller's. The dialog's add hook is called with the attribute's row of
/// the top view, if there is one: in "Assign Attributes" that row leaves the top view.
///
/// The item is of the dialog's own class and holds a definition, whether made with createNewItem() or cloned
/// from what findItemByAttrName() gives. False, and nothing added, where it names no attribute or holds no
/// definition, where it is of the class of the other dialog, or where it holds a value and the attribute has one in
/// the list already. Conditions on one
/// attribute may be several.
GDM_EXPORT bool addChosen(TvxAttributesSelectionDialog &dialog, const QTableWidgetItem &item);

} // namespace tvx
} // namespace Zudunmaf

#endif
