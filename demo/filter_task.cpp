#include "filter_task.h"

#include "condition_rows.h"
#include "walk_of_filter.h"

namespace Zudunmaf::demo
{

FilterTask::FilterTask(int did)
    : m_dialog(did)
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

std::unique_ptr<StartRows> FilterTask::newStartRows()
{
    return std::make_unique<ConditionRows>(m_dialog);
}

std::unique_ptr<Walk> FilterTask::newWalk(const QString &pictureDirectory)
{
    return std::make_unique<WalkOfFilter>(m_dialog, pictureDirectory);
}

} // namespace Zudunmaf::demo
