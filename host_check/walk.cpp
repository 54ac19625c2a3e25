#include "walk.h"

#include "loading.h"

#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"

namespace Zudunmaf::hostcheck
{

namespace
{
constexpr size_t MostAttributes = 1000000;
}

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
    Walk result;
    int cursor = 0;
    while (const DmlAttrDef *definition = nextAttribute(dictionary, mask, &cursor, &result.trouble)) {
        result.definitions.push_back(definition);
        if (result.definitions.size() >= MostAttributes) {
            result.trouble = "no end, the last attribute being " + fieldText(definition->name);
            break;
        }
    }
    return result;
}

Definitions soundAttributes(const Settings &settings, std::string *trouble)
{
    // Kept, since a walk that does not end takes long.
    static std::string known;
    const Walk attributes = known.empty() ? walk(settings.dictionary) : Walk();
    known += attributes.trouble;
    *trouble = known;
    return known.empty() ? attributes.definitions : Definitions();
}

Definitions attributesOf(const Settings &settings)
{
    std::string trouble;
    const Definitions definitions = soundAttributes(settings, &trouble);
    if (!trouble.empty())
        notCheckable(text("the walk over dictionary ", settings.dictionary, " has ", trouble));
    if (definitions.empty())
        notCheckable(text("dictionary ", settings.dictionary, " is empty"));
    return definitions;
}

bool isListed(const DmlAttrDef &definition, unsigned int mask, bool withObsolete)
{
    return (definition.entityMask & mask) &&
           (withObsolete || HOST(gen__str_cmp_nc)(definition.group, "Obsolete") != 0);
}

} // namespace Zudunmaf::hostcheck
