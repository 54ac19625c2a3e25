#ifndef GDM_ITEMS_ATTR_ROLES_H
#define GDM_ITEMS_ATTR_ROLES_H

/// @file
/// Item data roles and entity masks.

namespace Zudunmaf
{

/// Item data roles of an item's attribute. The numbers are fixed; Qt::UserRole differs between versions of Qt.
enum DmlAttrRole {
    DmlAttrNameRole = 137,      ///< QString: the internal name.
    DmlAttrPromptRole = 138,    ///< QString: the name to display.
    DmlAttrTypeRole = 139,      ///< int: the type code of the definition, whatever it is.
    DmlAttrValueRole = 140,     ///< The condition or the value, by type.
    DmlAttrDefRole = 141,       ///< void*: the DmlAttrDef.
    DmlAttrFilterTextRole = 142 ///< QString: the condition as one line, if it is shown; filter items only.
};

/// Entities that can carry an attribute; bits of DmlAttrDef::entityMask. Of the values here, only EntityAll includes
/// the other bits.
enum EntityMask : unsigned int {
    EntityJob = 0x00000001,       ///< The whole job.
    EntityStep = 0x00000002,      ///< A step of the job.
    EntitySymbol = 0x00000004,    ///< A symbol.
    EntityLayer = 0x00000008,     ///< A layer.
    EntityWheel = 0x00000040,     ///< An aperture wheel.
    EntityNet = 0x10000000,       ///< A net.
    EntityComponent = 0x20000000, ///< A component.
    EntityFeature = 0x40000000,   ///< A feature of a layer.
    EntityAll = 0xFFFFFFFF        ///< All entities; one row of the entity list.
};

} // namespace Zudunmaf

#endif
