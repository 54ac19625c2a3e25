#ifndef DEMO_FILTER_TASK_H
#define DEMO_FILTER_TASK_H

#include "gdm/dialogs/attributes_filter_dialog.h"
#include "task.h"

namespace Zudunmaf::demo
{

/// Conditions to look for: prints a line for each, as the dialog gives them.
class FilterTask : public Task
{
public:
    explicit FilterTask(int did);
    ~FilterTask() override;

    TvxAttributesSelectionDialog &dialog() override;
    QStringList resultLines() const override;
    std::unique_ptr<StartRows> newStartRows() override;
    std::unique_ptr<Walk> newWalk(const QString &pictureDirectory) override;

private:
    AttributesFilterDialog m_dialog;
};

} // namespace Zudunmaf::demo

#endif
