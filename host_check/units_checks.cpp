#include "loading.h"
#include "walk.h"

#include "gdm/host/gen_services.h"

#include <cfloat>
#include <cmath>
#include <set>

namespace Zudunmaf::hostcheck
{

namespace
{

float converted(float value, int source, int target)
{
    HOST(gen__torvex_units_convert_2)(&value, source, target);
    return value;
}

/// The way back, as an editor stores what it shows.
float stored(float value, int unitsClass, int displayUnits)
{
    int code = unitsClass;
    HOST(gen__torvex_units_convert)(nullptr, &code, displayUnits);
    HOST(gen__torvex_units_convert_f)(&value, unitsClass, code);
    return value;
}

std::string unitText(int unitsClass, int displayUnits)
{
    const char *answer = HOST(gen__torvex_cur_units_str)(unitsClass, displayUnits);
    expect(answer, text("a text for the units ", unitsClass, " shown as ", displayUnits), "null");
    return answer;
}

/// A promise about the units of a definition and those in which its numbers are shown, -1 included in both.
template <void (*check)(int unitsClass, int displayUnits)>
void forEachPair(const Settings &settings)
{
    std::set<int> codes(settings.units.begin(), settings.units.end());
    for (const DmlAttrDef *definition : attributesIfAny(settings)) {
        if (definition->type == DmlAttrFloat)
            codes.insert(definition->unitsClass);
    }
    codes.insert(-1);
    if (codes.size() == 1)
        notCheckable("no attribute has units; --units names codes to check");
    for (int unitsClass : codes) {
        for (int displayUnits : codes)
            check(unitsClass, displayUnits);
    }
}

/// The same, for some numbers that are converted and with how far the result may be off. A float resolves seven digits,
/// and where units have different zeros, seven digits of what is shown.
template <void (*check)(int unitsClass, int displayUnits, float number, float tolerance)>
void forEachNumber(int unitsClass, int displayUnits)
{
    if (displayUnits == -1)
        return; // shown and stored as it is
    const float zero = std::fabs(stored(0, unitsClass, displayUnits));
    for (float number : {0.0f, 0.001f, -1.25f, 25.4f, 5000.0f})
        check(unitsClass, displayUnits, number, 16 * FLT_EPSILON * (std::fabs(number) + zero));
}

void numberComesBack(int unitsClass, int displayUnits, float number, float tolerance)
{
    const float result = stored(converted(number, unitsClass, displayUnits), unitsClass, displayUnits);
    expect(std::fabs(result - number) <= tolerance,
           text(number, " in units ", unitsClass, " back from units ", displayUnits), text(result));
}

void unconvertedKeepsUnits(int unitsClass, int displayUnits)
{
    const float result = converted(1000, unitsClass, displayUnits);
    const std::string where = text("for 1000 of units ", unitsClass, " shown in units ", displayUnits);
    if (unitsClass == -1 || displayUnits == -1)
        expectEqual(result, 1000, where);
    if (result == 1000)
        expectEqual(unitText(unitsClass, displayUnits),
                    unitsClass == -1 ? "" : unitText(unitsClass, unitsClass), "as the text " + where);
}

void textHasNoBlank(int unitsClass, int displayUnits)
{
    const std::string answer = unitText(unitsClass, displayUnits);
    expect(answer.find_first_of(" \t\n\v\f\r") == std::string::npos,
           text("no blank in the text of the units ", unitsClass, " shown as ", displayUnits),
           quoted(answer));
}

void textIsRead(int unitsClass, int displayUnits, float number, float tolerance)
{
    const std::string shown = unitText(unitsClass, displayUnits);
    if (unitsClass == -1 || shown.empty())
        return;
    const int code = HOST(gen__torvex_get_str_units)(shown.c_str());
    const float result = converted(converted(number, unitsClass, displayUnits), code, unitsClass);
    expect(std::fabs(result - number) <= tolerance,
           text("the units of ", quoted(shown), ", which read ", number, " back into units ", unitsClass),
           text("code ", code, ", which reads ", result));
}

void unknownUnitIsNone(const Settings &)
{
    expectEqual(HOST(gen__torvex_get_str_units)("no_such_unit"), -1, "for a text that is no unit");
}

} // namespace

const std::vector<Check> &unitsChecks()
{
    constexpr Verdict Must = Verdict::Broken, Should = Verdict::Advice;
    static const std::vector<Check> checks{
        {"Numbers come back from all units", Must, forEachPair<forEachNumber<numberComesBack>>},
        {"A number that is not converted keeps its units", Should, forEachPair<unconvertedKeepsUnits>},
        {"No unit text is null or has a blank", Must, forEachPair<textHasNoBlank>},
        {"A unit text names what is shown, and is read back", Must, forEachPair<forEachNumber<textIsRead>>},
        {"A text that is no unit gives -1", Should, unknownUnitIsNone},
    };
    return checks;
}

} // namespace Zudunmaf::hostcheck
