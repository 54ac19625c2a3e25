#include "gen/units_table.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include <QHash>
#include <QStringList>

namespace Zudunmaf
{
namespace gen
{

namespace
{

constexpr double DegreesInRadian = 57.295779513082320877;

// A unit's index is its code, and dictionaries store codes: append new units at the end.
constexpr Unit units[] = {
    /*  0 */ {"inch", "in inches \" ″ ”", Dimension::Length, 25.4},
    /*  1 */ {"mm", "millimeter millimeters millimetre millimetres", Dimension::Length, 1.0},
    /*  2 */ {"mil", "mils thou", Dimension::Length, 0.0254},
    /*  3 */ {"um", "µm micron microns", Dimension::Length, 1e-3},
    /*  4 */ {"cm", "centimeter centimeters centimetre centimetres", Dimension::Length, 10.0},
    /*  5 */ {"m", "meter meters metre metres", Dimension::Length, 1e3},
    /*  6 */ {"ohm", "ohms Ω", Dimension::Resistance, 1.0},
    /*  7 */ {"mohm", "mohms mOhm mOhms mΩ", Dimension::Resistance, 1e-3},
    /*  8 */ {"kohm", "kohms kΩ", Dimension::Resistance, 1e3},
    /*  9 */ {"Mohm", "Mohms MOhm MOhms MΩ", Dimension::Resistance, 1e6},
    /* 10 */ {"pF", "", Dimension::Capacitance, 1e-12},
    /* 11 */ {"nF", "", Dimension::Capacitance, 1e-9},
    /* 12 */ {"uF", "µF", Dimension::Capacitance, 1e-6},
    /* 13 */ {"mF", "mf", Dimension::Capacitance, 1e-3},
    /* 14 */ {"F", "farad farads", Dimension::Capacitance, 1.0},
    /* 15 */ {"degC", "°C C celsius", Dimension::Temperature, 1.0},
    /* 16 */ {"degF", "°F fahrenheit", Dimension::Temperature, 5.0 / 9.0, 32.0},
    /* 17 */ {"K", "kelvin", Dimension::Temperature, 1.0, 273.15},
    /* 18 */ {"deg", "° degree degrees", Dimension::Angle, 1.0},
    /* 19 */ {"rad", "radian radians", Dimension::Angle, DegreesInRadian},
    /* 20 */ {"mrad", "", Dimension::Angle, DegreesInRadian * 1e-3},
    /* 21 */ {"%", "percent pct", Dimension::Proportion, 1.0},
    /* 22 */ {"ppm", "", Dimension::Proportion, 1e-4},
    /* 23 */ {"nH", "", Dimension::Inductance, 1e-9},
    /* 24 */ {"uH", "µH", Dimension::Inductance, 1e-6},
    /* 25 */ {"mH", "mh", Dimension::Inductance, 1e-3},
    /* 26 */ {"uV", "µV", Dimension::Voltage, 1e-6},
    /* 27 */ {"mV", "mv", Dimension::Voltage, 1e-3},
    /* 28 */ {"V", "volt volts", Dimension::Voltage, 1.0},
    /* 29 */ {"kV", "", Dimension::Voltage, 1e3},
    /* 30 */ {"uA", "µA", Dimension::Current, 1e-6},
    /* 31 */ {"mA", "ma", Dimension::Current, 1e-3},
    /* 32 */ {"A", "amp amps ampere amperes", Dimension::Current, 1.0},
    /* 33 */ {"ps", "", Dimension::Time, 1e-12},
    /* 34 */ {"ns", "", Dimension::Time, 1e-9},
    /* 35 */ {"us", "µs", Dimension::Time, 1e-6},
    /* 36 */ {"ms", "", Dimension::Time, 1e-3},
    /* 37 */ {"s", "sec secs second seconds", Dimension::Time, 1.0},
    /* 38 */ {"min", "mins minute minutes", Dimension::Time, 60.0},
    /* 39 */ {"Hz", "hertz", Dimension::Frequency, 1.0},
    /* 40 */ {"kHz", "", Dimension::Frequency, 1e3},
    /* 41 */ {"MHz", "Mhz MHZ", Dimension::Frequency, 1e6},
    /* 42 */ {"GHz", "", Dimension::Frequency, 1e9},
};

/// Symbols of units that are not in the table and differ from a known one only in case: "MV" must not be read as
/// "mV".
constexpr const char *otherMeanings[] = {"M", "S", "k", "MF", "MH", "MV", "MA", "Ms", "Mrad", "mHz"};

/// Unicode has two characters each for micro and ohm. Maps them to one.
QString unified(const QString &text)
{
    return text.normalized(QString::NormalizationForm_KC);
}

/// Finds units by text. Case matters only if several spellings differ in nothing else.
class UnitNames
{
public:
    UnitNames()
    {
        for (const char *text : otherMeanings)
            addInAnyCase(QString::fromLatin1(text), -1);
        for (int code = 0; code < unitCount(); ++code) {
            const QString names =
                QLatin1String(units[code].text) + QLatin1Char(' ') + QString::fromUtf8(units[code].spellings);
            for (const QString &name : unified(names).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
                m_asWritten.insert(name, code);
                addInAnyCase(name, code);
            }
        }
        // Last, because a unit's own text has priority over all spellings.
        for (int code = 0; code < unitCount(); ++code)
            m_asWritten.insert(QString::fromLatin1(units[code].text), code);
    }

    int codeOf(const QString &name) const
    {
        return m_asWritten.value(name, m_inAnyCase.value(name.toCaseFolded(), -1));
    }

private:
    void addInAnyCase(const QString &name, int code)
    {
        const QString folded = name.toCaseFolded();
        const bool isOther = m_inAnyCase.value(folded, code) != code;
        m_inAnyCase.insert(folded, isOther ? -1 : code);
    }

    QHash<QString, int> m_asWritten;
    QHash<QString, int> m_inAnyCase; ///< -1 if ambiguous
};

/// Returns the nearest float. A plain conversion is undefined outside of the range of float.
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

int codeOfUnit(const QString &text)
{
    static const UnitNames names;
    return names.codeOf(unified(text));
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
    // The same units must not change the number at all.
    if (source == target || shownUnits(source, target) != target)
        return;
    const Unit &from = *unitOf(source);
    const Unit &to = *unitOf(target);

    const double ratio = from.factor / to.factor;
    double number = (*value - from.zero) * ratio + to.zero;
    // Near a shifted zero, the result is only the rounding error of the input and would be shown as "-0.000".
    const double resolution = std::numeric_limits<float>::epsilon() * std::fabs(*value) * ratio;
    if (from.zero != to.zero && std::fabs(number) < resolution)
        number = 0.0;
    *value = narrowed(number);
}

} // namespace gen
} // namespace Zudunmaf
