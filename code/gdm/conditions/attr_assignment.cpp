#include "gdm/conditions/attr_assignment.h"

#include "gdm/conditions/same_number.h"

namespace Zudunmaf
{

namespace
{

bool isSameValue(const QVariant &a, const QVariant &b)
{
    if (a.userType() != b.userType())
        return false;
    return a.userType() == QMetaType::Double ? isSameNumber(a.toDouble(), b.toDouble()) : a == b;
}

} // namespace

bool operator==(const AttrAssignment &a, const AttrAssignment &b)
{
    return a.name == b.name && a.type == b.type && a.units == b.units && a.unitsText == b.unitsText &&
           isSameValue(a.value, b.value);
}

bool operator!=(const AttrAssignment &a, const AttrAssignment &b)
{
    return !(a == b);
}

} // namespace Zudunmaf
