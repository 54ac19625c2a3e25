#ifndef HOST_CHECK_WALK_H
#define HOST_CHECK_WALK_H

#include "check.h"

#include "gdm/items/attr_records.h"
#include "gdm/items/attr_roles.h"

namespace Zudunmaf::hostcheck
{

using Definitions = std::vector<const DmlAttrDef *>;

/// One walk over a dictionary, as far as it went.
struct Walk {
    Definitions definitions;
    std::string trouble; ///< Why the walk is not sound; empty if it came to its end.
};

/// Walks the dictionary. Gives up after a million attributes, since a cursor may be stuck.
Walk walk(int dictionary, unsigned int mask = EntityAll);

/// The attributes of the dictionary to check; none, and the reason, if the walk is not sound.
Definitions soundAttributes(const Settings &settings, std::string *trouble);

/// The same for a check that needs attributes. Ends the running check if the walk is not sound or empty.
Definitions attributesOf(const Settings &settings);

/// The next step of a walk; null at the end. Sets `*trouble` if the step is not sound.
const DmlAttrDef *nextAttribute(int dictionary, unsigned int mask, int *cursor, std::string *trouble);

/// A character field as text, within its width.
template <size_t Width>
std::string fieldText(const char (&field)[Width])
{
    const std::string all(field, Width);
    return all.substr(0, all.find('\0'));
}

/// Whether a dialog lists the definition for any entity at all, obsolete attributes left out.
bool isListed(const DmlAttrDef &definition, unsigned int mask, bool withObsolete);

} // namespace Zudunmaf::hostcheck

#endif
