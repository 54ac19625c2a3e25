#ifndef GDM_CONDITIONS_ATTR_ASSIGNMENT_H
#define GDM_CONDITIONS_ATTR_ASSIGNMENT_H

#include "gdm/host/gdm_export.h"
#include "gdm/items/attr_records.h"

#include <QString>
#include <QVariant>

namespace Zudunmaf
{

/// One value of FeatureAttributesDialog. It holds no pointer and can outlive the dialog and the dictionary.
struct AttrAssignment {
    QString name;              ///< The internal name, never the prompt.
    int type = DmlAttrBoolean; ///< A DmlAttrType, or the unknown code of the definition.
    /// By type, a bool, a QString (for an option the text of the entry), an int, or a double in the units below. A null
    /// QString for a text or an option without a value; invalid for an unknown type.
    QVariant value;
    int units = -1;    ///< Float: the host's code of the units; -1 for none.
    QString unitsText; ///< Float: the text of these units, empty if they have none.
};

/// Returns true if all fields are equal, the values in metatype too. Values of metatype double are compared bit by bit,
/// so 0 differs from -0; two NaNs are equal. Other metatypes, float too, are compared by QVariant.
GDM_EXPORT bool operator==(const AttrAssignment &a, const AttrAssignment &b);
/// Returns true if any field differs.
GDM_EXPORT bool operator!=(const AttrAssignment &a, const AttrAssignment &b);

} // namespace Zudunmaf

#endif
