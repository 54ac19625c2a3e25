#ifndef GDM_CONDITIONS_JSON_KEYS_H
#define GDM_CONDITIONS_JSON_KEYS_H

#include "gdm/host/qt_compat.h"

#if GDM_HAS_JSON

#    include <QByteArray>
#    include <QString>

namespace Zudunmaf
{

/// Returns the place of the first field that an object has twice, such as "conditions[2].low"; a null string if there
/// is none. QJsonDocument silently keeps the last one. The JSON must be valid otherwise. Internal: not installed.
QString repeatedField(const QByteArray &json);

} // namespace Zudunmaf

#endif

#endif
