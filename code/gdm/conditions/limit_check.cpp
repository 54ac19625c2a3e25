#include "gdm/conditions/limit_check.h"

#include "gdm/conditions/number_units.h"
#include "gdm/items/attr_records.h"
#include "gdm/items/float_decimals.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zudunmaf
{

namespace
{

QString numberText(double number)
{
    return QString::number(number, 'g', 9);
}

QString outsideLimits(double number, double minimum, double maximum)
{
    return QString(QLatin1String("%1 is beyond the limits %2 to %3"))
        .arg(numberText(number), numberText(minimum), numberText(maximum));
}

double rounded(double limit)
{
    const double number = roundedToDecimals(limit);
    return std::isfinite(number) ? number : limit;
}

double slackOf(double limit)
{
    const double slack = 4.0 * double(std::numeric_limits<float>::epsilon()) * std::fabs(limit);
    return std::isfinite(slack) ? slack : 0.0;
}

} // namespace

QString problemOfInteger(double number, const DmlAttrDef &definition)
{
    if (number != std::floor(number))
        return QString(QLatin1String("%1 is no whole number")).arg(numberText(number));
    if (number >= double(definition.intMin) && number <= double(definition.intMax))
        return QString();
    return outsideLimits(number, definition.intMin, definition.intMax);
}

QString problemOfFloat(double number, const DmlAttrDef &definition, int displayUnits)
{
    // Without calling the services in the usual case.
    if (number >= definition.floatMin && number <= definition.floatMax)
        return QString();
    NumberUnits units(definition.unitsClass, QString(), definition.unitsClass);
    if (displayUnits != -1)
        units = NumberUnits(definition.unitsClass, QString(), displayUnits);
    const double shown = units.converted(number);
    // An editor rounds its limits, with some units after it has narrowed them to a 32-bit float.
    const double minimum = units.converted(definition.floatMin);
    const double maximum = units.converted(definition.floatMax);
    const double low = double(narrowedNumber(minimum));
    const double high = double(narrowedNumber(maximum));
    const double least = std::min(std::min(low, rounded(low)), rounded(minimum)) - slackOf(low);
    const double greatest = std::max(std::max(high, rounded(high)), rounded(maximum)) + slackOf(high);
    if (shown >= least && shown <= greatest)
        return QString();
    return outsideLimits(number, definition.floatMin, definition.floatMax);
}

QString problemOfOrder(double low, double high)
{
    if (low <= high)
        return QString();
    return QString(QLatin1String("the lower bound %1 is above the upper bound %2"))
        .arg(numberText(low), numberText(high));
}

} // namespace Zudunmaf
