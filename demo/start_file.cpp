#include "start_file.h"

#include "tvx/tvx_control.h"

#include <QFile>

namespace Zudunmaf::demo
{

QString StartFile::read(const QString &fileName)
{
    m_fileName = fileName;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(fileName, file.errorString());
    m_content = file.readAll();
    if (m_content.startsWith("\xEF\xBB\xBF"))
        m_content.remove(0, 3);
    const QList<QByteArray> all = m_content.split('\n');
    for (int number = 1; number <= int(all.size()); ++number) {
        QString line = QString::fromUtf8(all.at(number - 1));
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        if (line.trimmed().isEmpty())
            continue;
        m_lines.append(line);
        m_lineNumbers.append(number);
    }
    return QString();
}

bool StartFile::isJson() const
{
    return m_content.trimmed().startsWith('{');
}

QString StartFile::problemIn(const DocumentProblem &problem) const
{
    const QString place = problem.place.isEmpty() ? QString() : problem.place + QLatin1String(": ");
    return m_fileName + QLatin1String(": ") + place + problem.reason;
}

QString StartFile::problemInLine(int index, const QString &reason) const
{
    return m_fileName + QStringLiteral(":%1: ").arg(m_lineNumbers.at(index)) + reason;
}

QString StartFile::problemIn(const QList<RestoreResult> &results, const char *listName) const
{
    for (int index = 0; index < int(results.size()); ++index) {
        const RestoreResult &result = results.at(index);
        if (result.status == RestoreDone)
            continue;
        return isJson() ? problemIn({QStringLiteral("%1[%2]").arg(QLatin1String(listName)).arg(index),
                                     result.reason})
                        : problemInLine(index, result.reason);
    }
    return QString();
}

AddToChosen addTo(TvxAttributesSelectionDialog &dialog)
{
    return [&dialog](const QTableWidgetItem &item) { return tvx::addChosen(dialog, item); };
}

} // namespace Zudunmaf::demo
