#include "loading.h"
#include "walk.h"

#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "gdm/host/message_keys.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace Zudunmaf::hostcheck
{

namespace
{

constexpr char Marker[] = "@$@#";

// Generated from gdm/host/message_keys.h.
constexpr const char *messageKeys[] = {
#include "message_keys.inc"
};

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
    expectEqual(message("@$@#gdm_qt@$@#GENERAL@$@#1@$@#No such message"), "No such message",
                "for a key that no catalogue has");
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
        for (const char *key : keysOfDialog)
            expectEqual(message(key), message(keysOfDialog[0]),
                        text("for ", key, ", as for ", keysOfDialog[0]));
    }
}

void promptIsText(const Settings &settings)
{
    const auto check = [](const std::string &name, const std::string &prompt) {
        expect(HOST(gen__nls_nlsa_get_att_prompt)(name.c_str(), prompt.c_str()),
               text("a text from gen__nls_nlsa_get_att_prompt(", quoted(name), ", ", quoted(prompt), ")"),
               "null");
    };
    check("width", "Width");
    check("width", "");
    for (const DmlAttrDef *definition : attributesIfAny(settings))
        check(fieldText(definition->name), fieldText(definition->prompt));
}

void configurationIsRead(const Settings &)
{
    for (const char *key : {keys::DisplayByPrompt, keys::ShowObsolete}) {
        unsigned char value = 0, origin = 0;
        expectEqual(HOST(gen__cfg_get)(key, &value, &origin), 0, text("as the status of ", key));
    }
}

void logReturns(const Settings &)
{
    HOST(gen__log_status_check)(__FILE__, __LINE__);
}

void recordsAreSeparate(const Settings &)
{
    std::vector<unsigned char *> records;
    for (int index = 0; index < 100; ++index) {
        void *record = HOST(gen__mem_malloc)(sizeof(DmlAttrValue), 1, __FILE__, __LINE__);
        expect(record && reinterpret_cast<uintptr_t>(record) % alignof(DmlAttrValue) == 0,
               text("memory at a multiple of ", alignof(DmlAttrValue)), text("address ", record));
        records.push_back(static_cast<unsigned char *>(std::memset(record, index, sizeof(DmlAttrValue))));
    }
    for (int index = 0; index < 100; ++index) {
        const auto isKept = [index](unsigned char byte) { return byte == index; };
        expect(std::all_of(records[index], records[index] + sizeof(DmlAttrValue), isKept),
               "records that do not overlap", text("record ", index, " overwritten by another one"));
        HOST(gen__mem_free)(records[index], 1, __FILE__, __LINE__);
    }
}

void expectComparison(const char *group, bool areEqual)
{
    const int result = HOST(gen__str_cmp_nc)(group, "Obsolete");
    expect((result == 0) == areEqual,
           text(areEqual ? "0" : "not 0", " from gen__str_cmp_nc(", quoted(group), ", \"Obsolete\")"),
           text(result));
}

void caseIsIgnored(const Settings &)
{
    for (const char *group : {"Obsolete", "OBSOLETE", "obsolete", "oBSOLETe"})
        expectComparison(group, true);
    for (const char *group : {"Obsolete parts", "Obsolet", "", "Geometry", " Obsolete", "Absolete"})
        expectComparison(group, false);
}

void expectMatch(const std::string &name, const char *pattern, bool isExpected)
{
    expectEqual(HOST(gen__str_cmp_reg)(name.c_str(), pattern), isExpected,
                text("from gen__str_cmp_reg(", quoted(name), ", ", quoted(pattern), ")"));
}

void starMatchesEverything(const Settings &settings)
{
    for (const char *name : {"", "width", "line width", "*", "["})
        expectMatch(name, "*", true);
    for (const DmlAttrDef *definition : attributesIfAny(settings))
        expectMatch(fieldText(definition->name), "*", true);
}

void partsMatch(const Settings &)
{
    for (const char *pattern : {"wid", "WID", "dth", "Width", "w*h", "W?D", "[vw]id"})
        expectMatch("Width", pattern, true);
    for (const char *pattern : {"xyz", "widths", "w?h", "[xy]id", "["})
        expectMatch("Width", pattern, false);
}

} // namespace

const std::vector<Check> &serviceChecks()
{
    constexpr Verdict Must = Verdict::Broken, Should = Verdict::Advice;
    static const std::vector<Check> checks{
        {"Each message key has a text", Must, eachKeyHasText},
        {"A key without a translation gives its field 4", Should, unknownKeyGivesItsText},
        {"Each text has the placeholders of its key", Should, translationsKeepPlaceholders},
        {"A dialog's keys of \"All Groups\" have one text", Should, allGroupsAgree},
        {"A prompt is never null", Must, promptIsText},
        {"Both configuration keys are read", Must, configurationIsRead},
        {"A report returns to its caller", Must, logReturns},
        {"Memory for records is separate and aligned", Must, recordsAreSeparate},
        {"Texts are equal if they differ in case alone, and only then", Must, caseIsIgnored},
        {"\"*\" matches every text", Must, starMatchesEverything},
        {"A pattern matches a part of a name, whatever its case", Should, partsMatch},
    };
    return checks;
}

} // namespace Zudunmaf::hostcheck
