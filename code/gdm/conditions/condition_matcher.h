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
/// A bound that an editor has stored is the 32-bit float next to what the user entered with three decimals: 0.1 is kept
/// as 0.100000001. Such a bound takes the entered number too. After a conversion, a number that differs from a bound by
/// no more than the resolution of a 32-bit float lies on it.
class GDM_EXPORT ConditionMatcher
{
public:
    /// Keeps what it needs of the condition. `valueUnits` is the host's code of the units of the values to come; -1 if
    /// they are those of the condition. If the services cannot convert between the two, no value satisfies bounds.
    explicit ConditionMatcher(const AttrCondition &condition, int valueUnits = -1);

    /// Returns true if an attribute with this value satisfies the condition. An invalid variant means that the attribute
    /// is not carried: nothing is satisfied by it. A value of another kind than the condition asks for, such as a
    /// QString for bounds, satisfies neither text nor bounds; NaN satisfies no bounds.
    bool matches(const QVariant &value) const;

private:
    enum Rule { Anything, EqualText, Between, Nothing };

    void setBounds(const AttrCondition &condition, int valueUnits);
    bool isBetween(double number) const { return number >= m_low && number <= m_high; }

    Rule m_rule;
    double m_low;
    double m_high;
    QString m_text;
};

/// Returns true if an attribute with this value satisfies the condition. The same as a ConditionMatcher that is used
/// once.
GDM_EXPORT bool matches(const AttrCondition &condition, const QVariant &value, int valueUnits = -1);

} // namespace Zudunmaf

#endif
