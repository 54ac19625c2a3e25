#include "gdm/conditions/condition_matcher.h"

#include "gdm/conditions/number_units.h"
#include "gdm/host/qt_compat.h"
#include "gdm/items/float_decimals.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zudunmaf
{

namespace
{

/// Returns the number with three decimals whose nearest 32-bit float is the bound; the bound itself if there is none.
double enteredNumber(double bound)
{
    const double entered = roundedToDecimals(bound);
    return double(narrowedNumber(entered)) == bound ? entered : bound;
}

/// Returns the 32-bit float nearest to the bound; the bound itself if it is out of range.
double narrowedBound(double bound)
{
    const float narrowed = narrowedNumber(bound);
    return std::isfinite(narrowed) ? double(narrowed) : bound;
}

/// Returns the possible error of a converted bound. If units differ by an offset, as degrees do, the resolution of the
/// unconverted bound can be the coarser one.
double slackOf(const NumberUnits &units, double bound)
{
    const double number = units.converted(bound);
    if (!std::isfinite(number))
        return 0.0;
    const float next = std::nextafter(static_cast<float>(bound), std::numeric_limits<float>::max());
    const double step = std::fabs(units.converted(double(next)) - number);
    const double resolution = 2.0 * double(std::numeric_limits<float>::epsilon()) * std::fabs(number);
    return std::isfinite(step) ? std::max(resolution, step) : resolution;
}

bool isNumber(int metatype)
{
    switch (metatype) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::UChar:
        return true;
    default:
        return metatype == compat::SignedCharType;
    }
}

} // namespace

ConditionMatcher::ConditionMatcher(const AttrCondition &condition, int valueUnits)
    : m_rule(Anything)
    , m_low(0.0)
    , m_high(0.0)
    , m_text(condition.text)
{
    if (!condition.isSet)
        return;
    switch (condition.type) {
    case DmlAttrText:
    case DmlAttrOption:
        m_rule = m_text.isEmpty() ? Anything : EqualText;
        break;
    case DmlAttrInteger:
        m_rule = Between;
        m_low = condition.low;
        m_high = condition.high;
        break;
    case DmlAttrFloat:
        m_rule = Between;
        setBounds(condition, valueUnits);
        break;
    default:
        break;
    }
}

void ConditionMatcher::setBounds(const AttrCondition &condition, int valueUnits)
{
    m_low = std::min(std::min(condition.low, enteredNumber(condition.low)), narrowedBound(condition.low));
    m_high = std::max(std::max(condition.high, enteredNumber(condition.high)), narrowedBound(condition.high));
    if (valueUnits == -1)
        return;
    const NumberUnits units(condition.units, condition.unitsText, valueUnits);
    if (units.isUnknown())
        m_rule = Nothing;
    if (units.isUnknown() || units.isSame() || units.isOneUnitless())
        return;
    m_low = units.converted(condition.low) - slackOf(units, condition.low);
    m_high = units.converted(condition.high) + slackOf(units, condition.high);
}

bool ConditionMatcher::isBetween(double number) const
{
    return number >= m_low && number <= m_high;
}

bool ConditionMatcher::matches(const QVariant &value) const
{
    const int kind = value.userType();
    switch (m_rule) {
    case Anything:
        return value.isValid();
    case EqualText:
        return kind == QMetaType::QString && value.toString() == m_text;
    case Between:
        return isNumber(kind) && isBetween(value.toDouble());
    case Nothing:
        break;
    }
    return false;
}

bool matches(const AttrCondition &condition, const QVariant &value, int valueUnits)
{
    return ConditionMatcher(condition, valueUnits).matches(value);
}

} // namespace Zudunmaf
