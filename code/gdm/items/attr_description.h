#ifndef GDM_ITEMS_ATTR_DESCRIPTION_H
#define GDM_ITEMS_ATTR_DESCRIPTION_H

#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

/// Returns a description of an attribute in several lines: name, prompt, group and type, and default, range and units
/// if the type has them. Internal: not installed.
///
/// Range and units are those of `displayUnits`, the default is in the units of the definition. The units services are
/// called even if one of the codes is -1.
QString attributeDescription(const DmlAttrDef &definition, int displayUnits);

} // namespace Zudunmaf

#endif
