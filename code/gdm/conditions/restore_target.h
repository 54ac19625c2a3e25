#ifndef GDM_CONDITIONS_RESTORE_TARGET_H
#define GDM_CONDITIONS_RESTORE_TARGET_H

#include "gdm/conditions/attr_assignment.h"
#include "gdm/conditions/attr_condition.h"
#include "gdm/conditions/attr_restoring.h"

#include <QList>

namespace Zudunmaf
{

/// The dictionary and the tables of a dialog before entries are restored. Internal: not installed.
struct RestoreTarget {
    int did = -1; ///< The dictionary; negative for none.
    QList<QTableWidgetItem *>
        available;                    ///< One item for each row of the available table, hidden rows included.
    QList<QTableWidgetItem *> chosen; ///< One item for each row of the chosen table.
    AddToChosen add;                  ///< Called in the order of the entries, after all of them are checked.
};

/// Restores conditions as copies of the available items, and returns one result for each entry, in order.
QList<RestoreResult> restoreConditions(const QList<AttrCondition> &conditions, const RestoreTarget &target);

/// Restores values as copies of the available items, and returns one result for each entry, in order.
QList<RestoreResult> restoreAssignments(const QList<AttrAssignment> &assignments,
                                        const RestoreTarget &target);

} // namespace Zudunmaf

#endif
