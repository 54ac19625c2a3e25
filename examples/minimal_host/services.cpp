// Services and dictionary of a host with three attributes, two units, one language and no configuration.
#include "gdm/host/config_keys.h"
#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"
#include "gdm/items/attr_records.h"
#include "gdm/items/attr_roles.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fnmatch.h>
#include <string>
#include <strings.h>

// A key without a translation: its last field is the English text.
const char *gen__nls_nlst(const char *key)
{
    const char *lastField = std::strrchr(key, '#');
    return lastField ? lastField + 1 : key;
}

const char *gen__nls_nlsa_get_att_prompt(const char *name, const char *prompt)
{
    return *prompt ? prompt : name;
}

int gen__cfg_get(const char *key, unsigned char *value, unsigned char *origin)
{
    *value = *origin = 0;
    const bool isKnown =
        !std::strcmp(key, Zudunmaf::keys::DisplayByPrompt) || !std::strcmp(key, Zudunmaf::keys::ShowObsolete);
    return isKnown ? 0 : 1;
}

void gen__log_status_check(const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: a service failed\n", file, line);
}

void *gen__mem_malloc(size_t size, int, const char *, int)
{
    void *memory = std::malloc(size);
    if (!memory)
        std::abort();
    return memory;
}

void gen__mem_free(void *memory, int, const char *, int)
{
    std::free(memory);
}

int gen__str_cmp_nc(const char *a, const char *b)
{
    return strcasecmp(a, b);
}

// Anywhere in the text and in any case, as the dialogs' own filter matches.
bool gen__str_cmp_reg(const char *text, const char *pattern)
{
    return fnmatch((std::string("*") + pattern + '*').c_str(), text, FNM_CASEFOLD | FNM_NOESCAPE) == 0;
}

namespace
{

struct Unit {
    const char *text;
    float millimetres;
};

const Unit units[] = {{"mm", 1.0f}, {"inch", 25.4f}};

bool isUnit(int code)
{
    return code == 0 || code == 1;
}

} // namespace

void gen__torvex_units_convert_2(float *value, int source, int target)
{
    if (isUnit(source) && isUnit(target))
        *value *= units[source].millimetres / units[target].millimetres;
}

// The number stands in the display units, unless it has none.
void gen__torvex_units_convert(void *, int *code, int displayUnits)
{
    if (isUnit(*code) && isUnit(displayUnits))
        *code = displayUnits;
}

void gen__torvex_units_convert_f(float *value, int unitsClass, int code)
{
    gen__torvex_units_convert_2(value, code, unitsClass);
}

const char *gen__torvex_cur_units_str(int unitsClass, int displayUnits)
{
    if (!isUnit(unitsClass))
        return "";
    return units[isUnit(displayUnits) ? displayUnits : unitsClass].text;
}

int gen__torvex_get_str_units(const char *text)
{
    for (int code = 0; isUnit(code); ++code) {
        if (!std::strcmp(text, units[code].text))
            return code;
    }
    return -1;
}

namespace
{

DmlAttrDef newAttribute(DmlAttrType type, const char *name, unsigned int entityMask)
{
    DmlAttrDef attribute = {};
    attribute.type = type;
    attribute.entityMask = entityMask;
    attribute.unitsClass = -1;
    std::strcpy(attribute.name, name);
    std::strcpy(attribute.group, "Geometry");
    return attribute;
}

// The definitions stay for as long as the process runs, since items point to them.
DmlAttrDef *attributes()
{
    using namespace Zudunmaf;
    static DmlAttrDef all[] = {
        newAttribute(DmlAttrInteger, "width", EntityLayer | EntityFeature),
        newAttribute(DmlAttrInteger, "spacing", EntityLayer | EntityNet | EntityFeature),
        newAttribute(DmlAttrFloat, "drill", EntityFeature)};
    all[0].intMax = all[1].intMax = 100;
    all[2].floatMax = 6.5;
    all[2].unitsClass = 0;
    return all;
}

} // namespace

int dml__atr_next(int did, int, unsigned int entityMask, int *cursor, DmlAttrDef **definition)
{
    if (did != 0)
        return 1;
    *definition = nullptr;
    while (*cursor < 3 && !*definition) {
        DmlAttrDef *next = attributes() + (*cursor)++;
        if (next->entityMask & entityMask)
            *definition = next;
    }
    return 0;
}
