#ifndef GDM_HOST_GDM_EXPORT_H
#define GDM_HOST_GDM_EXPORT_H

/// @file
/// Visibility of symbols.

/// Makes a symbol visible outside of its shared library. It is the same for import and export, so a host implements the
/// declarations that the library was compiled with.
#define GDM_EXPORT __attribute__((visibility("default")))

#endif
