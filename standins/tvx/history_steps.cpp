#include "tvx/history_steps.h"

#include "tvx/attribute_item.h"
#include "tvx/chosen_table.h"
#include "tvx/row_mover.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

std::vector<const QTableWidgetItem *> namesOf(const std::vector<ChosenRow> &rows)
{
    std::vector<const QTableWidgetItem *> names;
    names.reserve(rows.size());
    for (const ChosenRow &row : rows)
        names.push_back(row.name.get());
    return names;
}

/// Returns a clone with the flags and generic data of the item, which clone() leaves out.
std::unique_ptr<QTableWidgetItem> wholeClone(const QTableWidgetItem &item)
{
    std::unique_ptr<QTableWidgetItem> copy(item.clone());
    copy->QTableWidgetItem::operator=(item);
    return copy;
}

} // namespace

HistoryStep::HistoryStep(const QString &text)
    : QUndoCommand(text)
{
}

void HistoryStep::redo()
{
    if (std::exchange(m_isPushed, true))
        toggle();
}

void HistoryStep::undo()
{
    toggle();
}

RowsStep::RowsStep(RowMover *mover, std::vector<const QTableWidgetItem *> names, const QString &text)
    : HistoryStep(text)
    , m_mover(mover)
    , m_names(std::move(names))
    , m_areRemoved(false)
{
}

RowsStep::RowsStep(RowMover *mover, std::vector<ChosenRow> removed, const QString &text)
    : HistoryStep(text)
    , m_mover(mover)
    , m_names(namesOf(removed))
    , m_removed(std::move(removed))
    , m_areRemoved(true)
{
}

void RowsStep::toggle()
{
    if (m_areRemoved) {
        m_removed = m_mover->restore(std::move(m_removed));
    } else {
        std::vector<ChosenRow> taken = m_mover->take(m_names);
        m_removed.insert(m_removed.end(), std::make_move_iterator(taken.begin()),
                         std::make_move_iterator(taken.end()));
        std::stable_sort(m_removed.begin(), m_removed.end(),
                         [](const ChosenRow &a, const ChosenRow &b) { return a.formerRow < b.formerRow; });
    }
    m_areRemoved = !m_areRemoved;
}

ValuesStep::ValuesStep(ChosenTable *table, const QList<QTableWidgetItem *> &items, const QString &text)
    : HistoryStep(text)
    , m_table(table)
{
    m_values.reserve(static_cast<std::size_t>(items.size()));
    for (const QTableWidgetItem *item : items)
        m_values.push_back({table->item(item->row(), AttributeTable::NameColumn), wholeClone(*item)});
}

ValuesStep::~ValuesStep() = default;

int ValuesStep::dropUnchanged()
{
    const QHash<const QTableWidgetItem *, int> rows = m_table->rows().rowOfNames();
    const auto isUnchanged = [this, &rows](const Value &value) {
        const QTableWidgetItem *now = m_table->rowItem(rows.value(value.name, -1));
        return !now || contentOf(*now) == contentOf(*value.other);
    };
    m_values.erase(std::remove_if(m_values.begin(), m_values.end(), isUnchanged), m_values.end());
    return static_cast<int>(m_values.size());
}

void ValuesStep::toggle()
{
    const QHash<const QTableWidgetItem *, int> rows = m_table->rows().rowOfNames();
    QVector<QTableWidgetItem *> shown;
    for (Value &value : m_values) {
        const int row = rows.value(value.name, -1);
        if (row < 0)
            continue;
        m_table->rows().exchangeValue(row, &value.other);
        shown.append(m_table->rowItem(row));
    }
    m_table->rows().select(shown);
}

} // namespace tvx
} // namespace Zudunmaf
