#include "tvx/row_cache.h"

#include "gdm/items/attr_roles.h"
#include "tvx/attribute_table.h"

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

void RowCache::reset(const QList<QTableWidgetItem *> &items)
{
    m_items = items;
    m_itemOfName.clear();
    m_areNamesKnown = false;
    m_firstVisibleBound = 0;
}

QTableWidgetItem *RowCache::findByName(const QString &name)
{
    if (!m_areNamesKnown) {
        m_itemOfName.reserve(m_items.size());
        // In descending order, so that the first item of a name remains.
        for (auto item = m_items.crbegin(); item != m_items.crend(); ++item)
            m_itemOfName.insert((*item)->data(DmlAttrNameRole).toString(), *item);
        m_areNamesKnown = true;
    }
    return m_itemOfName.value(name);
}

void RowCache::rowShown(int row)
{
    m_firstVisibleBound = std::min(m_firstVisibleBound, row);
}

int RowCache::firstVisibleRow(const AttributeTable &table)
{
    const int row = table.nextVisibleRow(m_firstVisibleBound, 1);
    m_firstVisibleBound = row < 0 ? table.rowCount() : row;
    return row;
}

} // namespace tvx
} // namespace Zudunmaf
