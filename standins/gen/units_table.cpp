#include "gen/units_table.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>

namespace Zudunmaf
{
namespace gen
{

namespace
{

constexpr double DegreesInRadian = 57.295779513082320877;

// The place of a row is its code, and dictionaries hold codes: a new unit goes behind the last.
constexpr Unit units[] = {
    /*  0 */ {"inch", Dimension::Length, 25.4},
    /*  1 */ {"mm", Dimension::Length, 1.0},
    /*  2 */ {"mil", Dimension::Length, 0.0254},
    /*  3 */ {"um", Dimension::Length, 1e-3},
    /*  4 */ {"cm", Dimension::Length, 10.0},
    /*  5 */ {"m", Dimension::Length, 1e3},
    /*  6 */ {"ohm", Dimension::Resistance, 1.0},
    /*  7 */ {"mohm", Dimension::Resistance, 1e-3},
    /*  8 */ {"kohm", Dimension::Resistance, 1e3},
    /*  9 */ {"Mohm", Dimension::Resistance, 1e6},
    /* 10 */ {"pF", Dimension::Capacitance, 1e-12},
    /* 11 */ {"nF", Dimension::Capacitance, 1e-9},
    /* 12 */ {"uF", Dimension::Capacitance, 1e-6},
    /* 13 */ {"mF", Dimension::Capacitance, 1e-3},
    /* 14 */ {"F", Dimension::Capacitance, 1.0},
    /* 15 */ {"degC", Dimension::Temperature, 1.0},
    /* 16 */ {"degF", Dimension::Temperature, 5.0 / 9.0, 32.0},
    /* 17 */ {"K", Dimension::Temperature, 1.0, 273.15},
    /* 18 */ {"deg", Dimension::Angle, 1.0},
    /* 19 */ {"rad", Dimension::Angle, DegreesInRadian},
    /* 20 */ {"mrad", Dimension::Angle, DegreesInRadian * 1e-3},
    /* 21 */ {"%", Dimension::Proportion, 1.0},
    /* 22 */ {"ppm", Dimension::Proportion, 1e-4},
    /* 23 */ {"nH", Dimension::Inductance, 1e-9},
    /* 24 */ {"uH", Dimension::Inductance, 1e-6},
    /* 25 */ {"mH", Dimension::Inductance, 1e-3},
    /* 26 */ {"uV", Dimension::Voltage, 1e-6},
    /* 27 */ {"mV", Dimension::Voltage, 1e-3},
    /* 28 */ {"V", Dimension::Voltage, 1.0},
    /* 29 */ {"kV", Dimension::Voltage, 1e3},
    /* 30 */ {"uA", Dimension::Current, 1e-6},
    /* 31 */ {"mA", Dimension::Current, 1e-3},
    /* 32 */ {"A", Dimension::Current, 1.0},
    /* 33 */ {"ps", Dimension::Time, 1e-12},
    /* 34 */ {"ns", Dimension::Time, 1e-9},
    /* 35 */ {"us", Dimension::Time, 1e-6},
    /* 36 */ {"ms", Dimension::Time, 1e-3},
    /* 37 */ {"s", Dimension::Time, 1.0},
    /* 38 */ {"min", Dimension::Time, 60.0},
    /* 39 */ {"Hz", Dimension::Frequency, 1.0},
    /* 40 */ {"kHz", Dimension::Frequency, 1e3},
    /* 41 */ {"MHz", Dimension::Frequency, 1e6},
    /* 42 */ {"GHz", Dimension::Frequency, 1e9},
};

/// The nearest float, saturated: beyond its range a plain conversion is undefined.
float narrowed(double number)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return std::isfinite(number) ? static_cast<float>(std::clamp(number, -largest, largest))
                                 : static_cast<float>(number);
}

} // namespace

int unitCount()
{
    return static_cast<int>(std::size(units));
}

const Unit *unitOf(int code)
{
    return code >= 0 && code < unitCount() ? &units[code] : nullptr;
}

int codeOfUnit(const char *text)
{
    const auto hasText = [text](const Unit &unit) { return std::strcmp(unit.text, text) == 0; };
    const Unit *const found =
        text ? std::find_if(std::begin(units), std::end(units), hasText) : std::end(units);
    return found == std::end(units) ? -1 : static_cast<int>(found - units);
}

const char *nameOf(Dimension dimension)
{
    switch (dimension) {
    case Dimension::Length:
        return "length";
    case Dimension::Angle:
        return "angle";
    case Dimension::Temperature:
        return "temperature";
    case Dimension::Proportion:
        return "proportion";
    case Dimension::Time:
        return "time";
    case Dimension::Frequency:
        return "frequency";
    case Dimension::Voltage:
        return "voltage";
    case Dimension::Current:
        return "current";
    case Dimension::Resistance:
        return "resistance";
    case Dimension::Capacitance:
        return "capacitance";
    case Dimension::Inductance:
        return "inductance";
    }
    return "";
}

int shownUnits(int unitsClass, int displayUnits)
{
    const Unit *own = unitOf(unitsClass);
    const Unit *shown = unitOf(displayUnits);
    return own && shown && own->dimension == shown->dimension ? displayUnits : unitsClass;
}

void convertUnits(float *value, int source, int target)
{
    // Between the same units the number must not change by a bit.
    if (source == target || shownUnits(source, target) != target)
        return;
    const Unit &from = *unitOf(source);
    const Unit &to = *unitOf(target);

    const double ratio = from.factor / to.factor;
    double number = (*value - from.zero) * ratio + to.zero;
    // Next to a shifted zero only the rounding of the float that came in is left, and it would read "-0.000".
    const double resolution = std::numeric_limits<float>::epsilon() * std::fabs(*value) * ratio;
    if (from.zero != to.zero && std::fabs(number) < resolution)
        number = 0.0;
    *value = narrowed(number);
}

} // namespace gen
} // namespace Zudunmaf
