#ifndef GDM_HOST_GEN_SERVICES_H
#define GDM_HOST_GEN_SERVICES_H

#include "gdm/host/gdm_export.h"

#include <stddef.h>
#ifndef __cplusplus
#    include <stdbool.h>
#endif

/// @file
/// The low-level services of the host: messages, configuration, memory, logging, string comparison, units.
///
/// The library binds them at the first call and not at load. This works only if the functions are called and nothing
/// else: taking the address of one, for a table, a deleter or a condition, makes the loader resolve it at load.
///
/// Strings are NUL-terminated. The service owns the strings that it returns, and the next call can overwrite them. A
/// status of 0 is success, any other status is failure.
#ifdef __cplusplus
extern "C" {
#endif

/// Returns the text for a message key such as "@$@#gdm_qt@$@#GENERAL@$@#967@$@#Name", in the local 8-bit encoding.
/// Field 4 of the key is the English text, which is returned if there is no translation. If null is returned, the label
/// is empty.
GDM_EXPORT const char *gen__nls_nlst(const char *key);

/// Returns the text that a fill matches with the filter text if attributes are labelled by their prompt; `name` and
/// `prompt` are those of the definition. Labels do not show this text but the prompt itself. Never null. The library
/// passes it on to gen__str_cmp_reg() and nowhere else, so the host chooses its encoding.
GDM_EXPORT const char *gen__nls_nlsa_get_att_prompt(const char *name, const char *prompt);

/// Reads a boolean configuration value. On success, `*value` is nonzero for true, and `*origin` says where the value
/// comes from. On failure, both are undefined.
GDM_EXPORT int gen__cfg_get(const char *key, unsigned char *value, unsigned char *origin);

/// Reports that the previous service call failed. `file` and `line` are the position in the library's sources where an
/// operation, such as filling the available table, used the service; not that of a helper that several operations
/// share.
GDM_EXPORT void gen__log_status_check(const char *file, int line);

/// Returns `size` bytes of uninitialised memory. Never returns null: if there is no memory left, it does not return.
/// The second argument is always 1; `file` and `line` are the position of the call.
GDM_EXPORT void *gen__mem_malloc(size_t size, int, const char *file, int line);

/// Frees memory of gen__mem_malloc(). `memory` is never null; the other arguments are as in gen__mem_malloc().
GDM_EXPORT void gen__mem_free(void *memory, int, const char *file, int line);

/// Returns 0 if the texts are equal, case-insensitively.
GDM_EXPORT int gen__str_cmp_nc(const char *a, const char *b);

/// Returns true if `text` matches `pattern`; "*" matches every text, including an empty one. `text` is the name of a
/// definition in the encoding of the dictionary, or a result of gen__nls_nlsa_get_att_prompt(). `pattern` is "*" or the
/// filter text, in the local 8-bit encoding and cut after 64 bytes.
GDM_EXPORT bool gen__str_cmp_reg(const char *text, const char *pattern);

/// Converts `*value` from the units `source` to the units `target`. Does nothing if one of the codes is -1.
GDM_EXPORT void gen__torvex_units_convert_2(float *value, int source, int target);

/// First step of a conversion from display units: `*code` is the units of a definition, and can be replaced with the
/// code that gen__torvex_units_convert_f() needs. The first argument is always null.
GDM_EXPORT void gen__torvex_units_convert(void *, int *code, int displayUnits);

/// Second step of a conversion from display units: with the code from gen__torvex_units_convert(), converts `*value` so
/// that the effect of gen__torvex_units_convert_2(value, unitsClass, displayUnits) is reversed.
GDM_EXPORT void gen__torvex_units_convert_f(float *value, int unitsClass, int code);

/// Returns the text of the units in which a number of `unitsClass` is shown with these display units. The text has no
/// blank and is empty if there are no units. Never null.
GDM_EXPORT const char *gen__torvex_cur_units_str(int unitsClass, int displayUnits);

/// Returns the code of a unit text in the local 8-bit encoding; -1 if the text is no unit. Each text that
/// gen__torvex_cur_units_str() returns has a code; a host can accept other spellings too.
GDM_EXPORT int gen__torvex_get_str_units(const char *text);

#ifdef __cplusplus
}
#endif

#endif
