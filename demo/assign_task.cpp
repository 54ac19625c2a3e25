#include "task.h"

#include "gdm/dialogs/feature_attributes_dialog.h"
#include "gdm/items/attr_roles.h"
#include "gdm/items/feature_attr_lwi.h"
#include "tvx/tvx_control.h"

namespace Zudunmaf::demo
{

namespace
{

class AssignTask : public Task
{
public:
    explicit AssignTask(int did)
        : m_dialog(did)
    {
    }

    TvxAttributesSelectionDialog &dialog() override { return m_dialog; }

    // Printed values are not read: they are rounded and in display units.
    QList<RestoreResult> restore(const QByteArray &text, DocumentProblem *problem) override
    {
        QList<AttrAssignment> assignments;
        assignmentsFromJson(text, &assignments, problem);
        return m_dialog.restoreAssignments(
            assignments, [this](const QTableWidgetItem &item) { return tvx::addChosen(m_dialog, item); });
    }

    QStringList resultLines() const override
    {
        QStringList lines;
        const QList<QTableWidgetItem *> chosen = m_dialog.getChosenList();
        for (const QTableWidgetItem *item : chosen) {
            if (const auto *attribute = dynamic_cast<const FeatureAttrLWI *>(item))
                lines.append(attribute->data(DmlAttrNameRole).toString() + QLatin1Char('\t') +
                             attribute->valueAsString());
        }
        return lines;
    }

    QByteArray resultDocument() const override { return assignmentsToJson(m_dialog.assignments()); }

private:
    FeatureAttributesDialog m_dialog;
};

} // namespace

std::unique_ptr<Task> createAssignTask(int did)
{
    return std::make_unique<AssignTask>(did);
}

} // namespace Zudunmaf::demo
