#ifndef GDM_CONDITIONS_NUMBER_UNITS_H
#define GDM_CONDITIONS_NUMBER_UNITS_H

#include <QString>

namespace Zudunmaf
{

/// Returns the 32-bit float nearest to the number; infinite beyond its range, where a plain conversion is undefined.
float narrowedNumber(double number);

/// Returns the text of the units with this code; empty if the services have none.
QString textOfUnits(int code);

/// Converts saved numbers to the units in which they are used. The services convert a number as a 32-bit float; if the
/// units are the same, the number is unchanged. Internal: not installed.
class NumberUnits
{
public:
    /// A text takes precedence over the code, which can be that of another release of the host.
    NumberUnits(int savedCode, const QString &savedText, int target);

    /// Returns true if the units are the same, or if there are none.
    bool isSame() const { return m_relation == Same; }
    /// Returns true if only one of the two has units.
    bool isOneUnitless() const { return m_relation == OneUnitless; }
    /// Returns true if the services do not know the units, or cannot convert them.
    bool isUnknown() const { return m_relation == Unknown; }

    /// Returns the number in the target units; unchanged unless both units are known and differ. Finite numbers
    /// beyond the range of a 32-bit float become infinite.
    double converted(double number) const;

private:
    enum Relation { Same, Convertible, OneUnitless, Unknown };

    static Relation relationBetween(int source, int target);

    int m_source;
    int m_target;
    Relation m_relation;
};

} // namespace Zudunmaf

#endif
