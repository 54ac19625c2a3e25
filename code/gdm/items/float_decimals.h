#ifndef GDM_ITEMS_FLOAT_DECIMALS_H
#define GDM_ITEMS_FLOAT_DECIMALS_H

#include <cmath>

namespace Zudunmaf
{

/// Number of decimals of a float in cells, lines and editors. Tool tips show six significant digits. Internal: not
/// installed.
constexpr int FloatDecimals = 3;

/// Returns the number as it is read back from a text with that many decimals.
inline double roundedToDecimals(double number)
{
    const double scale = std::pow(10.0, FloatDecimals);
    return std::round(number * scale) / scale;
}

} // namespace Zudunmaf

#endif
