#include "tvx/filter_criteria.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "tvx/selection_widgets.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

namespace Zudunmaf
{
namespace tvx
{

FilterCriteria::FilterCriteria(int did, const SelectionWidgets &widgets)
    : m_did(did)
    , m_entityList(widgets.entityList)
    , m_groupList(widgets.groupList)
    , m_filterText(widgets.filterText)
{
}

FilterCriteria::~FilterCriteria() = default;

void FilterCriteria::setEntities(const QList<TvxDataItem *> &items)
{
    const QSignalBlocker blocker(m_entityList);
    m_entityList->clear();
    m_entities.clear();
    for (TvxDataItem *item : items) {
        m_entities.emplace_back(item);
        m_entityList->addItem(item->text());
    }
    m_entityList->setCurrentIndex(m_entityList->count() - 1);
    // The lists are built when the dictionary may have changed.
    m_isFillMissing = true;
}

void FilterCriteria::setGroups(const QStringList &groups)
{
    const QSignalBlocker blocker(m_groupList);
    m_groupList->clear();
    m_groupList->addItems(groups);
    m_groupList->setCurrentIndex(groups.isEmpty() ? -1 : 0);
}

const TvxDataItem *FilterCriteria::entity() const
{
    const int row = m_entityList->currentIndex();
    return row < 0 ? nullptr : m_entities[static_cast<std::size_t>(row)].get();
}

int FilterCriteria::dictionary() const
{
    if (m_did != -1)
        return m_did;
    const TvxDataItem *item = entity();
    return item ? item->did() : -1;
}

int FilterCriteria::mask() const
{
    const TvxDataItem *item = entity();
    return item ? item->data().toInt() : 0;
}

QString FilterCriteria::group() const
{
    return m_groupList->itemText(m_groupList->currentIndex());
}

QString FilterCriteria::text() const
{
    return m_filterText->text();
}

bool FilterCriteria::isNarrowed() const
{
    return isNarrowedByList() || !text().isEmpty();
}

bool FilterCriteria::isNarrowedByList() const
{
    return m_entityList->currentIndex() != m_entityList->count() - 1 || m_groupList->currentIndex() > 0;
}

void FilterCriteria::rememberFill()
{
    m_stateAtFill = state();
    m_wasNarrowedAtFill = isNarrowed();
    // Without "All Groups", the walk that lists the groups has failed.
    m_isFillMissing = m_groupList->count() == 0;
}

bool FilterCriteria::needsRefill() const
{
    const State now = state();
    return m_isFillMissing || now.dictionary != m_stateAtFill.dictionary ||
           (m_wasNarrowedAtFill && !(now == m_stateAtFill));
}

FilterCriteria::State FilterCriteria::state() const
{
    return {dictionary(), mask(), group(), text()};
}

bool FilterCriteria::State::operator==(const State &other) const
{
    return dictionary == other.dictionary && mask == other.mask && group == other.group && text == other.text;
}

} // namespace tvx
} // namespace Zudunmaf
