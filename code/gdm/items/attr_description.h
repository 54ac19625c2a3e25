#ifndef GDM_ITEMS_ATTR_DESCRIPTION_H
#define GDM_ITEMS_ATTR_DESCRIPTION_H

#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

/// An attribute in several lines: its two names, group and type, and its default, range and units as far as
/// the type has them. Internal: not installed.
///
/// The range and the unit's text speak of `displayUnits`, the default of the units of the definition. The
/// services are asked in every case, also with -1 for either code.
QString attributeDescription(const DmlAttrDef &definition, int displayUnits);

} // namespace Zudunmaf

#endif
