#ifndef GDM_HOST_DML_DICTIONARY_H
#define GDM_HOST_DML_DICTIONARY_H

#include "gdm/host/gdm_export.h"

struct DmlAttrDef;

/// @file
/// The attribute dictionary of the host. Bound at the first call, as the low-level services are.
#ifdef __cplusplus
extern "C" {
#endif

/// Sets `*definition` to the next attribute of dictionary `did`, or to null after the last one, and returns 0. Any
/// other status is a failure, and `*definition` is then undefined. The dictionary owns the definition, which must
/// outlive every item that points to it.
///
/// `*cursor` is 0 before the first call; after that, only the service changes it. The walk visits the attributes that
/// have a bit in common with `entityMask`; with all bits, every attribute. The second argument is always 1.
GDM_EXPORT int dml__atr_next(int did, int, unsigned int entityMask, int *cursor,
                             struct DmlAttrDef **definition);

#ifdef __cplusplus
}
#endif

#endif
