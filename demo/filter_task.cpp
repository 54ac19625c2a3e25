#include "filter_task.h"

#include "gdm/conditions/filter_lines.h"
#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "start_file.h"
#include "walk_of_filter.h"

namespace Zudunmaf::demo
{

FilterTask::FilterTask(int did)
    : m_did(did)
    , m_dialog(did)
{
    // The library leaves the title of this dialog to the host.
    if (m_dialog.windowTitle().isEmpty())
        m_dialog.setWindowTitle(QStringLiteral("Attributes Filter"));
}

FilterTask::~FilterTask() = default;

TvxAttributesSelectionDialog &FilterTask::dialog()
{
    return m_dialog;
}

QStringList FilterTask::resultLines() const
{
    return m_dialog.getFiltersAsStringList();
}

QByteArray FilterTask::resultDocument() const
{
    return conditionsToJson(m_dialog.conditions());
}

QString FilterTask::start(const StartFile &file)
{
    QList<AttrCondition> conditions;
    DocumentProblem problem;
    if (file.isJson() && !conditionsFromJson(file.content(), &conditions, &problem))
        return file.problemIn(problem);
    const QString wrongLine = file.isJson() ? QString() : readLines(file, &conditions);
    if (!wrongLine.isEmpty())
        return wrongLine;
    return file.problemIn(m_dialog.restoreConditions(conditions, addTo(m_dialog)), "conditions");
}

QString FilterTask::readLines(const StartFile &file, QList<AttrCondition> *conditions) const
{
    unsigned char byPrompt = 0;
    unsigned char origin = 0;
    if (gen__cfg_get(keys::DisplayByPrompt, &byPrompt, &origin) != 0)
        gen__log_status_check(__FILE__, __LINE__);
    const QList<LineResult> results =
        conditionsFromLines(file.lines(), m_did, byPrompt != 0 ? LabelsByPrompt : LabelsByName);
    for (int index = 0; index < int(results.size()); ++index) {
        if (results.at(index).status != LineRead)
            return file.problemInLine(index, results.at(index).reason);
        conditions->append(results.at(index).condition);
    }
    return QString();
}

std::unique_ptr<Walk> FilterTask::newWalk(const QString &pictureDirectory)
{
    return std::make_unique<WalkOfFilter>(m_dialog, pictureDirectory);
}

} // namespace Zudunmaf::demo
