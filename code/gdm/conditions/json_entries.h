#ifndef GDM_CONDITIONS_JSON_ENTRIES_H
#define GDM_CONDITIONS_JSON_ENTRIES_H

#include "gdm/conditions/json_fields.h"

#if GDM_HAS_JSON

namespace Zudunmaf
{

// One entry of a document, to and from its JSON object. Errors are kept in the JsonFields. Internal: not installed.

QJsonObject jsonOfCondition(const AttrCondition &condition);
AttrCondition conditionIn(JsonFields *fields);

QJsonObject jsonOfAssignment(const AttrAssignment &assignment);
AttrAssignment assignmentIn(JsonFields *fields);

} // namespace Zudunmaf

#endif

#endif
