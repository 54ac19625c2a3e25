// Services and dictionary of a host with two attributes, one language and no configuration.
#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"
#include "gdm/items/attr_records.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <strings.h>

// clang-format off

const char *gen__nls_nlst(const char *key)
{
    const char *lastField = std::strrchr(key, '#');
    return lastField ? lastField + 1 : key;
}

const char *gen__nls_nlsa_get_att_prompt(const char *name, const char *prompt) { return *prompt ? prompt : name; }

int gen__cfg_get(const char *, unsigned char *value, unsigned char *) { return *value = 0; }
void gen__log_status_check(const char *file, int line) { std::fprintf(stderr, "%s:%d: a service failed\n", file, line); }

void *gen__mem_malloc(size_t size, int, const char *, int)
{
    void *memory = std::malloc(size);
    if (!memory)
        std::abort();
    return memory;
}

void gen__mem_free(void *memory, int, const char *, int) { std::free(memory); }
int gen__str_cmp_nc(const char *a, const char *b) { return strcasecmp(a, b); }
bool gen__str_cmp_reg(const char *text, const char *pattern) { return !std::strcmp(pattern, "*") || strcasestr(text, pattern); }

// No units: numbers are shown as stored.
void gen__torvex_units_convert_2(float *, int, int) {}
void gen__torvex_units_convert(void *, int *, int) {}
void gen__torvex_units_convert_f(float *, int, int) {}
const char *gen__torvex_cur_units_str(int, int) { return ""; }
int gen__torvex_get_str_units(const char *) { return -1; }

// clang-format on

int dml__atr_next(int, int, unsigned int entityMask, int *cursor, DmlAttrDef **definition)
{
    static DmlAttrDef attributes[2];
    static const char *const names[] = {"width", "spacing"};
    *definition = nullptr;
    if (*cursor < 2) {
        DmlAttrDef &next = attributes[*cursor];
        next.type = DmlAttrInteger;
        next.entityMask = entityMask;
        next.intMax = 100;
        std::strcpy(next.name, names[*cursor]);
        std::strcpy(next.group, "Geometry");
        *definition = &attributes[(*cursor)++];
    }
    return 0;
}
