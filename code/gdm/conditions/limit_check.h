#ifndef GDM_CONDITIONS_LIMIT_CHECK_H
#define GDM_CONDITIONS_LIMIT_CHECK_H

#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

// Each of these returns an empty string, or what is wrong with the number in English. Internal: not installed.

/// Accepts whole numbers within the limits of an integer attribute.
QString problemOfInteger(double number, const DmlAttrDef &definition);

/// Accepts numbers within the limits of a float attribute, both in the units of the definition. Limits are those of an
/// editor under `displayUnits`: rounded to three decimals if that is wider, and only as exact as a 32-bit float.
QString problemOfFloat(double number, const DmlAttrDef &definition, int displayUnits);

/// Accepts bounds in ascending order.
QString problemOfOrder(double low, double high);

} // namespace Zudunmaf

#endif
