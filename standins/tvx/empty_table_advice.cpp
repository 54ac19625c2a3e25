#include "tvx/empty_table_advice.h"

#include "common/wildcards.h"
#include "gdm/host/host_text.h"
#include "tvx/attribute_facts.h"
#include "tvx/attribute_item.h"
#include "tvx/available_table.h"
#include "tvx/chosen_table.h"
#include "tvx/filter_criteria.h"
#include "tvx/selection_widgets.h"
#include "tvx/text_lines.h"
#include "tvx/tvx_texts.h"

#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

constexpr int MostNames = 3;
constexpr int MostCharacters = 30;

QString labelOf(const DmlAttrDef &definition, bool byPrompt)
{
    return byPrompt ? fieldString(definition.prompt) : fieldString(definition.name);
}

} // namespace

EmptyTableAdvice::EmptyTableAdvice(const SelectionWidgets &widgets, const FilterCriteria &criteria)
    : m_widgets(widgets)
    , m_criteria(criteria)
{
}

const EmptyTableAdvice::Advice &EmptyTableAdvice::advice()
{
    State present = state();
    if (present != m_state) {
        m_state = std::move(present);
        m_advice = m_widgets.topView->visibleRowCount() > 0 ? Advice() : computed();
    }
    return m_advice;
}

EmptyTableAdvice::State EmptyTableAdvice::state() const
{
    const AvailableTable *top = m_widgets.topView;
    return {m_criteria.text(),          m_criteria.group(),
            m_criteria.dictionary(),    m_criteria.mask(),
            m_criteria.isFillMissing(), top->fillCount(),
            top->visibleRowCount(),     m_widgets.chosenList->rowCount()};
}

EmptyTableAdvice::Advice EmptyTableAdvice::computed() const
{
    Advice advice;
    if (m_criteria.dictionary() < 0) {
        advice.text = textOf(texts::NoDictionary);
    } else if (m_criteria.isFillMissing() && m_widgets.topView->rowCount() == 0) {
        advice.text = textOf(texts::NotRead);
    } else if (!m_criteria.isNarrowed()) {
        advice.text = textOf(texts::NothingLeft);
    } else {
        const bool byPrompt = showsPrompt();
        const Matches shown = matches(byPrompt, byPrompt);
        if (shown.chosenCount > 0 || (shown.count > 0 && m_criteria.isNarrowedByList()))
            return adviceOnMatches(shown, texts::FoundElsewhere);
        return adviceOnMatches(matches(!byPrompt, byPrompt), byPrompt ? texts::ByName : texts::ByDescription);
    }
    return advice;
}

EmptyTableAdvice::Advice EmptyTableAdvice::adviceOnMatches(const Matches &matches, const char *foundKey) const
{
    Advice advice;
    advice.canWiden = m_criteria.isNarrowedByList() &&
                      (matches.count > 0 ? matches.isShownLabel : m_criteria.wasFillNarrowed());
    QStringList sentences;
    if (matches.chosenCount == 1)
        sentences.append(textOf(texts::IsChosen).arg(matches.firstChosen));
    else if (matches.chosenCount > 1)
        sentences.append(textOf(texts::AreChosen).arg(matches.chosenCount));
    if (matches.count > 0) {
        const QString found = textOf(foundKey).replace(QLatin1String("%2"), QString::number(matches.count));
        sentences.append(found.arg(listed(matches.names, matches.count)));
        if (!matches.firstLabel.isEmpty())
            sentences.append(textOf(texts::EnterShowsFirst));
        advice.firstLabel = matches.firstLabel;
    } else if (sentences.isEmpty()) {
        sentences.append(advice.canWiden
                             ? textOf(texts::NothingMatches)
                             : textOf(texts::NothingFound).arg(truncated(m_criteria.text(), MostCharacters)));
    }
    advice.text = sentences.join(QLatin1Char(' '));
    return advice;
}

/// Finds the attributes whose prompt or name matches the filter text.
EmptyTableAdvice::Matches EmptyTableAdvice::matches(bool byPrompt, bool showsPrompt) const
{
    Matches matches;
    matches.isShownLabel = byPrompt == showsPrompt;
    const QRegularExpression expression = standins::wildcardExpression(m_criteria.text());
    const QSet<QString> chosen = hiddenAsChosen();
    const QList<QTableWidgetItem *> items = m_widgets.topView->allItems();
    for (const QTableWidgetItem *item : items) {
        const DmlAttrDef *definition = definitionOf(*item);
        if (!definition || !expression.match(labelOf(*definition, byPrompt)).hasMatch())
            continue;
        const QString label = labelOf(*definition, showsPrompt);
        QString name = labelOf(*definition, byPrompt);
        if (!matches.isShownLabel && !label.isEmpty())
            name = label + QStringLiteral(" (%1)").arg(name);
        if (chosen.contains(nameOf(*item))) {
            if (matches.chosenCount++ == 0)
                matches.firstChosen = name;
            continue;
        }
        if (matches.count++ == 0)
            matches.firstLabel = label;
        if (matches.names.size() < MostNames)
            matches.names.append(name);
    }
    return matches;
}

/// Returns true if the labels are prompts, false if they are names.
bool EmptyTableAdvice::showsPrompt() const
{
    const AvailableTable *top = m_widgets.topView;
    for (int row = 0; row < top->rowCount(); ++row) {
        const DmlAttrDef *definition = definitionOf(*top->rowItem(row));
        if (!definition || labelOf(*definition, true) == labelOf(*definition, false))
            continue;
        return top->item(row, AttributeTable::NameColumn)->text() == labelOf(*definition, true);
    }
    return false;
}

/// Returns the names of the chosen values. Chosen conditions do not hide the row of their attribute.
QSet<QString> EmptyTableAdvice::hiddenAsChosen() const
{
    QSet<QString> names;
    const QList<QTableWidgetItem *> items = m_widgets.chosenList->rowItems(false);
    for (const QTableWidgetItem *item : items) {
        if (!isCondition(*item))
            names.insert(nameOf(*item));
    }
    return names;
}

} // namespace tvx
} // namespace Zudunmaf
