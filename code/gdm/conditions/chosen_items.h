#ifndef GDM_CONDITIONS_CHOSEN_ITEMS_H
#define GDM_CONDITIONS_CHOSEN_ITEMS_H

#include "gdm/conditions/attr_assignment.h"
#include "gdm/conditions/attr_condition.h"

/// @file
/// Reads conditions and values out of single items. The two dialogs do the same for their chosen tables.

namespace Zudunmaf
{

class AttrFilterLWI;
class FeatureAttrLWI;

/// Returns the condition of the item, bounds in the units of its definition. Without a definition, the name is empty
/// and nothing is set.
///
/// A text is read from the local 8-bit encoding. A last character that the record has only a part of, because the
/// editor cuts a text after 199 bytes, is left out. An option whose index names no entry is not set, as in its line.
GDM_EXPORT AttrCondition conditionOf(const AttrFilterLWI &item);

/// Returns the value of the item, in the units of its definition and widened to a double if it is a 32-bit float.
/// Without a definition, the name is empty and the value invalid. A value of another kind than the attribute's type is
/// converted as QVariant does it.
GDM_EXPORT AttrAssignment assignmentOf(const FeatureAttrLWI &item);

} // namespace Zudunmaf

#endif
