#include "tvx/row_mover.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "tvx/attribute_item.h"
#include "tvx/batch_update.h"
#include "tvx/change_history.h"
#include "tvx/chosen_counts.h"
#include "tvx/chosen_table.h"
#include "tvx/history_steps.h"
#include "tvx/tvx_texts.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

ChosenRow copyOf(const QTableWidgetItem &item)
{
    return {std::unique_ptr<QTableWidgetItem>(item.clone()), std::unique_ptr<QTableWidgetItem>(item.clone()),
            -1};
}

/// Returns the text of a step: the attribute's label, or the number of attributes.
QString stepText(const char *one, const char *several, const std::vector<ChosenRow> &rows)
{
    return rows.size() == 1 ? textOf(one).arg(rows.front().name->text())
                            : textOf(several).arg(static_cast<int>(rows.size()));
}

QVector<QTableWidgetItem *> valuesOf(const std::vector<ChosenRow> &rows)
{
    QVector<QTableWidgetItem *> values;
    values.reserve(static_cast<int>(rows.size()));
    for (const ChosenRow &row : rows)
        values.append(row.value.get());
    return values;
}

std::unique_ptr<RowsStep> additionStep(RowMover *mover, const std::vector<ChosenRow> &rows)
{
    std::vector<const QTableWidgetItem *> names;
    names.reserve(rows.size());
    for (const ChosenRow &row : rows)
        names.push_back(row.name.get());
    return std::make_unique<RowsStep>(mover, std::move(names),
                                      stepText(texts::StepAdd, texts::StepAddSeveral, rows));
}

} // namespace

RowMover::RowMover(TvxAttributesSelectionDialog *dialog, AvailableTable *available, ChosenTable *chosen,
                   ChangeHistory *history, QObject *parent)
    : QObject(parent)
    , m_dialog(dialog)
    , m_available(available)
    , m_chosen(chosen)
    , m_history(history)
{
}

void RowMover::addSelected()
{
    finishEditing();
    // Collected first, because a hook changes the selection.
    const std::vector<AvailableRow> selected = selectedAvailableRows();
    if (selected.empty())
        return;
    const QHash<QString, QTableWidgetItem *> present = reusableRows();
    std::vector<ChosenRow> copies;
    std::vector<AvailableRow> added;
    QVector<QTableWidgetItem *> values;
    for (const AvailableRow &row : selected) {
        if (QTableWidgetItem *value = present.value(row.name)) {
            values.append(value);
            continue;
        }
        copies.push_back(copyOf(*row.item));
        added.push_back(row);
    }
    values += valuesOf(copies);
    if (!copies.empty())
        m_history->push(additionStep(this, copies));
    {
        const BatchUpdate batch(m_available);
        append(std::move(copies));
        callAddHooks(added);
    }
    m_chosen->rows().select(values);
    Q_EMIT rowsMoved();
    Q_EMIT userMovedRows();
}

/// Also clears the sentence on an earlier refused entry.
void RowMover::finishEditing()
{
    m_chosen->forgetRefusal();
    m_chosen->finishEditing();
}

std::vector<RowMover::AvailableRow> RowMover::selectedAvailableRows() const
{
    std::vector<AvailableRow> selected;
    const QVector<int> rows = m_available->selectedVisibleRows();
    selected.reserve(static_cast<std::size_t>(rows.size()));
    for (int row : rows) {
        QTableWidgetItem *item = m_available->rowItem(row);
        selected.push_back({item, nameOf(*item)});
    }
    return selected;
}

void RowMover::callAddHooks(const std::vector<AvailableRow> &rows)
{
    const int fills = m_available->fillCount();
    for (const AvailableRow &row : rows) {
        // A hook that fills the table again deletes the items.
        if (m_available->fillCount() == fills)
            m_dialog->addButtonClickedCB(row.item);
        else
            callAddHook(row.name);
    }
}

void RowMover::callAddHook(const QString &name)
{
    if (QTableWidgetItem *item = m_available->findByName(name))
        m_dialog->addButtonClickedCB(item);
}

void RowMover::removeSelected()
{
    finishEditing();
    remove(m_chosen->selectedVisibleRows());
}

void RowMover::removeAll()
{
    finishEditing();
    QVector<int> rows;
    rows.reserve(m_chosen->rowCount());
    for (int row = 0; row < m_chosen->rowCount(); ++row) {
        if (m_chosen->isUsable(row))
            rows.append(row);
    }
    remove(rows);
}

void RowMover::remove(const QVector<int> &rows)
{
    if (rows.isEmpty())
        return;
    std::vector<const QTableWidgetItem *> names;
    names.reserve(static_cast<std::size_t>(rows.size()));
    for (int row : rows)
        names.push_back(m_chosen->item(row, AttributeTable::NameColumn));
    std::vector<ChosenRow> removed = take(names);
    const QString text = stepText(texts::StepRemove, texts::StepRemoveSeveral, removed);
    m_history->push(std::make_unique<RowsStep>(this, std::move(removed), text));
    Q_EMIT rowsMoved();
    Q_EMIT userMovedRows();
}

