#ifndef GDM_HOST_MISSING_HOST_FUNCTIONS_H
#define GDM_HOST_MISSING_HOST_FUNCTIONS_H

#include "gdm/host/gdm_export.h"

#include <QStringList>

namespace Zudunmaf
{

/// Returns the functions of the host that the process does not have now: services and dictionary by name, such
/// as "gen__cfg_get", then functions of the base dialog's declaration as C++ prints them, such as
/// "TvxAttributesSelectionDialog::displayUnits()". Empty if nothing is missing.
///
/// A missing function ends the process at its first call. Call this before the first dialog is made. It only
/// looks names up, as the library itself would: nothing is called or bound, and a function that the host loads
/// later counts from then on.
GDM_EXPORT QStringList missingHostFunctions();

} // namespace Zudunmaf

#endif
