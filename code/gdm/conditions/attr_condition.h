#ifndef GDM_CONDITIONS_ATTR_CONDITION_H
#define GDM_CONDITIONS_ATTR_CONDITION_H

#include "gdm/host/gdm_export.h"
#include "gdm/items/attr_records.h"

#include <QString>

namespace Zudunmaf
{

/// One condition of AttributesFilterDialog as a value. It holds no pointer and can outlive the dialog and the
/// dictionary.
///
/// Bounds are those of the record, exact and inclusive, and not rounded as in a cell. The bounds of a float can be the
/// 32-bit floats nearest to what the user has entered; see ConditionMatcher. Fields that the type does not use keep
/// their initial values; if isSet is false, all but the name and the type do.
struct AttrCondition {
    QString name;              ///< The internal name, never the prompt.
    int type = DmlAttrBoolean; ///< A DmlAttrType, or the unknown code of the definition.
    bool isSet = false;        ///< If false, the attribute is only required to be there, with any value.
    double low = 0.0;          ///< Integer and float: the least value, in the units below.
    double high = 0.0;         ///< Integer and float: the greatest value, in the units below.
    int units = -1;            ///< Float: the host's code of the units of both bounds; -1 for none.
    QString unitsText;         ///< Float: the text of these units, empty if they have none.
    QString text;              ///< Text: the text. Option: the text of the entry.
};

/// Returns true if all fields are equal. Numbers are compared bit by bit, so 0 differs from -0; two NaNs are equal.
GDM_EXPORT bool operator==(const AttrCondition &a, const AttrCondition &b);
/// Returns true if any field differs.
GDM_EXPORT bool operator!=(const AttrCondition &a, const AttrCondition &b);

} // namespace Zudunmaf

#endif
