#include "task.h"

#include "gdm/conditions/filter_lines.h"
#include "gdm/dialogs/attributes_filter_dialog.h"
#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "tvx/tvx_control.h"

namespace Zudunmaf::demo
{

namespace
{

/// Returns what the dialog labels attributes with, which its printed lines begin with.
LineLabels configuredLabels()
{
    unsigned char byPrompt = 0;
    unsigned char origin = 0;
    if (gen__cfg_get(keys::DisplayByPrompt, &byPrompt, &origin) != 0)
        gen__log_status_check(__FILE__, __LINE__);
    return byPrompt ? LabelsByPrompt : LabelsByName;
}

/// Reads printed lines; blank lines are skipped.
QList<AttrCondition> conditionsFromText(const QByteArray &text, int did, DocumentProblem *problem)
{
    QList<AttrCondition> conditions;
    const QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    const QList<LineResult> results = conditionsFromLines(lines, did, configuredLabels());
    for (int index = 0; index < int(results.size()); ++index) {
        if (lines.at(index).trimmed().isEmpty())
            continue;
        if (results.at(index).status != LineRead) {
            *problem = {QStringLiteral("line %1").arg(index + 1), results.at(index).reason};
            return {};
        }
        conditions.append(results.at(index).condition);
    }
    return conditions;
}

class FilterTask : public Task
{
public:
    explicit FilterTask(int did)
        : m_did(did)
        , m_dialog(did)
    {
        // The library sets no title for this dialog.
        m_dialog.setWindowTitle(QStringLiteral("Attributes Filter"));
    }

    TvxAttributesSelectionDialog &dialog() override { return m_dialog; }

    QList<RestoreResult> restore(const QByteArray &text, DocumentProblem *problem) override
    {
        QList<AttrCondition> conditions;
        if (text.trimmed().startsWith('{'))
            conditionsFromJson(text, &conditions, problem);
        else
            conditions = conditionsFromText(text, m_did, problem);
        return m_dialog.restoreConditions(
            conditions, [this](const QTableWidgetItem &item) { return tvx::addChosen(m_dialog, item); });
    }

    QStringList resultLines() const override { return m_dialog.getFiltersAsStringList(); }
    QByteArray resultDocument() const override { return conditionsToJson(m_dialog.conditions()); }

private:
    int m_did;
    AttributesFilterDialog m_dialog;
};

} // namespace

std::unique_ptr<Task> createFilterTask(int did)
{
    return std::make_unique<FilterTask>(did);
}

} // namespace Zudunmaf::demo
