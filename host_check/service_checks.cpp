#include "loading.h"
#include "walk.h"

#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "gdm/host/message_keys.h"

#include <algorithm>
#include <cctype>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <random>
#include <set>

namespace Zudunmaf::hostcheck
{

namespace
{

constexpr char Marker[] = "@$@#";

// Generated from gdm/host/message_keys.h.
constexpr const char *messageKeys[] = {
#include "message_keys.inc"
};

std::string quoted(const std::string &text)
{
    return '"' + text + '"';
}

/// More than the fixed texts to check with, where the dictionary has them.
Definitions attributesFor(const Settings &settings)
{
    std::string ignored;
    return soundAttributes(settings, &ignored);
}

std::string message(const char *key)
{
    const char *answer = HOST(gen__nls_nlst)(key);
    expect(answer, text("a text for ", key), "null");
    return answer;
}

void eachKeyHasText(const Settings &)
{
    for (const char *key : messageKeys) {
        const std::string answer = message(key);
        expect(!answer.empty() && answer.find(Marker) == std::string::npos, text("a text for ", key),
               quoted(answer));
    }
}

void unknownKeyGivesItsText(const Settings &)
{
    const std::string answer = message("@$@#gdm_qt@$@#GENERAL@$@#1@$@#No such message");
    expect(answer == "No such message", "field 4 of a key that no catalogue has", quoted(answer));
}

void translationsKeepPlaceholders(const Settings &)
{
    for (const char *key : messageKeys) {
        const std::string answer = message(key);
        for (const char *placeholder : {"%1", "%2"}) {
            const bool isInKey = std::strstr(key, placeholder);
            expect((answer.find(placeholder) != std::string::npos) == isInKey,
                   text(placeholder, isInKey ? " in the text of " : " not in the text of ", key),
                   quoted(answer));
        }
    }
}

/// A dialog fills its group list by one key and compares the selected group with the texts of the two others.
void allGroupsAgree(const Settings &)
{
    const char *const keysOfDialogs[][3] = {
        {keys::FilterAllGroupsRow, keys::FilterAllGroupsAtFill, keys::FilterAllGroupsAtFilter},
        {keys::FeatureAllGroupsRow, keys::FeatureAllGroupsAtFill, keys::FeatureAllGroupsAtFilter}};
    for (const auto &keysOfDialog : keysOfDialogs) {
        const std::string row = message(keysOfDialog[0]);
        for (const char *key : keysOfDialog)
            expect(message(key) == row, text("the text of ", keysOfDialog[0], " for ", key),
                   quoted(message(key)));
    }
}

void promptIsText(const Settings &settings)
{
    const auto check = [](const char *name, const char *prompt) {
        const std::string call =
            text("gen__nls_nlsa_get_att_prompt(", quoted(name), ", ", quoted(prompt), ")");
        expect(HOST(gen__nls_nlsa_get_att_prompt)(name, prompt), "a text from " + call, "null");
    };
    check("width", "Width");
    check("width", "");
    for (const DmlAttrDef *definition : attributesFor(settings))
        check(fieldText(definition->name).c_str(), fieldText(definition->prompt).c_str());
}

void configurationIsRead(const Settings &)
{
    for (const char *key : {keys::DisplayByPrompt, keys::ShowObsolete}) {
        unsigned char value = 0, origin = 0;
        const int status = HOST(gen__cfg_get)(key, &value, &origin);
        expect(status == 0, text("status 0 for ", key), text("status ", status));
    }
}

void logReturns(const Settings &)
{
    HOST(gen__log_status_check)(__FILE__, __LINE__);
}

void memoryIsUsable(const Settings &)
{
    constexpr size_t Count = 20000;
    std::vector<unsigned char *> blocks(Count);
    for (size_t index = 0; index < Count; ++index) {
        void *block = HOST(gen__mem_malloc)(sizeof(DmlAttrValue), 1, __FILE__, __LINE__);
        expect(block, "memory", text("null for block ", index));
        expect(reinterpret_cast<uintptr_t>(block) % alignof(DmlAttrValue) == 0,
               text("a multiple of ", alignof(DmlAttrValue)), text("address ", block));
        blocks[index] =
            static_cast<unsigned char *>(std::memset(block, int(index % 251), sizeof(DmlAttrValue)));
    }
    for (size_t index = 0; index < Count; ++index) {
        const auto isOwn = [index](unsigned char byte) { return byte == index % 251; };
        expect(std::all_of(blocks[index], blocks[index] + sizeof(DmlAttrValue), isOwn),
               "blocks that do not overlap", text("block ", index, " was overwritten"));
    }
    std::shuffle(blocks.begin(), blocks.end(), std::mt19937(1));
    for (void *block : blocks)
        HOST(gen__mem_free)(block, 1, __FILE__, __LINE__);
}

void compare(const std::string &a, const std::string &b, bool areEqual)
{
    const int result = HOST(gen__str_cmp_nc)(a.c_str(), b.c_str());
    expect((result == 0) == areEqual,
           text(areEqual ? "0" : "not 0", " from gen__str_cmp_nc(", quoted(a), ", ", quoted(b), ")"),
           text(result));
}

void caseIsIgnored(const Settings &)
{
    for (const char *group : {"Obsolete", "OBSOLETE", "obsolete", "oBSOLETe"})
        compare(group, "Obsolete", true);
    compare("", "", true);
}

void otherTextsDiffer(const Settings &)
{
    for (const char *group : {"Obsolete parts", "Obsolet", "", "Geometry", " Obsolete", "Absolete"})
        compare(group, "Obsolete", false);
}

void match(const std::string &name, const std::string &pattern, bool matches)
{
    expect(
        HOST(gen__str_cmp_reg)(name.c_str(), pattern.c_str()) == matches,
        text(matches ? "true" : "false", " from gen__str_cmp_reg(", quoted(name), ", ", quoted(pattern), ")"),
        matches ? "false" : "true");
}

void starMatchesEverything(const Settings &settings)
{
    for (const char *name : {"", "width", "line width", "*", "["})
        match(name, "*", true);
    for (const DmlAttrDef *definition : attributesFor(settings))
        match(fieldText(definition->name), "*", true);
}

void partsMatch(const Settings &)
{
    for (const char *pattern : {"wid", "WID", "dth", "Width", "w*h", "W?D", "[vw]id"})
        match("Width", pattern, true);
}

void othersDoNotMatch(const Settings &)
{
    for (const char *pattern : {"xyz", "widths", "w?h", "[xy]id", "["})
        match("Width", pattern, false);
}

/// The codes of the definitions and of --units, without -1. Ends the running check if there is none.
std::set<int> unitCodes(const Settings &settings)
{
    std::set<int> codes(settings.units.begin(), settings.units.end());
    for (const DmlAttrDef *definition : attributesFor(settings)) {
        if (definition->type == DmlAttrFloat)
            codes.insert(definition->unitsClass);
    }
    codes.erase(-1);
    if (codes.empty())
        notCheckable("no attribute has units; --units names codes to check");
    return codes;
}

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

/// Calls `use` for each definition's code with each display code, -1 included in both.
template <class Use>
void forEachPair(const Settings &settings, Use use)
{
    std::set<int> codes = unitCodes(settings);
    codes.insert(-1);
    for (int unitsClass : codes) {
        for (int displayUnits : codes)
            use(unitsClass, displayUnits);
    }
}

/// Calls `check` for some numbers of each pair, with how far the result may be off. A float resolves seven digits, and
/// where units have different zeros, seven digits of what is shown.
template <class Check>
void forEachNumber(const Settings &settings, Check check)
{
    forEachPair(settings, [&](int unitsClass, int displayUnits) {
        if (displayUnits == -1)
            return; // shown and stored as it is
        const float zero = std::fabs(stored(0, unitsClass, displayUnits));
        for (float number : {0.0f, 0.001f, -1.25f, 25.4f, 5000.0f})
            check(unitsClass, displayUnits, number, 16 * FLT_EPSILON * (std::fabs(number) + zero));
    });
}

void unitTextsHaveNoBlank(const Settings &settings)
{
    forEachPair(settings, [](int unitsClass, int displayUnits) {
        const std::string answer = unitText(unitsClass, displayUnits);
        const bool hasBlank = std::any_of(answer.begin(), answer.end(),
                                          [](unsigned char character) { return std::isspace(character); });
        expect(!hasBlank, text("no blank in the text of the units ", unitsClass, " shown as ", displayUnits),
               quoted(answer));
    });
}

void noUnitsNoText(const Settings &settings)
{
    forEachPair(settings, [](int unitsClass, int displayUnits) {
        const std::string answer = unitText(unitsClass, displayUnits);
        expect(unitsClass != -1 || answer.empty(),
               text("no text for a number without units shown as ", displayUnits), quoted(answer));
    });
}

void noUnitsNoConversion(const Settings &settings)
{
    forEachPair(settings, [](int source, int target) {
        const float result = converted(25.4f, source, target);
        expect((source != -1 && target != -1) || result == 25.4f,
               text("25.4 left alone from ", source, " to ", target), text(result));
    });
}

void unitsComeBack(const Settings &settings)
{
    forEachNumber(settings, [](int unitsClass, int displayUnits, float number, float tolerance) {
        const float result = stored(converted(number, unitsClass, displayUnits), unitsClass, displayUnits);
        expect(std::fabs(result - number) <= tolerance,
               text(number, " in units ", unitsClass, " back from units ", displayUnits), text(result));
    });
}

void unitTextsAreRead(const Settings &settings)
{
    forEachNumber(settings, [](int unitsClass, int displayUnits, float number, float tolerance) {
        const std::string shown = unitText(unitsClass, displayUnits);
        if (unitsClass == -1 || shown.empty())
            return;
        const int code = HOST(gen__torvex_get_str_units)(shown.c_str());
        const float result = converted(converted(number, unitsClass, displayUnits), code, unitsClass);
        expect(std::fabs(result - number) <= tolerance,
               text("the units of ", quoted(shown), ", which read ", number, " back into units ", unitsClass),
               text("code ", code, ", which reads ", result));
    });
}

void unitTextNamesWhatIsShown(const Settings &settings)
{
    forEachNumber(settings, [](int unitsClass, int displayUnits, float number, float tolerance) {
        const bool isConverted = std::fabs(converted(number, unitsClass, displayUnits) - number) > tolerance;
        const std::string own = unitText(unitsClass, -1), shown = unitText(unitsClass, displayUnits);
        expect(!isConverted || own.empty() || shown != own,
               text("the units ", displayUnits, " named where numbers of the units ", unitsClass,
                    " are converted"),
               quoted(shown));
    });
}

void unlikeUnitsKeepTheirName(const Settings &settings)
{
    for (int unitsClass : unitCodes(settings)) {
        for (int displayUnits : unitCodes(settings)) {
            const std::string own = unitText(unitsClass, unitsClass),
                              shown = unitText(unitsClass, displayUnits);
            const bool isConverted = converted(1000, unitsClass, displayUnits) != 1000;
            expect(isConverted || shown == own,
                   text(quoted(own), " for the units ", unitsClass, ", which are not converted to ",
                        displayUnits),
                   quoted(shown));
        }
    }
}

void unknownUnitIsNone(const Settings &)
{
    const int code = HOST(gen__torvex_get_str_units)("no_such_unit");
    expect(code == -1, "-1 for a text that is no unit", text(code));
}

constexpr char Convert[] =
    "gen__torvex_units_convert_2 gen__torvex_units_convert gen__torvex_units_convert_f "
    "dml__atr_next";
constexpr char ConvertAndName[] =
    "gen__torvex_units_convert_2 gen__torvex_units_convert gen__torvex_units_convert_f "
    "gen__torvex_cur_units_str gen__torvex_get_str_units dml__atr_next";

} // namespace

const std::vector<Check> &serviceChecks()
{
    constexpr Verdict Must = Verdict::Broken, Should = Verdict::Advice;
    static const std::vector<Check> checks{
        {"Each message key has a text", Must, "gen__nls_nlst", eachKeyHasText},
        {"A key without a translation gives its field 4", Should, "gen__nls_nlst", unknownKeyGivesItsText},
        {"Each text has the placeholders of its key", Should, "gen__nls_nlst", translationsKeepPlaceholders},
        {"A dialog's keys of \"All Groups\" have one text", Should, "gen__nls_nlst", allGroupsAgree},
        {"A prompt is never null", Must, "gen__nls_nlsa_get_att_prompt dml__atr_next", promptIsText},
        {"Both configuration keys are read", Must, "gen__cfg_get", configurationIsRead},
        {"A report returns to its caller", Must, "gen__log_status_check", logReturns},
        {"Many records are usable at once", Must, "gen__mem_malloc gen__mem_free", memoryIsUsable},
        {"Texts that differ in case alone are equal", Must, "gen__str_cmp_nc", caseIsIgnored},
        {"Other texts are not equal", Must, "gen__str_cmp_nc", otherTextsDiffer},
        {"\"*\" matches every text", Must, "gen__str_cmp_reg dml__atr_next", starMatchesEverything},
        {"A part of a name matches, whatever its case", Should, "gen__str_cmp_reg", partsMatch},
        {"A name without the pattern does not match", Should, "gen__str_cmp_reg", othersDoNotMatch},
        {"Numbers come back from all units", Must, Convert, unitsComeBack},
        {"A number without units is left alone", Should, Convert, noUnitsNoConversion},
        {"No unit text is null or has a blank", Must, ConvertAndName, unitTextsHaveNoBlank},
        {"A number without units has no unit text", Should, ConvertAndName, noUnitsNoText},
        {"A unit text names the units that are shown", Must, ConvertAndName, unitTextNamesWhatIsShown},
        {"Units that are not converted keep their text", Should, ConvertAndName, unlikeUnitsKeepTheirName},
        {"Each unit text is read back", Must, ConvertAndName, unitTextsAreRead},
        {"A text that is no unit gives -1", Should, "gen__torvex_get_str_units", unknownUnitIsNone},
    };
    return checks;
}

} // namespace Zudunmaf::hostcheck
