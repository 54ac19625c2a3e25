#include "gdm/conditions/attr_condition.h"

#include "gdm/conditions/same_number.h"

namespace Zudunmaf
{

bool operator==(const AttrCondition &a, const AttrCondition &b)
{
    return a.name == b.name && a.type == b.type && a.isSet == b.isSet && isSameNumber(a.low, b.low) &&
           isSameNumber(a.high, b.high) && a.units == b.units && a.unitsText == b.unitsText &&
           a.text == b.text;
}

bool operator!=(const AttrCondition &a, const AttrCondition &b)
{
    return !(a == b);
}

} // namespace Zudunmaf
