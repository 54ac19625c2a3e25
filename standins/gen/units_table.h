#ifndef GEN_UNITS_TABLE_H
#define GEN_UNITS_TABLE_H

#include <QString>

/// The units. Definitions, display units and unit texts share one set of codes.
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

/// A number n in this unit is (n - zero) * factor in the base unit of its dimension.
struct Unit {
    const char *text;      ///< ASCII without blanks, valid in every encoding; case-sensitive
    const char *spellings; ///< other accepted spellings: UTF-8, separated by blanks
    Dimension dimension;
    double factor;
    double zero = 0.0; ///< the number in this unit at 0 in the base unit
};

/// Codes range from 0 to unitCount() - 1.
int unitCount();

/// Returns null if `code` is out of range.
const Unit *unitOf(int code);

/// Returns the code of the unit with this text, otherwise with this spelling, otherwise with this spelling in any case.
/// Returns -1 if there is none, or several: "MOHM" could be "mohm" or "Mohm". docs/dictionary-format.md lists the
/// spellings.
int codeOfUnit(const QString &text);

/// Returns the English name of a dimension.
const char *nameOf(Dimension dimension);

/// Returns the units in which a number of `unitsClass` is shown: `displayUnits` if both have the same dimension,
/// otherwise `unitsClass`.
int shownUnits(int unitsClass, int displayUnits);

/// Converts `*value` in place. Does nothing if the codes are not units of the same dimension. A finite number stays
/// finite: a result out of range becomes the largest float.
void convertUnits(float *value, int source, int target);

} // namespace gen
} // namespace Zudunmaf

#endif
