#include "assign_task.h"

#include "gdm/items/attr_roles.h"
#include "gdm/items/feature_attr_lwi.h"
#include "start_file.h"
#include "walk_of_assign.h"

namespace Zudunmaf::demo
{

AssignTask::AssignTask(int did)
    : m_dialog(did)
{
}

AssignTask::~AssignTask() = default;

TvxAttributesSelectionDialog &AssignTask::dialog()
{
    return m_dialog;
}

QStringList AssignTask::resultLines() const
{
    QStringList lines;
    const QList<QTableWidgetItem *> chosen = m_dialog.getChosenList();
    for (const QTableWidgetItem *item : chosen) {
        if (const FeatureAttrLWI *attribute = dynamic_cast<const FeatureAttrLWI *>(item))
            lines.append(attribute->data(DmlAttrNameRole).toString() + QLatin1Char('\t') +
                         attribute->valueAsString());
    }
    return lines;
}

QByteArray AssignTask::resultDocument() const
{
    return assignmentsToJson(m_dialog.assignments());
}

QString AssignTask::start(const StartFile &file)
{
    // The lines of this dialog are for people: the numbers in them are rounded and in display units.
    if (!file.isJson())
        return file.problemIn(
            {QString(), QStringLiteral("values are read from JSON only, as --save writes it")});
    QList<AttrAssignment> assignments;
    DocumentProblem problem;
    if (!assignmentsFromJson(file.content(), &assignments, &problem))
        return file.problemIn(problem);
    return file.problemIn(m_dialog.restoreAssignments(assignments, addTo(m_dialog)), "assignments");
}

std::unique_ptr<Walk> AssignTask::newWalk(const QString &pictureDirectory)
{
    return std::make_unique<WalkOfAssign>(m_dialog, pictureDirectory);
}

} // namespace Zudunmaf::demo
