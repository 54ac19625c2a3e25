#ifndef GDM_ITEMS_ATTR_ROLES_H
#define GDM_ITEMS_ATTR_ROLES_H

/// @file
/// Numbers by which items, dialogs and dictionaries speak of attributes.

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

/// What an attribute can be put on: bits of DmlAttrDef::entityMask. Bits that are not named here are let through
/// by EntityAll alone.
enum EntityMask : unsigned int {
    EntityJob = 0x00000001,       ///< The whole job.
    EntityStep = 0x00000002,      ///< A step of the job.
    EntitySymbol = 0x00000004,    ///< A symbol.
    EntityLayer = 0x00000008,     ///< A layer.
    EntityWheel = 0x00000040,     ///< An aperture wheel.
    EntityNet = 0x10000000,       ///< A net.
    EntityComponent = 0x20000000, ///< A component.
    EntityFeature = 0x40000000,   ///< A feature of a layer.
    EntityAll = 0xFFFFFFFF        ///< Everything, in one row of the entity list.
};

} // namespace Zudunmaf

#endif