std::vector<ChosenRow> RowMover::take(const std::vector<const QTableWidgetItem *> &names)
{
    m_isRemoving = true;
    callRemoveHooks(rowsOf(names));
    // Looked up again: a hook may have added a row, and the rows may be sorted.
    const QVector<int> rows = rowsOf(names);
    std::vector<ChosenRow> taken = m_chosen->rows().take(rows);
    for (const ChosenRow &row : taken)
        m_valueNames.remove(nameOf(*row.value));
    if (!rows.isEmpty()) {
        const int below = rows.last() - static_cast<int>(rows.size()) + 1;
        m_chosen->makeRowCurrent(std::min(below, m_chosen->rowCount() - 1));
    }
    m_isRemoving = false;
    return taken;
}

void RowMover::callRemoveHooks(const QVector<int> &rows)
{
    QVector<QTableWidgetItem *> values;
    values.reserve(rows.size());
    for (int row : rows)
        values.append(m_chosen->rowItem(row));
    const BatchUpdate batch(m_available);
    for (QTableWidgetItem *value : values)
        m_dialog->removeButtonClickedCB(value);
}

/// Returns the rows of these name items in ascending order, without those that are not in the table.
QVector<int> RowMover::rowsOf(const std::vector<const QTableWidgetItem *> &names) const
{
    const QHash<const QTableWidgetItem *, int> rowOfNames = m_chosen->rows().rowOfNames();
    QVector<int> rows;
    for (const QTableWidgetItem *name : names) {
        if (rowOfNames.contains(name))
            rows.append(rowOfNames.value(name));
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::vector<ChosenRow> RowMover::restore(std::vector<ChosenRow> rows)
{
    const QHash<QString, QTableWidgetItem *> present = chosenValues();
    const auto isAbsent = [&present](const ChosenRow &row) { return !present.contains(nameOf(*row.value)); };
    const auto firstPresent = std::stable_partition(rows.begin(), rows.end(), isAbsent);
    std::vector<ChosenRow> left(std::make_move_iterator(firstPresent), std::make_move_iterator(rows.end()));
    rows.erase(firstPresent, rows.end());

    const QVector<QTableWidgetItem *> values = valuesOf(rows);
    rememberValues(rows);
    m_chosen->rows().restore(std::move(rows));
    {
        const BatchUpdate batch(m_available);
        for (const QTableWidgetItem *value : values)
            callAddHook(nameOf(*value));
    }
    m_chosen->rows().select(values);
    return left;
}

void RowMover::undo()
{
    finishEditing();
    m_history->undo();
    Q_EMIT rowsMoved();
}

void RowMover::redo()
{
    finishEditing();
    m_history->redo();
    Q_EMIT rowsMoved();
}

bool RowMover::addCopyOf(const QTableWidgetItem &item)
{
    const QString name = nameOf(item);
    const bool isAttribute = !name.isEmpty() && definitionOf(item);
    if (!isAttribute || !isOfDialogsKind(item) || (!isCondition(item) && m_valueNames.contains(name)))
        return false;
    finishEditing();
    std::vector<ChosenRow> copies;
    copies.push_back(copyOf(item));
    Q_EMIT hostAddsRow(*copies.front().value);
    append(std::move(copies));
    callAddHook(name);
    Q_EMIT rowsMoved();
    return true;
}

void RowMover::append(std::vector<ChosenRow> rows)
{
    rememberValues(rows);
    m_chosen->rows().append(std::move(rows));
}

void RowMover::rememberValues(const std::vector<ChosenRow> &rows)
{
    for (const ChosenRow &row : rows) {
        if (!isCondition(*row.value))
            m_valueNames.insert(nameOf(*row.value));
    }
}

/// Returns true if the item is of the kind of the other rows, conditions or values, or if there is no other row.
bool RowMover::isOfDialogsKind(const QTableWidgetItem &item) const
{
    const QTableWidgetItem *chosen = m_chosen->rowItem(0);
    const QTableWidgetItem *known = chosen ? chosen : m_available->rowItem(0);
    return !known || nameOf(*known).isEmpty() || isCondition(*known) == isCondition(item);
}

/// Returns the chosen rows that an addition selects instead of adding another one.
QHash<QString, QTableWidgetItem *> RowMover::reusableRows() const
{
    const QTableWidgetItem *first = m_chosen->rowItem(0);
    return first && isCondition(*first) ? newestUnsetConditions(*m_chosen) : chosenValues();
}

/// Returns the chosen values by attribute; none in a dialog of conditions. All rows of a dialog are of one kind.
QHash<QString, QTableWidgetItem *> RowMover::chosenValues() const
{
    QHash<QString, QTableWidgetItem *> values;
    const QTableWidgetItem *first = m_chosen->rowItem(0);
    if (!first || isCondition(*first))
        return values;
    const QList<QTableWidgetItem *> items = m_chosen->rowItems(false);
    for (QTableWidgetItem *item : items)
        values.insert(nameOf(*item), item);
    // Items without a name have no attribute in common.
    values.remove(QString());
    return values;
}

} // namespace tvx
} // namespace Zudunmaf
