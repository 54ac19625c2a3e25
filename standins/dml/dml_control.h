#ifndef DML_DML_CONTROL_H
#define DML_DML_CONTROL_H

#include "gdm/host/gdm_export.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// Control of the stand-in dictionary: which dictionaries dml__atr_next() walks. The file format is told in
/// docs/dictionary-format.md.
///
/// Everything here belongs to the GUI thread, like the walk itself.
namespace Zudunmaf::dml
{

/// Loads every dictionary of a file. A file that is not right in every point is refused whole: the answer is
/// false, nothing of it is loaded, what was loaded before stays as it was, and `*error` tells in one line the
/// file, the entry, the field, what was expected and what was found. On success `*error` is left alone.
///
/// An identifier that is loaded already is refused too, since items may still point to its definitions:
/// unload() it first.
GDM_EXPORT bool loadFile(const QString &fileName, QString *error = nullptr);

/// The same for the text of such a file. `displayName` stands in the message where the file name would.
GDM_EXPORT bool loadJson(const QByteArray &json, const QString &displayName, QString *error = nullptr);

/// Drops dictionary `did` with all its definitions; false where there is none. No item and no walk may still
/// hold one of them.
GDM_EXPORT bool unload(int did);

/// Drops every dictionary, on the same terms.
GDM_EXPORT void unloadAll();

/// The identifiers of what is loaded, ascending.
GDM_EXPORT QVector<int> loadedIds();

/// Number of attributes of dictionary `did`; -1 where it is not loaded.
GDM_EXPORT int attributeCount(int did);

/// Title of dictionary `did`; null where it is not loaded.
GDM_EXPORT QString title(int did);

} // namespace Zudunmaf::dml

#endif
