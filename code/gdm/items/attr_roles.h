#ifndef GDM_ITEMS_ATTR_ROLES_H
#define GDM_ITEMS_ATTR_ROLES_H

namespace Zudunmaf
{

/// Item data roles through which a dialog or a host reaches an item's attribute. Fixed numbers and no offsets
/// from Qt::UserRole, which has moved between the versions of Qt.
enum DmlAttrRole {
    DmlAttrNameRole = 137,      ///< QString: the internal name.
    DmlAttrPromptRole = 138,    ///< QString: the name to display.
    DmlAttrTypeRole = 139,      ///< int: the type code of the definition, whatever it is.
    DmlAttrValueRole = 140,     ///< The condition or the value, by type.
    DmlAttrDefRole = 141,       ///< void*: the DmlAttrDef.
    DmlAttrFilterTextRole = 142 ///< QString: the condition as one line; filter items only.
};

/// Bits of DmlAttrDef::entityMask.
enum EntityMask : unsigned int {
    EntityJob = 0x00000001,
    EntityStep = 0x00000002,
    EntitySymbol = 0x00000004,
    EntityLayer = 0x00000008,
    EntityWheel = 0x00000040,
    EntityNet = 0x10000000,
    EntityComponent = 0x20000000,
    EntityFeature = 0x40000000,
    EntityAll = 0xFFFFFFFF
};

} // namespace Zudunmaf

#endif
