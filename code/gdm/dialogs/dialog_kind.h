#ifndef GDM_DIALOGS_DIALOG_KIND_H
#define GDM_DIALOGS_DIALOG_KIND_H

#include "gdm/items/attr_roles.h"

namespace Zudunmaf
{

/// What an attribute's row in the available table does while the attribute is chosen.
enum ChosenRows { KeepChosenRows, HideChosenRows };

/// The message keys and settings in which the two dialogs differ. Internal: not installed.
struct DialogKind {
    const char *allGroupsRow;      ///< First row of the group list.
    const char *allGroupsAtFill;   ///< Compared with the selected group in a fill.
    const char *allGroupsAtFilter; ///< Compared with the selected group in a pass over the rows.
    const char *editAction;        ///< Menu action that edits the current item.
    const char *resetAction;       ///< Menu action that resets the selected items.
    EntityMask groupMask;          ///< Entities whose attributes give the groups.
    ChosenRows chosenRows;
};

} // namespace Zudunmaf

#endif
