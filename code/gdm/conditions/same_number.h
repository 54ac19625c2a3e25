#ifndef GDM_CONDITIONS_SAME_NUMBER_H
#define GDM_CONDITIONS_SAME_NUMBER_H

#include <cmath>
#include <cstring>

namespace Zudunmaf
{

/// Returns true if both numbers have the same bits, or both are NaN. Internal: not installed.
inline bool isSameNumber(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

} // namespace Zudunmaf

#endif
