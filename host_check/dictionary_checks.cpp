#include "printable.h"
#include "walk.h"

#include "gdm/host/dml_dictionary.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <set>

namespace Zudunmaf::hostcheck
{

namespace
{

/// An identifier that no host gives to a dictionary.
constexpr int UnknownDictionary = INT_MAX - 7;

std::vector<std::string> namesOf(const Definitions &definitions)
{
    std::vector<std::string> names;
    names.reserve(definitions.size());
    for (const DmlAttrDef *definition : definitions)
        names.push_back(fieldText(definition->name));
    return names;
}

/// The first name that one list has and the other lacks; empty if both are the same.
std::string difference(std::vector<std::string> names, std::vector<std::string> others)
{
    std::sort(names.begin(), names.end());
    std::sort(others.begin(), others.end());
    std::vector<std::string> different;
    std::set_symmetric_difference(names.begin(), names.end(), others.begin(), others.end(),
                                  std::back_inserter(different));
    return different.empty() ? std::string() : different.front();
}

void walkEnds(const Settings &settings)
{
    const Walk all = walk(settings.dictionary);
    expect(all.trouble.empty(), text("status 0 and null at the end of dictionary ", settings.dictionary),
           text(all.trouble, " after ", all.definitions.size(), " attributes"));
    if (all.definitions.empty())
        notCheckable(text("dictionary ", settings.dictionary, " is empty; --dictionary names another"));
    keptWith(text(all.definitions.size(), " attributes"));
}

void walkRepeatsItself(const Settings &settings)
{
    const auto first = namesOf(attributesOf(settings)), second = namesOf(attributesOf(settings));
    const std::string other = difference(first, second);
    expect(first == second, "the same attributes in the same order from a second walk",
           other.empty() ? "another order" : text("a difference at ", other));
}

void maskIsHonoured(const Settings &settings)
{
    const Definitions all = attributesOf(settings);
    for (unsigned int mask : {EntityJob, EntityStep, EntitySymbol, EntityLayer, EntityWheel, EntityNet,
                              EntityComponent, EntityFeature}) {
        Definitions expected;
        std::copy_if(all.begin(), all.end(), std::back_inserter(expected),
                     [mask](const DmlAttrDef *definition) { return definition->entityMask & mask; });
        const Walk masked = walk(settings.dictionary, mask);
        expect(masked.trouble.empty(), text("a walk for mask 0x", std::hex, mask), masked.trouble);
        const std::string other = difference(namesOf(masked.definitions), namesOf(expected));
        expect(other.empty(), text("the attributes that have a bit of mask 0x", std::hex, mask),
               text("a difference at ", other));
    }
}

void walksRunSideBySide(const Settings &settings)
{
    const Definitions all = attributesOf(settings);
    int cursors[2] = {0, 0};
    std::string trouble;
    for (const DmlAttrDef *definition : all) {
        for (int &cursor : cursors) {
            const DmlAttrDef *next = nextAttribute(settings.dictionary, EntityAll, &cursor, &trouble);
            const std::string came = next ? fieldText(next->name) : trouble.empty() ? "the end" : trouble;
            expect(came == fieldText(definition->name),
                   text(fieldText(definition->name), " from two walks that take turns"), came);
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
    const Definitions again = attributesOf(settings);
    attributesOf(settings);
    std::set<const DmlAttrDef *> records;
    for (size_t index = 0; index < all.size(); ++index) {
        expect(records.insert(all[index]).second, "a record of its own for each attribute",
               text("one record twice, now for ", fieldText(all[index]->name)));
        expect(std::memcmp(all[index], &before[index], offsetof(DmlAttrDef, reserved252)) == 0,
               text("an unchanged record of ", fieldText(before[index].name), " after another walk"),
               "another content");
    }
}

void unknownDictionaryFails(const Settings &)
{
    const Walk unknown = walk(UnknownDictionary);
    expect(!unknown.trouble.empty(), "a status that is not 0 for a dictionary that does not exist",
           unknown.definitions.empty()
               ? "an empty walk"
               : text("the attribute ", fieldText(unknown.definitions.front()->name)));
}

template <size_t Width>
void expectEnd(const DmlAttrDef &definition, const char *field, const char (&characters)[Width])
{
    expect(std::memchr(characters, '\0', Width),
           text("a NUL within the ", Width, " bytes of the ", field, " of ", fieldText(definition.name)),
           "none");
}

void textsEnd(const Settings &settings)
{
    for (const DmlAttrDef *definition : attributesOf(settings)) {
        expectEnd(*definition, "name", definition->name);
        expectEnd(*definition, "prompt", definition->prompt);
        expectEnd(*definition, "group", definition->group);
    }
}

bool hasEntries(const DmlAttrDef &definition)
{
    return definition.type == DmlAttrOption ||
           (definition.type == DmlAttrText && definition.textChoiceCount > 0);
}

void entriesAreTexts(const Settings &settings)
{
    for (const DmlAttrDef *definition : attributesOf(settings)) {
        if (!hasEntries(*definition))
            continue;
        const std::string name = fieldText(definition->name);
        expect(definition->optionList || definition->optionCount <= 0,
               text("a list of the ", definition->optionCount, " entries of ", name), "null");
        for (int index = 0; index < definition->optionCount; ++index)
            expect(definition->optionList[index], text("a text for entry ", index, " of ", name), "null");
    }
}

void attributesAreUsable(const Settings &settings)
{
    for (const DmlAttrDef *definition : attributesOf(settings)) {
        const std::string name = fieldText(definition->name);
        expect(!name.empty(), "a name of each attribute",
               text("none with the prompt ", fieldText(definition->prompt)));
        for (const std::string &field : {name, fieldText(definition->prompt), fieldText(definition->group)})
            expect(printable(field) == field, text("printable UTF-8 in the texts of ", name), field);
        expect(definition->type >= DmlAttrBoolean && definition->type <= DmlAttrFloat,
               text("a type 0 to 4 of ", name), text(definition->type));
        expect(definition->entityMask != 0, text("an entity mask of ", name), "0");
    }
}

void namesAreUnique(const Settings &settings)
{
    std::set<std::string> names;
    for (const std::string &name : namesOf(attributesOf(settings)))
        expect(names.insert(name).second, "each name once", text(name, " twice"));
}

void limitsAreInOrder(const Settings &settings)
{
    for (const DmlAttrDef *definition : attributesOf(settings)) {
        const bool isInteger = definition->type == DmlAttrInteger;
        if (!isInteger && definition->type != DmlAttrFloat)
            continue;
        const double low = isInteger ? definition->intMin : definition->floatMin;
        const double high = isInteger ? definition->intMax : definition->floatMax;
        expect(low <= high, text("limits of ", fieldText(definition->name), " in order"),
               text(low, " to ", high));
        // A float's default has single precision, its limits have double precision.
        const double value = isInteger ? definition->defaultInt : definition->defaultFloat;
        const bool isWithin = isInteger ? low <= value && value <= high
                                        : float(low) <= float(value) && float(value) <= float(high);
        expect(isWithin, text("a default of ", fieldText(definition->name), " from ", low, " to ", high),
               text(value));
    }
}

void defaultsAreEntries(const Settings &settings)
{
    for (const DmlAttrDef *definition : attributesOf(settings)) {
        if (definition->type == DmlAttrOption) {
            expect(definition->defaultOption < definition->optionCount,
                   text("a default among the ", definition->optionCount, " entries of ",
                        fieldText(definition->name)),
                   text("index ", definition->defaultOption));
        }
    }
}

} // namespace

const std::vector<Check> &dictionaryChecks()
{
    constexpr Verdict Must = Verdict::Broken, Should = Verdict::Advice;
    static constexpr char Walk[] = "dml__atr_next";
    static const std::vector<Check> checks{
        {"A walk ends", Must, Walk, walkEnds},
        {"A walk repeats itself", Should, Walk, walkRepeatsItself},
        {"A walk honours the entity mask", Must, Walk, maskIsHonoured},
        {"Two walks can take turns", Should, Walk, walksRunSideBySide},
        {"Each attribute has a record that stays", Must, Walk, recordsStay},
        {"A dictionary that does not exist is a failure", Should, Walk, unknownDictionaryFails},
        {"Names, prompts and groups end within their fields", Must, Walk, textsEnd},
        {"Each entry of a list is a text", Must, Walk, entriesAreTexts},
        {"Each attribute has a name, texts in UTF-8, a known type and an entity", Should, Walk,
         attributesAreUsable},
        {"Names are unique", Should, Walk, namesAreUnique},
        {"Limits are in order and hold the default", Should, Walk, limitsAreInOrder},
        {"The default of an option is one of its entries", Should, Walk, defaultsAreEntries},
    };
    return checks;
}

} // namespace Zudunmaf::hostcheck
