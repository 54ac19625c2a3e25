#include "tvx/chosen_counts.h"

#include "tvx/attribute_item.h"
#include "tvx/attribute_table.h"
#include "tvx/row_sorter.h"

namespace Zudunmaf
{
namespace tvx
{

ChosenCounts::ChosenCounts(AttributeTable *chosen)
    : QObject(chosen)
    , m_chosen(chosen)
{
    connect(chosen->model(), &QAbstractItemModel::rowsInserted, this, &ChosenCounts::invalidate);
    connect(chosen->model(), &QAbstractItemModel::rowsRemoved, this, &ChosenCounts::invalidate);
}

int ChosenCounts::countOf(const QString &name)
{
    if (!m_isCounted) {
        m_counts.clear();
        const QList<QTableWidgetItem *> items = m_chosen->rowItems(false);
        for (const QTableWidgetItem *item : items)
            ++m_counts[nameOf(*item)];
        m_isCounted = true;
    }
    return m_counts.value(name);
}

QHash<QString, QTableWidgetItem *> newestUnsetConditions(const AttributeTable &chosen)
{
    QHash<QString, QTableWidgetItem *> unset;
    const QVector<int> rows = chosen.sorter()->orderOfArrival();
    for (int row : rows) {
        QTableWidgetItem *item = chosen.rowItem(row);
        if (isCondition(*item) && !item->data(DmlAttrValueRole).isValid())
            unset.insert(nameOf(*item), item);
        else
            unset.remove(nameOf(*item));
    }
    return unset;
}

} // namespace tvx
} // namespace Zudunmaf
