#ifndef GEN_GEN_CONTROL_H
#define GEN_GEN_CONTROL_H

#include <QString>
#include <QVector>

#include "gdm/host/gdm_export.h"

/// @file
/// What a host or a test sets and asks of the services' stand-in beside the services themselves. Everything
/// here is the process's and belongs to its main thread.
namespace Zudunmaf
{
/// The stand-in of the services.
namespace gen
{

/// Speaks `language` from the next message on: a code such as "de" or "pt_BR", or several separated by
/// colons, the best first. It also counts where the process runs in the locale "C". A language without a
/// catalogue leaves the messages English. An empty text goes back to what the user's environment says. Of the
/// process's locale this touches the messages alone; numbers stay as they are.
///
/// gen__nls_nlst() answers in the local 8-bit encoding that QString::fromLocal8Bit() of the running Qt reads.
/// A character that the encoding lacks becomes "?". An answer stays valid for the life of the process.
GDM_EXPORT void setLanguage(const QString &language);

/// Reads the catalogues from `directory`, where that of German would be de/LC_MESSAGES/zudunmaf.mo. An empty
/// text goes back to the directory that was installed, or built, with this library.
GDM_EXPORT void setCatalogueDirectory(const QString &directory);

/// Reads the configuration from the INI file at `path`. A file that is missing or cannot be read makes each
/// read of a value fail. An empty text, as at the start, leaves all values at their defaults.
GDM_EXPORT void setConfigurationFile(const QString &path);

/// Keeps `text` (UTF-8, one line, copied; null counts as empty) as what gen__log_status_check() will report
/// next. Whoever stands in for a service that can fail calls this just before it returns its status.
GDM_EXPORT void noteFailure(const char *text);

/// A unit as the units services know it. gen__torvex_get_str_units() also reads the usual spellings that
/// docs/dictionary-format.md lists.
struct UnitInfo {
    int code;          ///< what stands in a definition or in the display units
    QString text;      ///< as shown and read back, such as "mm"
    QString dimension; ///< English word, such as "length"; units of one dimension convert into each other
};

/// All units, by rising code.
GDM_EXPORT QVector<UnitInfo> units();

} // namespace gen
} // namespace Zudunmaf

#endif
