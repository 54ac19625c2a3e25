#ifndef GDM_CONDITIONS_ATTR_RESTORING_H
#define GDM_CONDITIONS_ATTR_RESTORING_H

#include "gdm/conditions/attr_assignment.h"
#include "gdm/conditions/attr_condition.h"

#include <QList>

#include <functional>

class QTableWidgetItem;

/// @file
/// The outcome of AttributesFilterDialog::restoreConditions() and FeatureAttributesDialog::restoreAssignments().
///
/// Entries are restored as copies of the available items.
/// - Numbers are exact if the units are still those of the attribute, and converted by the services otherwise.
/// - Limits are those of an editor, rounded to three decimals if that is wider: for conditions in the units of the
///   definition, for values in the display units of the item. What a dialog has stored is therefore accepted under the
///   same display units; under others, a value at a rounded limit can be out of range.
/// - The default of the attribute is always accepted as its value.
/// - Of several option entries with the same text, the first is used. An option value can be empty, as it is without a
///   default.
/// - The text of a condition is out of range if it has more than 199 bytes in the local 8-bit encoding.

namespace Zudunmaf
{

/// Outcome of restoring one condition or value.
enum RestoreStatus {
    RestoreDone,            ///< Added to the chosen table.
    RestoreNoSuchAttribute, ///< The dictionary has no attribute of this name.
    RestoreNotAvailable,    ///< In the dictionary, but not in the available table of the dialog.
    RestoreTypeChanged,     ///< The attribute now has another type.
    RestoreOptionGone,      ///< The option has no entry of this text.
    RestoreOutOfRange, ///< A number is beyond the limits, bounds are out of order, a text does not fit into its record.
    RestoreUnknownUnits, ///< The services cannot convert the units into those of the attribute.
    /// The attribute already has a value, in the chosen table or from an earlier entry that was added. Not for
    /// conditions.
    RestoreDuplicate,
    RestoreNotAdded,    ///< AddToChosen returned false, or is empty.
    RestoreNoDictionary ///< Not in the available table, and the dictionary cannot be read.
};

/// The outcome for one entry.
struct RestoreResult {
    RestoreStatus status = RestoreDone; ///< The outcome.
    QString reason;                     ///< The error, in English, for logs; empty if there is none.
};

/// Adds a copy of the item to the chosen table of a dialog, and returns false if it cannot. The library owns the item
/// and deletes it after the call.
typedef std::function<bool(const QTableWidgetItem &item)> AddToChosen;

} // namespace Zudunmaf

#endif
