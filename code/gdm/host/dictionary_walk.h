#ifndef GDM_HOST_DICTIONARY_WALK_H
#define GDM_HOST_DICTIONARY_WALK_H

#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"

/// The two services that can fail, with the error report. Internal: not installed.
namespace Zudunmaf
{

/// A position in the sources, as gen__log_status_check() takes it.
struct SourcePosition {
    const char *file;
    int line;
};

#define GDM_HERE (::Zudunmaf::SourcePosition{__FILE__, __LINE__})

/// Reads a boolean configuration value. If the service fails, reports it and returns false.
inline bool readFlag(const char *key, bool *flag, const SourcePosition &here)
{
    unsigned char value = 0;
    unsigned char origin = 0;
    if (gen__cfg_get(key, &value, &origin) != 0) {
        gen__log_status_check(here.file, here.line);
        return false;
    }
    *flag = value != 0;
    return true;
}

/// Calls `visit` for each definition of the dictionary, and `did` before each step. If a step fails, reports it and
/// returns false; the caller then discards the definitions visited so far.
template <class Did, class Visit>
bool walkDictionary(Did did, unsigned int entityMask, const SourcePosition &here, Visit visit)
{
    int cursor = 0;
    for (;;) {
        DmlAttrDef *definition = nullptr;
        if (dml__atr_next(did(), 1, entityMask, &cursor, &definition) != 0) {
            gen__log_status_check(here.file, here.line);
            return false;
        }
        if (!definition)
            return true;
        visit(definition);
    }
}

} // namespace Zudunmaf

#endif
