#ifndef DML_DML_CONTROL_H
#define DML_DML_CONTROL_H

#include "gdm/host/gdm_export.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// Loads and unloads the dictionaries that dml__atr_next() walks. docs/dictionary-format.md describes the file format.
/// All functions must be called from the GUI thread, like the walk itself.
namespace Zudunmaf::dml
{

/// Loads all dictionaries of a file.
///
/// Returns false and loads nothing if the file has an error. `*error` is then set to one line with the file, the entry,
/// the field, the expected and the found value; on success it is not changed. An identifier that is already loaded is an
/// error too, because items may point to its definitions: unload() it first.
GDM_EXPORT bool loadFile(const QString &fileName, QString *error = nullptr);

/// Loads all dictionaries of a JSON text. `displayName` replaces the file name in `*error`.
GDM_EXPORT bool loadJson(const QByteArray &json, const QString &displayName, QString *error = nullptr);

/// Unloads dictionary `did` and deletes its definitions. Returns false if it is not loaded. No item or walk may still use
/// a definition.
GDM_EXPORT bool unload(int did);

/// Unloads all dictionaries, under the same condition.
GDM_EXPORT void unloadAll();

/// Returns the identifiers of the loaded dictionaries, in ascending order.
GDM_EXPORT QVector<int> loadedIds();

/// Returns the number of attributes of dictionary `did`; -1 if it is not loaded.
GDM_EXPORT int attributeCount(int did);

/// Returns the title of dictionary `did`; null if it is not loaded.
GDM_EXPORT QString title(int did);

} // namespace Zudunmaf::dml

#endif
