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
    QByteArray resultDocument() const override;
    QString start(const StartFile &file) override;
    std::unique_ptr<Walk> newWalk(const QString &pictureDirectory) override;

private:
    QString readLines(const StartFile &file, QList<AttrCondition> *conditions) const;

    int m_did;
    AttributesFilterDialog m_dialog;
};

} // namespace Zudunmaf::demo

#endif
