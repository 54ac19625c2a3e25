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

/// The next step of a walk; null at the end. Sets `*trouble` if the step is not sound.
const DmlAttrDef *nextAttribute(int dictionary, unsigned int mask, int *cursor, std::string *trouble);

/// The attributes of the dictionary to check. Ends the running check if the walk is not sound or empty.
Definitions attributesOf(const Settings &settings);

/// The same for a check that can do without: none if the walk is not sound.
Definitions attributesIfAny(const Settings &settings);

/// A character field as text, within its width.
template <size_t Width>
std::string fieldText(const char (&field)[Width])
{
    const std::string all(field, Width);
    return all.substr(0, all.find('\0'));
}

} // namespace Zudunmaf::hostcheck

#endif
