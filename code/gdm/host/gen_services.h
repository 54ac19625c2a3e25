#ifndef GDM_HOST_GEN_SERVICES_H
#define GDM_HOST_GEN_SERVICES_H

#include "gdm/host/gdm_export.h"

#include <stddef.h>

/// @file
/// The low-level services that the host supplies: messages, configuration, memory, logging, comparing, units.
///
/// The library binds them at their first call and not at load, which holds only as long as they are called
/// and nothing else: the address of one in a table, a deleter or a condition makes the loader ask for it at
/// once.
///
/// Strings are NUL-terminated. A string that a service returns stays the service's, may be overwritten by the
/// next call and is never freed by the caller. Where a status is returned, 0 is success and anything else
/// failure.
extern "C" {

/// The text to show for a message key such as "@$@#gdm_qt@$@#GENERAL@$@#967@$@#Name", in the local 8-bit
/// encoding. Field 4 of the key is the English text and the right answer where there is no translation. Null
/// leaves the label empty.
GDM_EXPORT const char *gen__nls_nlst(const char *key);

/// Returns the text that a fill matches with the filter text if attributes are labelled by their prompt; `name` and
/// `prompt` are those of the definition. Labels do not show this text but the prompt itself. Never null. The library
/// passes it on to gen__str_cmp_reg() and nowhere else, so the host chooses its encoding.
GDM_EXPORT const char *gen__nls_nlsa_get_att_prompt(const char *name, const char *prompt);

/// Reads a boolean configuration value. On success `value` is nonzero for true; `origin` takes a byte that
/// tells where the value came from. On failure both may hold anything.
GDM_EXPORT int gen__cfg_get(const char *key, unsigned char *value, unsigned char *origin);

/// Reports that the previous service call failed. `file` and `line` are the position in the library's sources where the
/// operation used the service: the line of the dialog, not of a helper that several operations share.
GDM_EXPORT void gen__log_status_check(const char *file, int line);

/// `size` bytes of memory in no particular state. Never null: out of memory, the service does not return. The
/// int is 1 in every call; `file` and `line` tell where the call stands.
GDM_EXPORT void *gen__mem_malloc(size_t size, int, const char *file, int line);

/// Gives back memory of gen__mem_malloc(); `memory` is not null.
GDM_EXPORT void gen__mem_free(void *memory, int, const char *file, int line);

/// 0 where the two texts are equal but for case.
GDM_EXPORT int gen__str_cmp_nc(const char *a, const char *b);

/// True if `text` matches `pattern`; "*" matches every text, the empty one too. `text` is the name of a
/// definition in the encoding of the dictionary, or an answer of gen__nls_nlsa_get_att_prompt(). `pattern` is
/// what the user typed, in the local 8-bit encoding and cut after 64 bytes.
GDM_EXPORT bool gen__str_cmp_reg(const char *text, const char *pattern);

/// Converts `*value` in place from the units `source` to the units `target`. A code of -1 leaves it alone.
GDM_EXPORT void gen__torvex_units_convert_2(float *value, int source, int target);

/// First half of the way back from display units: `*code` holds the units of a definition and may be replaced
/// by the code that gen__torvex_units_convert_f() needs. The pointer is null in every call.
GDM_EXPORT void gen__torvex_units_convert(void *, int *code, int displayUnits);

/// Second half of the way back: with the code that gen__torvex_units_convert() left, converts `*value` in
/// place so that gen__torvex_units_convert_2(value, unitsClass, displayUnits) is undone.
GDM_EXPORT void gen__torvex_units_convert_f(float *value, int unitsClass, int code);

/// The text of the units in which a number of `unitsClass` is shown under `displayUnits`; holds no blank and
/// is empty where there is nothing to say. Never null.
GDM_EXPORT const char *gen__torvex_cur_units_str(int unitsClass, int displayUnits);

/// The code of a unit text in the local 8-bit encoding: at least of each that gen__torvex_cur_units_str()
/// returns. A host can know other spellings too; -1 for a text that is no unit.
GDM_EXPORT int gen__torvex_get_str_units(const char *text);
}

#endif
