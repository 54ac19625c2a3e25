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
/// Entries are restored as copies of the available items. Numbers are exact where the units are still those of the
/// attribute, and converted by the services otherwise. Limits are those of an editor, rounded to three decimals where that
/// is wider: for conditions in the units of the definition, for values in the display units of the item. So what a dialog
/// has stored comes back under the same display units; under others, a value at a rounded limit can be out of range.
/// The default of the attribute is always accepted as its value. Of several option entries with the same text, the first
/// one is taken. An option value takes an empty text too, which it has without a default. The text of a condition is out of
/// range if it has more than 199 bytes.

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
    /// The attribute has a value already, in the chosen table or by an earlier entry that was added; conditions may be several.
    RestoreDuplicate,
    RestoreNotAdded,    ///< What adds the item has refused it.
    RestoreNoDictionary ///< Not in the available table, and the dictionary cannot be read.
};

/// The outcome for one entry. Whatever it is, the entry itself stays the caller's and unchanged.
struct RestoreResult {
    RestoreStatus status = RestoreDone; ///< The outcome.
    QString reason;                     ///< What is wrong, in English, for logs; empty if nothing is.
};

/// Adds a copy of the item to the chosen table of a dialog, and returns false if it refuses. The item stays the
/// library's and is gone after the call.
typedef std::function<bool(const QTableWidgetItem &item)> AddToChosen;

} // namespace Zudunmaf

#endif
