#include "tvx/row_mover.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/items/attr_roles.h"
#include "tvx/batch_update.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

QString nameOf(const QTableWidgetItem &item)
{
    return item.data(DmlAttrNameRole).toString();
}

bool isCondition(const QTableWidgetItem &item)
{
    return item.data(DmlAttrFilterTextRole).isValid();
}

ChosenTable::Row copyOf(const QTableWidgetItem &item)
{
    return {std::unique_ptr<QTableWidgetItem>(item.clone()), std::unique_ptr<QTableWidgetItem>(item.clone()),
            -1};
}

QVector<QTableWidgetItem *> valuesOf(const std::vector<ChosenTable::Row> &rows)
{
    QVector<QTableWidgetItem *> values;
    values.reserve(static_cast<int>(rows.size()));
    for (const ChosenTable::Row &row : rows)
        values.append(row.value.get());
    return values;
}

} // namespace

RowMover::RowMover(TvxAttributesSelectionDialog *dialog, AvailableTable *top, ChosenTable *chosen,
                   QObject *parent)
    : QObject(parent)
    , m_dialog(dialog)
    , m_top(top)
    , m_chosen(chosen)
{
}

void RowMover::addSelected()
{
    finishEditing();
    // All items first: a hook changes the selection of the top view.
    const std::vector<Offered> offers = selectedOffers();
    if (offers.empty())
        return;
    const QHash<QString, QTableWidgetItem *> present = valuesByName();
    std::vector<ChosenTable::Row> copies;
    std::vector<Offered> entering;
    QVector<QTableWidgetItem *> values;
    for (const Offered &offer : offers) {
        if (QTableWidgetItem *value = present.value(offer.name)) {
            values.append(value);
            continue;
        }
        copies.push_back(copyOf(*offer.item));
        entering.push_back(offer);
    }
    values += valuesOf(copies);
    {
        const BatchUpdate batch(m_top);
        append(std::move(copies));
        reportAdded(entering);
    }
    m_chosen->selectItems(values);
    Q_EMIT rowsMoved();
}

/// Also clears the message on an entry that was refused before.
void RowMover::finishEditing()
{
    m_chosen->forgetRefusal();
    m_chosen->finishEditing();
}

std::vector<RowMover::Offered> RowMover::selectedOffers() const
{
    std::vector<Offered> offers;
    const QVector<int> rows = m_top->selectedVisibleRows();
    offers.reserve(static_cast<std::size_t>(rows.size()));
    for (int row : rows) {
        QTableWidgetItem *item = m_top->rowItem(row);
        offers.push_back({item, nameOf(*item)});
    }
    return offers;
}

void RowMover::reportAdded(const std::vector<Offered> &offers)
{
    const int fills = m_top->fillCount();
    for (const Offered &offer : offers) {
        // A hook that has the rows built anew takes the items away.
        if (m_top->fillCount() == fills)
            m_dialog->addButtonClickedCB(offer.item);
        else
            reportAdded(offer.name);
    }
}

void RowMover::reportAdded(const QString &name)
{
    if (QTableWidgetItem *item = m_top->findByName(name))
        m_dialog->addButtonClickedCB(item);
}

void RowMover::removeSelected()
{
    remove(m_chosen->selectedVisibleRows());
}

void RowMover::removeAll()
{
    QVector<int> rows(m_chosen->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    remove(rows);
}

void RowMover::remove(const QVector<int> &rows)
{
    finishEditing();
    if (rows.isEmpty())
        return;
    m_isRemoving = true;
    {
        const BatchUpdate batch(m_top);
        for (int row : rows)
            m_dialog->removeButtonClickedCB(m_chosen->rowItem(row));
    }
    m_removals.push_back(m_chosen->takeRows(rows));
    for (const ChosenTable::Row &row : m_removals.back())
        m_valueNames.remove(nameOf(*row.value));
    const int below = rows.last() - static_cast<int>(rows.size()) + 1;
    m_chosen->makeRowCurrent(std::min(below, m_chosen->rowCount() - 1));
    m_isRemoving = false;
    Q_EMIT rowsMoved();
}

void RowMover::undoRemoval()
{
    finishEditing();
    if (!canUndoRemoval())
        return;
    std::vector<ChosenTable::Row> rows = std::move(m_removals.back());
    m_removals.pop_back();
    const QHash<QString, QTableWidgetItem *> present = valuesByName();
    const auto isPresent = [&present](const ChosenTable::Row &row) {
        return present.contains(nameOf(*row.value));
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isPresent), rows.end());

    const QVector<QTableWidgetItem *> values = valuesOf(rows);
    rememberValues(rows);
    m_chosen->restoreRows(std::move(rows));
    {
        const BatchUpdate batch(m_top);
        for (const QTableWidgetItem *value : values)
            reportAdded(nameOf(*value));
    }
    m_chosen->selectItems(values);
    Q_EMIT rowsMoved();
}

bool RowMover::addCopyOf(const QTableWidgetItem &item)
{
    const QString name = nameOf(item);
    const bool isAttribute = !name.isEmpty() && item.data(DmlAttrDefRole).value<void *>();
    if (!isAttribute || !isOfDialogsKind(item) || (!isCondition(item) && m_valueNames.contains(name)))
        return false;
    finishEditing();
    std::vector<ChosenTable::Row> copies;
    copies.push_back(copyOf(item));
    append(std::move(copies));
    reportAdded(name);
    Q_EMIT rowsMoved();
    return true;
}

void RowMover::append(std::vector<ChosenTable::Row> rows)
{
    rememberValues(rows);
    m_chosen->appendRows(std::move(rows));
}

void RowMover::rememberValues(const std::vector<ChosenTable::Row> &rows)
{
    for (const ChosenTable::Row &row : rows) {
        if (!isCondition(*row.value))
            m_valueNames.insert(nameOf(*row.value));
    }
}

/// A dialog has items of one kind, and any row of either table shows which. Without a row, each kind is accepted.
bool RowMover::isOfDialogsKind(const QTableWidgetItem &item) const
{
    const QTableWidgetItem *chosen = m_chosen->rowItem(0);
    const QTableWidgetItem *known = chosen ? chosen : m_top->rowItem(0);
    return !known || nameOf(*known).isEmpty() || isCondition(*known) == isCondition(item);
}

/// The value items of the chosen rows by attribute; empty in a dialog of conditions. A dialog has rows of one kind, and
/// the first says which.
QHash<QString, QTableWidgetItem *> RowMover::valuesByName() const
{
    QHash<QString, QTableWidgetItem *> values;
    const QTableWidgetItem *first = m_chosen->rowItem(0);
    if (!first || isCondition(*first))
        return values;
    const QList<QTableWidgetItem *> items = m_chosen->rowItems(false);
    for (QTableWidgetItem *item : items)
        values.insert(nameOf(*item), item);
    // Items of another class have no name, and are all different.
    values.remove(QString());
    return values;
}

} // namespace tvx
} // namespace Zudunmaf
