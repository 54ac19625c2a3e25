#include "start_rows.h"

#include "gdm/items/attr_records.h"
#include "gdm/items/attr_roles.h"
#include "gdm/items/dml_attr_lwi.h"

#include <QFile>

#include <algorithm>

namespace Zudunmaf::demo
{

StartRows::StartRows(const TvxAttributesSelectionDialog &dialog)
    : m_offered(dialog.getTopListItems(false))
{
}

StartRows::~StartRows() = default;

QString StartRows::read(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QStringLiteral("%1: %2").arg(fileName, file.errorString());

    for (int number = 1; !file.atEnd(); ++number) {
        QString line = QString::fromUtf8(file.readLine());
        if (line.endsWith(QLatin1Char('\n')))
            line.chop(1);
        const QString problem = line.trimmed().isEmpty() ? QString() : takeLine(line);
        if (!problem.isEmpty())
            return QStringLiteral("%1:%2: ").arg(fileName).arg(number) + problem;
    }
    return QString();
}

QList<QTableWidgetItem *> StartRows::items() const
{
    QList<QTableWidgetItem *> items;
    items.reserve(int(m_items.size()));
    for (const std::unique_ptr<DmlAttrLWI> &item : m_items)
        items.append(item.get());
    return items;
}

const DmlAttrLWI *StartRows::find(const QString &name) const
{
    for (int role : {int(DmlAttrNameRole), int(DmlAttrPromptRole)}) {
        for (const QTableWidgetItem *item : m_offered) {
            const DmlAttrLWI *offered = dynamic_cast<const DmlAttrLWI *>(item);
            // A prompt counts only where it is what the user reads: two attributes may share one.
            if (offered && (role == DmlAttrNameRole || offered->displayPrompt()) &&
                offered->data(role).toString() == name)
                return offered;
        }
    }
    return nullptr;
}

DmlAttrLWI &StartRows::add(const DmlAttrLWI &offered)
{
    m_items.emplace_back(static_cast<DmlAttrLWI *>(offered.clone()));
    return *m_items.back();
}

bool StartRows::holds(const DmlAttrLWI &offered) const
{
    return std::any_of(m_items.begin(), m_items.end(), [&offered](const std::unique_ptr<DmlAttrLWI> &item) {
        return &definitionOf(*item) == &definitionOf(offered);
    });
}

const DmlAttrDef &StartRows::definitionOf(const DmlAttrLWI &item)
{
    return *static_cast<const DmlAttrDef *>(qvariant_cast<void *>(item.dmlAttribute()));
}

QString StartRows::unknown(const QString &name)
{
    return QStringLiteral("there is no attribute '%1' on offer").arg(name);
}

} // namespace Zudunmaf::demo
