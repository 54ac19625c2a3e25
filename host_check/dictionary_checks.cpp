#include "report.h"
#include "walk.h"

#include <algorithm>
#include <cstring>
#include <set>

namespace Zudunmaf::hostcheck
{

namespace
{

void walkEnds(const Settings &settings)
{
    const Walk all = walk(settings.dictionary);
    expect(all.trouble.empty(), text("status 0 and null at the end of dictionary ", settings.dictionary),
           text(all.trouble, " after ", all.definitions.size(), " attributes"));
    keptWith(text(attributesOf(settings).size(), " attributes"));
}

void maskIsHonoured(const Settings &settings)
{
    const Definitions all = attributesOf(settings);
    for (unsigned int mask : {EntityJob, EntityStep, EntitySymbol, EntityLayer, EntityWheel, EntityNet,
                              EntityComponent, EntityFeature}) {
        std::multiset<std::string> missing;
        for (const DmlAttrDef *definition : all) {
            if (definition->entityMask & mask)
                missing.insert(fieldText(definition->name));
        }
        const Walk masked = walk(settings.dictionary, mask);
        const std::string wanted = text("the attributes that have a bit of mask 0x", std::hex, mask);
        expect(masked.trouble.empty(), wanted, masked.trouble);
        for (const DmlAttrDef *definition : masked.definitions) {
            const auto found = missing.find(fieldText(definition->name));
            expect(found != missing.end(), wanted, fieldText(definition->name) + " as well");
            missing.erase(found);
        }
        expect(missing.empty(), wanted, missing.empty() ? "" : "a walk without " + *missing.begin());
    }
}

void walksTakeTurns(const Settings &settings)
{
    const Definitions all = attributesOf(settings);
    int cursors[2] = {0, 0};
    std::string trouble;
    for (const DmlAttrDef *definition : all) {
        for (int &cursor : cursors) {
            const DmlAttrDef *next = nextAttribute(settings.dictionary, EntityAll, &cursor, &trouble);
            const std::string came = next ? fieldText(next->name) : trouble.empty() ? "the end" : trouble;
            expectEqual(came, fieldText(definition->name),
                        "from two walks that take turns, as from one before");
        }
    }
}

void recordsStay(const Settings &settings)
{
    const Definitions all = attributesOf(settings);
    std::vector<DmlAttrDef> before;
    before.reserve(all.size());
    for (const DmlAttrDef *definition : all)
        before.push_back(*definition);
    walk(settings.dictionary);
    std::set<const DmlAttrDef *> records;
    for (size_t index = 0; index < all.size(); ++index) {
        expect(records.insert(all[index]).second, "a record of its own for each attribute",
               text("one record twice, now for ", fieldText(all[index]->name)));
        expect(std::memcmp(all[index], &before[index], offsetof(DmlAttrDef, reserved252)) == 0,
               text("an unchanged record of ", fieldText(before[index].name), " after another walk"),
               "another content");
    }
}

void namesAreUnique(const Settings &settings)
{
    std::set<std::string> names;
    for (const DmlAttrDef *definition : attributesOf(settings))
        expect(names.insert(fieldText(definition->name)).second, "each name once",
               fieldText(definition->name) + " twice");
}

/// A promise about each definition by itself.
template <void (*check)(const DmlAttrDef &definition, const std::string &name)>
void forEach(const Settings &settings)
{
    for (const DmlAttrDef *definition : attributesOf(settings))
        check(*definition, fieldText(definition->name));
}

void textsEnd(const DmlAttrDef &definition, const std::string &name)
{
    const auto expectEnd = [&name](const auto &field, const char *what) {
        expect(std::memchr(field, '\0', sizeof field),
               text("a NUL within the ", sizeof field, " bytes of the ", what, " of ", name), "none");
    };
    expectEnd(definition.name, "name");
    expectEnd(definition.prompt, "prompt");
    expectEnd(definition.group, "group");
}

void entriesAreTexts(const DmlAttrDef &definition, const std::string &name)
{
    const bool hasEntries = definition.type == DmlAttrOption ||
                            (definition.type == DmlAttrText && definition.textChoiceCount > 0);
    if (!hasEntries || !definition.optionList)
        return;
    for (int index = 0; index < definition.optionCount; ++index)
        expect(definition.optionList[index], text("a text for entry ", index, " of ", name), "null");
}

void isUsable(const DmlAttrDef &definition, const std::string &name)
{
    expect(!name.empty(), "a name of each attribute",
           text("none with the prompt ", fieldText(definition.prompt)));
    for (const std::string &field : {name, fieldText(definition.prompt), fieldText(definition.group)})
        expect(printable(field) == field, text("printable UTF-8 in the texts of ", name), field);
    expect(definition.type >= DmlAttrBoolean && definition.type <= DmlAttrFloat,
           text("a type 0 to 4 of ", name), text(definition.type));
    expect(definition.entityMask != 0, text("an entity mask of ", name), "0");
}

template <class Number>
void expectWithin(const std::string &name, Number low, Number value, Number high)
{
    expect(low <= high, text("limits of ", name, " in order"), text(low, " to ", high));
    expect(low <= value && value <= high, text("a default of ", name, " from ", low, " to ", high),
           text(value));
}

void defaultIsAllowed(const DmlAttrDef &definition, const std::string &name)
{
    if (definition.type == DmlAttrInteger)
        expectWithin(name, definition.intMin, definition.defaultInt, definition.intMax);
    // A float's default has single precision, its limits have double precision.
    if (definition.type == DmlAttrFloat)
        expectWithin(name, float(definition.floatMin), definition.defaultFloat, float(definition.floatMax));
    if (definition.type == DmlAttrOption)
        expect(definition.defaultOption < definition.optionCount,
               text("a default among the ", definition.optionCount, " entries of ", name),
               text("index ", definition.defaultOption));
}

} // namespace

const std::vector<Check> &dictionaryChecks()
{
    constexpr Verdict Must = Verdict::Broken, Should = Verdict::Advice;
    static const std::vector<Check> checks{
        {"A walk ends", Must, walkEnds},
        {"A walk honours the entity mask", Must, maskIsHonoured},
        {"Walks are alike, also if two take turns", Should, walksTakeTurns},
        {"Each attribute has a record that stays", Must, recordsStay},
        {"Names, prompts and groups end within their fields", Must, forEach<textsEnd>},
        {"Each entry of a list is a text", Must, forEach<entriesAreTexts>},
        {"Each attribute has a name, texts in UTF-8, a known type and an entity", Should, forEach<isUsable>},
        {"Names are unique", Should, namesAreUnique},
        {"Limits are in order, and defaults are allowed", Should, forEach<defaultIsAllowed>},
    };
    return checks;
}

} // namespace Zudunmaf::hostcheck
