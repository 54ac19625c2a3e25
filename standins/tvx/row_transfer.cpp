#include "tvx/row_transfer.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/items/attr_roles.h"
#include "tvx/top_table.h"

#include <QSet>

#include <algorithm>
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

ChosenTable::RowItems copiesOf(const QTableWidgetItem &item)
{
    return {item.clone(), item.clone()};
}

void destroy(const QVector<ChosenTable::RowItems> &items)
{
    for (const ChosenTable::RowItems &row : items) {
        delete row.name;
        delete row.value;
    }
}

QVector<QTableWidgetItem *> valuesOf(const QVector<ChosenTable::RowItems> &rows)
{
    QVector<QTableWidgetItem *> values;
    values.reserve(rows.size());
    for (const ChosenTable::RowItems &row : rows)
        values.append(row.value);
    return values;
}

} // namespace

RowTransfer::RowTransfer(TvxAttributesSelectionDialog *dialog, TopTable *top, ChosenTable *chosen,
                         QObject *parent)
    : QObject(parent)
    , m_dialog(dialog)
    , m_top(top)
    , m_chosen(chosen)
{
}

RowTransfer::~RowTransfer()
{
    for (const Removal &removal : m_removals)
        destroy(removal.items);
}

void RowTransfer::addSelected()
{
    m_chosen->finishEditing();
    // All items first: a hook changes the selection of the top view.
    QVector<QTableWidgetItem *> offered;
    QVector<ChosenTable::RowItems> copies;
    const QVector<int> rows = m_top->selectedVisibleRows();
    for (int row : rows) {
        offered.append(m_top->rowItem(row));
        copies.append(copiesOf(*offered.last()));
    }
    if (offered.isEmpty())
        return;
    {
        const TopTable::Pass pass(m_top);
        m_chosen->insertRows(-1, copies);
        for (QTableWidgetItem *item : std::as_const(offered))
            announceAdded(item);
    }
    m_chosen->selectItems(valuesOf(copies));
    Q_EMIT transferred();
}

void RowTransfer::announceAdded(QTableWidgetItem *offered)
{
    const bool shown = !m_top->isRowHidden(offered->row());
    m_dialog->addButtonClickedCB(offered);
    if (shown && m_top->isRowHidden(offered->row()))
        m_addedRowsLeave = true;
}

void RowTransfer::announceAdded(const QVector<QTableWidgetItem *> &values)
{
    for (const QTableWidgetItem *value : values) {
        if (QTableWidgetItem *offered = m_top->findByName(nameOf(*value)))
            announceAdded(offered);
    }
}

void RowTransfer::removeSelected()
{
    remove(m_chosen->selectedVisibleRows());
}

void RowTransfer::removeAll()
{
    QVector<int> rows(m_chosen->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    remove(rows);
}

void RowTransfer::remove(const QVector<int> &rows)
{
    m_chosen->finishEditing();
    if (rows.isEmpty())
        return;
    {
        const TopTable::Pass pass(m_top);
        for (int row : rows)
            m_dialog->removeButtonClickedCB(m_chosen->rowItem(row));
    }
    m_removals.push_back({rows, m_chosen->takeRows(rows)});
    const int below = rows.last() - static_cast<int>(rows.size()) + 1;
    m_chosen->makeRowCurrent(std::min(below, m_chosen->rowCount() - 1));
    Q_EMIT transferred();
}

void RowTransfer::undoRemoval()
{
    m_chosen->finishEditing();
    if (!canUndoRemoval())
        return;
    Removal removal = takeLastRemoval();
    if (m_addedRowsLeave)
        dropChosenAgain(&removal);
    insert(removal);
    const QVector<QTableWidgetItem *> values = valuesOf(removal.items);
    {
        const TopTable::Pass pass(m_top);
        announceAdded(values);
    }
    m_chosen->selectItems(values);
    Q_EMIT transferred();
}

RowTransfer::Removal RowTransfer::takeLastRemoval()
{
    Removal removal = std::move(m_removals.back());
    m_removals.pop_back();
    return removal;
}

void RowTransfer::dropChosenAgain(Removal *removal) const
{
    QSet<QString> chosen;
    const QList<QTableWidgetItem *> items = m_chosen->rowItems(false);
    for (const QTableWidgetItem *item : items)
        chosen.insert(nameOf(*item));

    Removal kept;
    for (int i = 0; i < removal->rows.size(); ++i) {
        if (chosen.contains(nameOf(*removal->items[i].value))) {
            destroy({removal->items[i]});
        } else {
            kept.rows.append(removal->rows[i]);
            kept.items.append(removal->items[i]);
        }
    }
    *removal = kept;
}

/// Ascending, so that each row finds the rows above it back in their places; neighbours go in together.
void RowTransfer::insert(const Removal &removal)
{
    for (int first = 0; first < removal.rows.size();) {
        int next = first + 1;
        while (next < removal.rows.size() && removal.rows[next] == removal.rows[next - 1] + 1)
            ++next;
        m_chosen->insertRows(removal.rows[first], removal.items.mid(first, next - first));
        first = next;
    }
}

bool RowTransfer::addCopyOf(const QTableWidgetItem &item)
{
    const QString name = nameOf(item);
    if (name.isEmpty() || (m_addedRowsLeave && isChosen(name)))
        return false;
    m_chosen->finishEditing();
    m_chosen->insertRows(-1, {copiesOf(item)});
    if (QTableWidgetItem *offered = m_top->findByName(name))
        announceAdded(offered);
    Q_EMIT transferred();
    return true;
}

bool RowTransfer::isChosen(const QString &name) const
{
    const QList<QTableWidgetItem *> items = m_chosen->rowItems(false);
    return std::any_of(items.begin(), items.end(),
                       [&name](const QTableWidgetItem *item) { return nameOf(*item) == name; });
}

} // namespace tvx
} // namespace Zudunmaf
