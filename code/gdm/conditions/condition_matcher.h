#ifndef GDM_CONDITIONS_CONDITION_MATCHER_H
#define GDM_CONDITIONS_CONDITION_MATCHER_H

#include "gdm/conditions/attr_condition.h"

#include <QVariant>

namespace Zudunmaf
{

/// Compares many values with one condition. The bounds are converted once, in the constructor, because a host can have
/// millions of features.
///
/// A value satisfies a condition as the line of the condition says:
/// - Any value satisfies a condition that is not set, or is on a boolean or an unknown type, or has an empty text.
/// - A text or an option must be equal to the text, case-sensitively.
/// - An integer or a float must be between the bounds, inclusive.
///
/// An editor stores the 32-bit float nearest to the number that the user has entered with three decimals: 0.1 becomes
/// 0.100000001. Without a conversion, the bounds of a float are therefore widened to the 32-bit float nearest to the
/// bound, and to the number with three decimals if the bound is the 32-bit float nearest to it. A condition that was
/// read from a line then gives the same results as the one in the dialog. With a conversion, each bound is widened by
/// 2^-22 of its converted value, or by the difference to the next 32-bit float after the bound, whichever is more.
class GDM_EXPORT ConditionMatcher
{
public:
    /// Copies what it needs of the condition. `valueUnits` is the host's code of the units of the values; -1 if they
    /// are those of the condition, or none. Numbers are compared without a conversion if `valueUnits` is -1 or the
    /// condition has no units. (Restoring such a condition fails if the attribute has units.) If the services cannot
    /// convert the units, no value satisfies bounds.
    explicit ConditionMatcher(const AttrCondition &condition, int valueUnits = -1);

    /// Returns true if an attribute with this value satisfies the condition. An invalid variant means that the feature
    /// does not have the attribute, and satisfies no condition. A value of another metatype than the condition
    /// compares, such as a QString with bounds, satisfies neither text nor bounds; NaN satisfies no bounds.
    bool matches(const QVariant &value) const;

private:
    enum Rule { Anything, EqualText, Between, Nothing };

    void setBounds(const AttrCondition &condition, int valueUnits);
    bool isBetween(double number) const;

    Rule m_rule;
    double m_low;
    double m_high;
    QString m_text;
};

/// Returns true if an attribute with this value satisfies the condition. For many values, use a ConditionMatcher, which
/// converts the bounds only once.
GDM_EXPORT bool matches(const AttrCondition &condition, const QVariant &value, int valueUnits = -1);

} // namespace Zudunmaf

#endif
