#ifndef GEN_GEN_CONTROL_H
#define GEN_GEN_CONTROL_H

#include <QString>
#include <QVector>

#include "gdm/host/gdm_export.h"

/// @file
/// Settings of the services' stand-in. They apply to the whole process; call the functions from the main thread only.
namespace Zudunmaf
{
/// The stand-in of the services.
namespace gen
{

/// Sets the language of all following messages: a code such as "de" or "pt_BR", or several separated by colons, in order
/// of preference. Also has effect in the locale "C". Messages are English if there is no catalogue for the language. An
/// empty text restores the language of the user's environment. Changes only LC_MESSAGES of the locale.
///
/// gen__nls_nlst() returns texts in the encoding that QString::fromLocal8Bit() reads. A character that this encoding lacks
/// becomes "?". A returned text stays valid until the process ends.
GDM_EXPORT void setLanguage(const QString &language);

/// Sets the directory of the catalogues, for example for German `directory`/de/LC_MESSAGES/zudunmaf.mo. An empty text
/// restores the directory that was installed, or built, with this library.
GDM_EXPORT void setCatalogueDirectory(const QString &directory);

/// Sets the INI file of the configuration. If it is missing or invalid, gen__cfg_get() fails. With an empty path, which is
/// the initial state, all values have their defaults.
GDM_EXPORT void setConfigurationFile(const QString &path);

/// Sets the text that the next gen__log_status_check() reports: one line of UTF-8, copied; null is the same as empty. A
/// service calls this before it returns a failure.
GDM_EXPORT void noteFailure(const char *text);

/// A unit of the units services. docs/dictionary-format.md lists the other spellings that
/// gen__torvex_get_str_units() accepts.
struct UnitInfo {
    int code;          ///< in definitions and display units
    QString text;      ///< as shown and accepted, such as "mm"
    QString dimension; ///< English name, such as "length"; units of the same dimension are convertible
};

/// Returns all units, in ascending order of codes.
GDM_EXPORT QVector<UnitInfo> units();

} // namespace gen
} // namespace Zudunmaf

#endif
