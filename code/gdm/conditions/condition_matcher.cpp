#include "gdm/conditions/condition_matcher.h"

#include "gdm/conditions/number_units.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zudunmaf
{

namespace
{

/// What the user has entered with three decimals if the bound is the 32-bit float next to it; else the bound.
double enteredNumber(double bound)
{
    const double entered = std::round(bound * 1000.0) / 1000.0;
    const bool isNarrowed = std::fabs(entered) < double(std::numeric_limits<float>::max()) &&
                            double(static_cast<float>(entered)) == bound;
    return isNarrowed ? entered : bound;
}

/// How far a converted bound may lie from what exact arithmetic gives.
double slackOf(double bound)
{
    return std::isfinite(bound) ? 2.0 * double(std::numeric_limits<float>::epsilon()) * std::fabs(bound)
                                : 0.0;
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
    m_low = std::min(condition.low, enteredNumber(condition.low));
    m_high = std::max(condition.high, enteredNumber(condition.high));
    if (valueUnits == -1)
        return;
    const NumberUnits units(condition.units, condition.unitsText, valueUnits);
    if (units.isUnknown())
        m_rule = Nothing;
    if (units.isUnknown() || units.isSame() || units.isOneWithout())
        return;
    m_low = units.converted(condition.low);
    m_low -= slackOf(m_low);
    m_high = units.converted(condition.high);
    m_high += slackOf(m_high);
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
        switch (kind) {
        case QMetaType::Double:
        case QMetaType::Float:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            return isBetween(value.toDouble());
        default:
            return false;
        }
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
