#include "printed_number.h"

#include <cmath>
#include <limits>

namespace Zudunmaf::demo::PrintedNumber
{

namespace
{

QString outside(const QString &text, const QString &minimum, const QString &maximum)
{
    return QStringLiteral("%1 lies outside of %2 to %3").arg(text, minimum, maximum);
}

} // namespace

QString problemOfInteger(const QString &text, int minimum, int maximum)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    if (!isNumber)
        return QStringLiteral("'%1' is no whole number").arg(text);
    return value >= minimum && value <= maximum
               ? QString()
               : outside(text, QString::number(minimum), QString::number(maximum));
}

QString problemOfFloat(const QString &text, double minimum, double maximum)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return QStringLiteral("'%1' is no number").arg(text);
    // Half of the last decimal, and what a 32-bit float leaves undecided.
    const double largest = std::fmax(std::fabs(minimum), std::fabs(maximum));
    const double slack = 0.0005 + largest * double(std::numeric_limits<float>::epsilon());
    return value >= minimum - slack && value <= maximum + slack
               ? QString()
               : outside(text, QString::number(minimum), QString::number(maximum));
}

QString wrongOrder(const QString &low, const QString &high)
{
    return QStringLiteral("the lower bound %1 is above the upper bound %2").arg(low, high);
}

} // namespace Zudunmaf::demo::PrintedNumber
