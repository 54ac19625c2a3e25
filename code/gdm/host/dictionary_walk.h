#ifndef GDM_HOST_DICTIONARY_WALK_H
#define GDM_HOST_DICTIONARY_WALK_H

#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"

/// The two services that can fail, with the report that each failure gets. Internal: not installed.
namespace Zudunmaf
{

/// A position in the sources, as gen__log_status_check() takes it.
struct SourcePosition {
    const char *file;
    int line;
};

#define GDM_HERE (::Zudunmaf::SourcePosition{__FILE__, __LINE__})

/// Reads a boolean configuration value. False and one report where the service fails.
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

/// Walks the dictionary and visits each definition. `did` is asked anew before each step. True where the walk
/// came to its end; false and one report where a step failed, and what was visited until then must be thrown
/// away.
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
