#ifndef GDM_CONDITIONS_LIMIT_CHECK_H
#define GDM_CONDITIONS_LIMIT_CHECK_H

#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

// Each function returns the error in English, or an empty string if there is none. Internal: not installed.

/// Accepts whole numbers within the limits of an integer attribute.
QString problemOfInteger(double number, const DmlAttrDef &definition);

/// Accepts numbers within the limits of a float attribute, in the units of the definition. The limits are those of an
/// editor with these display units: rounded to three decimals if that is wider, with the precision of a 32-bit float.
QString problemOfFloat(double number, const DmlAttrDef &definition, int displayUnits);

/// Accepts bounds in ascending order.
QString problemOfOrder(double low, double high);

} // namespace Zudunmaf

#endif
