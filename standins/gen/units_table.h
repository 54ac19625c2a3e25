#ifndef GEN_UNITS_TABLE_H
#define GEN_UNITS_TABLE_H

#include <QString>

/// The one code space of units that definitions, display units and unit texts share.
namespace Zudunmaf
{
namespace gen
{

enum class Dimension {
    Length,
    Angle,
    Temperature,
    Proportion,
    Time,
    Frequency,
    Voltage,
    Current,
    Resistance,
    Capacitance,
    Inductance
};

/// A number n of a unit is (n - zero) * factor in the base unit of its dimension.
struct Unit {
    const char *text;      ///< ASCII without blanks, so that it reads back in every encoding; case counts
    const char *spellings; ///< UTF-8, separated by blanks: what else is read as this unit
    Dimension dimension;
    double factor;
    double zero = 0.0; ///< what the unit reads where the base unit reads 0
};

/// The code of the first unit is 0, and there is no gap up to the last.
int unitCount();

/// Null for a code that no unit has; any int may be asked for.
const Unit *unitOf(int code);

/// The code of the unit whose text is `text`; failing that, of the one unit that has it as a spelling, first
/// as written, then in any case. -1 if there is none, or if the case decides between several meanings: "MOHM"
/// is neither "mohm" nor "Mohm". docs/dictionary-format.md lists the spellings.
int codeOfUnit(const QString &text);

/// English word for a dimension.
const char *nameOf(Dimension dimension);

/// The code of the units in which a number of `unitsClass` stands under `displayUnits`: these where they can
/// hold it, else `unitsClass` itself.
int shownUnits(int unitsClass, int displayUnits);

/// Converts `*value` in place where both codes are units of one dimension, and leaves it alone otherwise. A
/// finite number stays finite: beyond the range of a float it becomes the largest one.
void convertUnits(float *value, int source, int target);

} // namespace gen
} // namespace Zudunmaf

#endif
