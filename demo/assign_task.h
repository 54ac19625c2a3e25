#ifndef DEMO_ASSIGN_TASK_H
#define DEMO_ASSIGN_TASK_H

#include "gdm/dialogs/feature_attributes_dialog.h"
#include "task.h"

namespace Zudunmaf::demo
{

/// Values to assign: prints "name<TAB>value" for each attribute.
class AssignTask : public Task
{
public:
    explicit AssignTask(int did);
    ~AssignTask() override;

    TvxAttributesSelectionDialog &dialog() override;
    QStringList resultLines() const override;
    QByteArray resultDocument() const override;
    QString start(const StartFile &file) override;
    std::unique_ptr<Walk> newWalk(const QString &pictureDirectory) override;

private:
    FeatureAttributesDialog m_dialog;
};

} // namespace Zudunmaf::demo

#endif
