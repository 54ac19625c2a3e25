/* The services and the dictionary of a host that is written in C. */
#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"
#include "gdm/items/attr_records.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

typedef char definition_has_256_bytes[sizeof(DmlAttrDef) == 256 ? 1 : -1];
typedef char condition_has_224_bytes[sizeof(DmlAttrValue) == 224 ? 1 : -1];

const char *gen__nls_nlst(const char *key)
{
    const char *last_field = strrchr(key, '#');
    return last_field ? last_field + 1 : key;
}

const char *gen__nls_nlsa_get_att_prompt(const char *name, const char *prompt)
{
    return *prompt ? prompt : name;
}

int gen__cfg_get(const char *key, unsigned char *value, unsigned char *origin)
{
    (void)key;
    *value = *origin = 0;
    return 0;
}

void gen__log_status_check(const char *file, int line)
{
    fprintf(stderr, "%s:%d: a service failed\n", file, line);
}

void *gen__mem_malloc(size_t size, int always_1, const char *file, int line)
{
    void *memory = malloc(size);
    (void)always_1, (void)file, (void)line;
    if (!memory)
        abort();
    return memory;
}

void gen__mem_free(void *memory, int always_1, const char *file, int line)
{
    (void)always_1, (void)file, (void)line;
    free(memory);
}

int gen__str_cmp_nc(const char *a, const char *b)
{
    return strcmp(a, b);
}

bool gen__str_cmp_reg(const char *text, const char *pattern)
{
    return strcmp(pattern, "*") == 0 || strstr(text, pattern);
}

void gen__torvex_units_convert_2(float *value, int source, int target)
{
    (void)value, (void)source, (void)target;
}

void gen__torvex_units_convert(void *always_null, int *code, int display_units)
{
    (void)always_null, (void)code, (void)display_units;
}

void gen__torvex_units_convert_f(float *value, int units_class, int code)
{
    (void)value, (void)units_class, (void)code;
}

const char *gen__torvex_cur_units_str(int units_class, int display_units)
{
    (void)units_class, (void)display_units;
    return "";
}

int gen__torvex_get_str_units(const char *text)
{
    (void)text;
    return -1;
}

int dml__atr_next(int did, int always_1, unsigned int entity_mask, int *cursor, DmlAttrDef **definition)
{
    static DmlAttrDef width = {.type = DmlAttrInteger, .name = "width", .group = "Geometry", .intMax = 100};
    (void)did, (void)always_1;
    width.entityMask = entity_mask;
    *definition = *cursor == 0 ? &width : NULL;
    *cursor += 1;
    return 0;
}
