#ifndef GDM_HOST_CONFIG_KEYS_H
#define GDM_HOST_CONFIG_KEYS_H

/// @file
/// Keys of the host's configuration. The library calls gen__cfg_get() at each use and caches nothing.
namespace Zudunmaf
{
namespace keys
{

/// True if attributes are labelled and matched by their prompt, false if by their internal name.
constexpr char DisplayByPrompt[] = "edt_disp_attr_by_prompt";
/// True if attributes of the group "Obsolete" are available too.
constexpr char ShowObsolete[] = "edt_show_obsolete_attrs";

} // namespace keys
} // namespace Zudunmaf

#endif
