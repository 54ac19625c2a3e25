#ifndef DEMO_START_FILE_H
#define DEMO_START_FILE_H

#include "gdm/conditions/attr_documents.h"
#include "gdm/conditions/attr_restoring.h"

#include <QStringList>

class TvxAttributesSelectionDialog;

namespace Zudunmaf::demo
{

/// A file to start with: a JSON document, or lines in UTF-8, with or without a byte order mark. A line ends with LF or
/// CR LF. Each problem reads "FILE:LINE: reason" or
/// "FILE: conditions[2].low: reason"; a null string means that there is none.
class StartFile
{
public:
    /// Reads the whole file.
    QString read(const QString &fileName);

    bool isJson() const;
    QByteArray content() const { return m_content; }
    /// The lines that are not blank.
    QStringList lines() const { return m_lines; }

    QString problemIn(const DocumentProblem &problem) const;
    QString problemInLine(int index, const QString &reason) const;
    /// The first entry that was not restored. `listName` is that of the JSON document.
    QString problemIn(const QList<RestoreResult> &results, const char *listName) const;

private:
    QString m_fileName;
    QByteArray m_content;
    QStringList m_lines;
    QList<int> m_lineNumbers;
};

/// Adds items to the dialog of the stand-in.
AddToChosen addTo(TvxAttributesSelectionDialog &dialog);

} // namespace Zudunmaf::demo

#endif
