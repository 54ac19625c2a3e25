#ifndef GDM_CONDITIONS_NUMBER_UNITS_H
#define GDM_CONDITIONS_NUMBER_UNITS_H

#include <QString>

namespace Zudunmaf
{

/// The text of the units with this code, empty if the services have none for it.
QString textOfUnits(int code);

/// The way from the units of a saved number to those that it is used in. A number is converted by the services, as a
/// 32-bit float, and keeps each of its bits where the units are the same. Internal: not installed.
class NumberUnits
{
public:
    /// A text counts more than its code, which may belong to another release of the host.
    NumberUnits(int savedCode, const QString &savedText, int target);

    /// Returns true if both are the same units, or both are none.
    bool isSame() const { return m_way == Same; }
    /// Returns true if one of the two is no units.
    bool isOneWithout() const { return m_way == OneWithout; }
    /// Returns true if the services do not know the units, or do not convert the one into the other.
    bool isUnknown() const { return m_way == Unknown; }

    /// Returns the number in the target units; unchanged unless both units are known and differ. Finite numbers
    /// beyond the range of a 32-bit float become infinite.
    double converted(double number) const;

private:
    enum Way { Same, Known, OneWithout, Unknown };

    static Way wayBetween(int source, int target);

    int m_source;
    int m_target;
    Way m_way;
};

} // namespace Zudunmaf

#endif
