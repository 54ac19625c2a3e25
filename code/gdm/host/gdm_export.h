#ifndef GDM_HOST_GDM_EXPORT_H
#define GDM_HOST_GDM_EXPORT_H

/// @file
/// Visibility of symbols.

/// Marks what is visible outside a shared library. The same word serves whoever defines a symbol and whoever
/// uses it, so a host can stand behind the very declarations that the library was compiled against.
#define GDM_EXPORT __attribute__((visibility("default")))

#endif
