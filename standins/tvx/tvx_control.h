#ifndef TVX_TVX_CONTROL_H
#define TVX_TVX_CONTROL_H

#include "gdm/host/gdm_export.h"

class QTableWidgetItem;
class TvxAttributesSelectionDialog;

namespace Zudunmaf
{
/// The stand-in for the base dialog.
namespace tvx
{

/// Adds copies of an item to the chosen table of a dialog, so that a host can restore a filter or an assignment. Best
/// called before the dialog is shown. The item stays the caller's.
///
/// Calls the dialog's add hook with the item of the same attribute in the available table, if there is one: "Assign
/// Attributes" hides that row.
///
/// The item must be of the dialog's own class and hold a definition, whether made with createNewItem() or cloned from a
/// result of findItemByAttrName(). Returns false, and adds nothing, if it has no attribute or no definition, if it is
/// of the class of the other dialog, or if it holds a value and the attribute has a value in the chosen table already.
/// A dialog whose two tables are empty accepts both classes. An attribute may have several conditions.
GDM_EXPORT bool addChosen(TvxAttributesSelectionDialog &dialog, const QTableWidgetItem &item);

} // namespace tvx
} // namespace Zudunmaf

#endif
