#ifndef GDM_CONDITIONS_CHOSEN_ITEMS_H
#define GDM_CONDITIONS_CHOSEN_ITEMS_H

#include "gdm/conditions/attr_assignment.h"
#include "gdm/conditions/attr_condition.h"

/// @file
/// Conditions and values of single items. The dialogs use the same functions for their chosen tables.

namespace Zudunmaf
{

class AttrFilterLWI;
class FeatureAttrLWI;

/// Returns the condition of the item, with bounds in the units of its definition. Without a definition, the name is
/// empty and the condition is not set.
///
/// A text is read from the local 8-bit encoding. The editor cuts a text after 199 bytes; a last character that is
/// incomplete for that reason is left out. An option whose index is out of range is not set.
GDM_EXPORT AttrCondition conditionOf(const AttrFilterLWI &item);

/// Returns the value of the item, in the units of its definition and widened to a double if it is a 32-bit float.
/// Without a definition, the name is empty and the value invalid. A value whose metatype is not that of the attribute's
/// type is converted by QVariant.
GDM_EXPORT AttrAssignment assignmentOf(const FeatureAttrLWI &item);

} // namespace Zudunmaf

#endif
