#ifndef GDM_CONDITIONS_CONDITION_MATCHER_H
#define GDM_CONDITIONS_CONDITION_MATCHER_H

#include "gdm/conditions/attr_condition.h"

#include <QVariant>

namespace Zudunmaf
{

/// Says of many values whether they satisfy one condition. Bounds are converted once, in the constructor, so that a
/// host can go through millions of features.
///
/// A condition means what its line reads:
/// - One that is not set, one of a boolean and one with an empty text read as the name alone. Any value satisfies them.
/// - A text or an option takes exactly its text, case included.
/// - An integer or a float takes numbers from the lower bound to the upper one, both included.
///
/// An editor stores the 32-bit float next to the number that the user has entered with three decimals: 0.1 is kept as
/// 0.100000001. Without a conversion, the bounds of a float are therefore widened to the 32-bit float next to the bound,
/// and to the number with three decimals if the bound is the 32-bit float next to it. So a condition that was read from
/// a line has the same answers as the one in the dialog. With a conversion, each bound is widened by 2^-22 of its
/// converted value, or by what the next 32-bit float after the bound adds to it if that is more.
class GDM_EXPORT ConditionMatcher
{
public:
    /// Keeps what it needs of the condition. `valueUnits` is the host's code of the units of the values to come; -1 if
    /// they are those of the condition, or none. Numbers are compared as they are if `valueUnits` is -1 or the condition
    /// has no units, while restoring such a condition is refused if the attribute has units. If the services cannot
    /// convert between the two, no value satisfies bounds.
    explicit ConditionMatcher(const AttrCondition &condition, int valueUnits = -1);

    /// Returns true if an attribute with this value satisfies the condition. An invalid variant means that the attribute
    /// is not carried: nothing is satisfied by it. A value of another kind than the condition asks for, such as a
    /// QString for bounds, satisfies neither text nor bounds; NaN satisfies no bounds.
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

/// Returns true if an attribute with this value satisfies the condition. The same as a ConditionMatcher that is used
/// once; for many values, keep a ConditionMatcher, which converts the bounds only once.
GDM_EXPORT bool matches(const AttrCondition &condition, const QVariant &value, int valueUnits = -1);

} // namespace Zudunmaf

#endif
