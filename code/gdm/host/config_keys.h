#ifndef GDM_HOST_CONFIG_KEYS_H
#define GDM_HOST_CONFIG_KEYS_H

/// @file
/// The host's configuration values that the library reads, each with gen__cfg_get() at each use.
namespace Zudunmaf
{
namespace keys
{

/// True: attributes are labelled and matched by their prompt. False: by their internal name.
constexpr char DisplayByPrompt[] = "edt_disp_attr_by_prompt";
/// True: attributes of the group "Obsolete" are offered too.
constexpr char ShowObsolete[] = "edt_show_obsolete_attrs";

} // namespace keys
} // namespace Zudunmaf

#endif
