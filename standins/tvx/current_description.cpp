#include "tvx/current_description.h"

#include "tvx/attribute_facts.h"
#include "tvx/available_table.h"
#include "tvx/chosen_table.h"
#include "tvx/description_label.h"
#include "tvx/selection_widgets.h"
#include "tvx/tvx_texts.h"

namespace Zudunmaf
{
namespace tvx
{

CurrentDescription::CurrentDescription(const SelectionWidgets &widgets)
    : m_widgets(widgets)
{
}

void CurrentDescription::show() const
{
    const ChosenTable *chosen = m_widgets.chosenList;
    // focusWidget() of the window keeps its answer while a menu is open.
    const bool inChosen = chosen->openEditor() || chosen->window()->focusWidget() == chosen;
    const AttributeTable *table = chosen;
    if (!inChosen)
        table = m_widgets.topView;
    const QString notice = chosen->lastRefusal();
    if (!table->rowItem(table->currentRow())) {
        m_widgets.description->setLines(notice, QString(), false);
        return;
    }
    const AttributeFacts facts = table->hints().factsOf(table->currentRow());
    if (notice.isEmpty())
        m_widgets.description->setLines(joinedFacts(facts.title()), details(facts), true);
    else
        m_widgets.description->setLines(notice, joinedFacts(facts.title() << details(facts)), false);
}

QString CurrentDescription::details(const AttributeFacts &facts) const
{
    const QString limits = facts.limits();
    if (limits.isEmpty() || !m_widgets.chosenList->openEditor())
        return joinedFacts(facts.facts());
    return joinedFacts(QStringList{textOf(texts::Limits).arg(limits)} + facts.factsWithoutLimits());
}

} // namespace tvx
} // namespace Zudunmaf
