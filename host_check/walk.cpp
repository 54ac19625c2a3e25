#include "walk.h"

#include "loading.h"

#include "gdm/host/dml_dictionary.h"

namespace Zudunmaf::hostcheck
{

const DmlAttrDef *nextAttribute(int dictionary, unsigned int mask, int *cursor, std::string *trouble)
{
    static DmlAttrDef untouched = {};
    DmlAttrDef *definition = &untouched;
    const int status = HOST(dml__atr_next)(dictionary, 1, mask, cursor, &definition);
    if (status != 0)
        *trouble = text("status ", status);
    else if (definition == &untouched)
        *trouble = "status 0 and no definition written";
    return trouble->empty() ? definition : nullptr;
}

Walk walk(int dictionary, unsigned int mask)
{
    constexpr size_t MostAttributes = 1000000;
    Walk result;
    int cursor = 0;
    while (const DmlAttrDef *definition = nextAttribute(dictionary, mask, &cursor, &result.trouble)) {
        result.definitions.push_back(definition);
        if (result.definitions.size() >= MostAttributes)
            result.trouble = "no end, the last attribute being " + fieldText(definition->name);
    }
    return result;
}

Definitions attributesOf(const Settings &settings)
{
    // Kept, since a walk that does not end takes long.
    static std::string trouble;
    const Walk attributes = trouble.empty() ? walk(settings.dictionary) : Walk();
    trouble += attributes.trouble;
    if (!trouble.empty())
        notCheckable(text("the walk over dictionary ", settings.dictionary, " has ", trouble));
    if (attributes.definitions.empty())
        notCheckable(text("dictionary ", settings.dictionary, " is empty; --dictionary names another"));
    return attributes.definitions;
}

Definitions attributesIfAny(const Settings &settings)
{
    try {
        return attributesOf(settings);
    } catch (const Outcome &) {
        return {};
    }
}

} // namespace Zudunmaf::hostcheck
