#ifndef TVX_EMPTY_TABLE_ADVICE_H
#define TVX_EMPTY_TABLE_ADVICE_H

#include <QSet>
#include <QStringList>

#include <optional>
#include <tuple>

namespace Zudunmaf
{
namespace tvx
{

class FilterCriteria;
class SelectionWidgets;

/// Says why the available table has no visible row, and where the filter text matches instead: in attributes of other
/// entities or groups, in chosen ones, or in the label that is not shown.
///
/// Reads the rows of the table, hidden ones included, and only while none is visible. Rows that the last fill left out
/// are unknown to it.
class EmptyTableAdvice
{
public:
    struct Advice {
        /// The reason, a sentence or more.
        QString text;
        /// The shown label of the first match; empty if there is none that can be shown.
        QString firstLabel;
        /// More entities and groups would show more attributes.
        bool canWiden = false;
    };

    /// The arguments must outlive the object.
    EmptyTableAdvice(const SelectionWidgets &widgets, const FilterCriteria &criteria);

    /// Returns the advice for the present criteria. Computed again only when they, the rows or the chosen rows have
    /// changed.
    const Advice &advice();

private:
    struct Matches {
        /// Whether the matching label is the shown one.
        bool isShownLabel = false;
        int count = 0;
        int chosenCount = 0;
        /// The first few of those that are not chosen, and the first chosen one.
        QStringList names;
        QString firstLabel;
        QString firstChosen;
    };

    /// All that the advice depends on: filter text, group, entity, mask, whether a fill is missing, number of fills, of
    /// visible and of chosen rows.
    using State = std::tuple<QString, QString, int, int, bool, int, int, int>;

    Advice computed() const;
    Advice adviceOnMatches(const Matches &matches, const char *foundKey) const;
    Matches matches(bool byPrompt, bool showsPrompt) const;
    bool showsPrompt() const;
    QSet<QString> hiddenAsChosen() const;
    State state() const;

    const SelectionWidgets &m_widgets;
    const FilterCriteria &m_criteria;
    /// That of the last advice.
    std::optional<State> m_state;
    Advice m_advice;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
