#ifndef GDM_HOST_DML_DICTIONARY_H
#define GDM_HOST_DML_DICTIONARY_H

#include "gdm/host/gdm_export.h"

struct DmlAttrDef;

/// @file
/// The attribute dictionary that the host supplies. Bound at the first call, like the low-level services.
extern "C" {

/// Gives the attributes of dictionary `did` one at a time. `*cursor` is 0 before the first call and belongs
/// to the service from then on. `entityMask` limits the walk to attributes that share a bit with it; all bits
/// take every attribute. The int is 1 in every call.
///
/// Status 0 with a definition is the next attribute, status 0 with null the end; any other status is a
/// failure, and `*definition` then means nothing. A definition belongs to the dictionary and outlives every
/// item made of it.
GDM_EXPORT int dml__atr_next(int did, int, unsigned int entityMask, int *cursor, DmlAttrDef **definition);
}

#endif
