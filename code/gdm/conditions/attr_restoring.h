#ifndef GDM_CONDITIONS_ATTR_RESTORING_H
#define GDM_CONDITIONS_ATTR_RESTORING_H

#include "gdm/conditions/attr_assignment.h"
#include "gdm/conditions/attr_condition.h"

#include <QList>

#include <functional>

class QTableWidgetItem;

namespace Zudunmaf
{

/// What became of one condition or value that was to be restored.
enum RestoreStatus {
    RestoreDone,            ///< It is in the chosen table.
    RestoreNoSuchAttribute, ///< The dictionary has no attribute of this name.
    RestoreNotAvailable,    ///< The dictionary has it, but not the available table of the dialog.
    RestoreTypeChanged,     ///< The attribute now has another type.
    RestoreOptionGone,      ///< The option has no entry of this text.
    RestoreOutOfRange, ///< A number is beyond the limits, bounds are out of order, a text does not fit into its record.
    RestoreUnknownUnits, ///< The services cannot convert the units into those of the attribute.
    RestoreDuplicate,    ///< The attribute has a value already; conditions may be several.
    RestoreNotAdded      ///< What adds the item has refused it.
};

/// The outcome for one entry. Whatever it is, the entry itself stays the caller's and unchanged.
struct RestoreResult {
    RestoreStatus status = RestoreDone; ///< The outcome.
    QString reason;                     ///< What is wrong, in English, for logs; empty if nothing is.
};

/// Adds a copy of the item to the chosen table of a dialog, and returns false if it refuses. The item stays the
/// library's and is gone after the call.
typedef std::function<bool(const QTableWidgetItem &item)> AddToChosen;

/// The dictionary and the tables of a dialog before anything is restored. AttributesFilterDialog::restoreConditions() and
/// FeatureAttributesDialog::restoreAssignments() fill it in.
struct RestoreTarget {
    int did = -1; ///< The dictionary; negative for none.
    QList<QTableWidgetItem *>
        available;                    ///< One item for each row of the available table, hidden rows included.
    QList<QTableWidgetItem *> chosen; ///< One item for each row of the chosen table.
    AddToChosen add;                  ///< Called in the order of the entries, after all have been checked.
};

/// Restores conditions as copies of the available items, and returns one result for each entry, in order.
///
/// Bounds are exact where the units are still those of the attribute, and converted by the services otherwise. Limits
/// are those of an editor, rounded to three decimals where that is wider, so that whatever a dialog has stored comes
/// back. Of several option entries with the same text, the first one is taken. A text of more than 199
/// bytes is out of range.
GDM_EXPORT QList<RestoreResult> restoreConditions(const QList<AttrCondition> &conditions,
                                                  const RestoreTarget &target);

/// Restores values as copies of the available items, and returns one result for each entry, in order. Limits are
/// compared in the display units of the item. An option takes an empty text too, which it has without a default.
GDM_EXPORT QList<RestoreResult> restoreAssignments(const QList<AttrAssignment> &assignments,
                                                   const RestoreTarget &target);

} // namespace Zudunmaf

#endif
