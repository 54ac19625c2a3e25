#ifndef TVX_ROW_CACHE_H
#define TVX_ROW_CACHE_H

#include <QHash>
#include <QList>
#include <QString>

class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// Caches what each key in the filter would otherwise compute from all rows: the value items in row order, the item of
/// an attribute, and where the first visible row can be. Owned by the available table, which resets it whenever rows
/// come, go or move. Does not own the items.
class RowCache
{
public:
    /// Replaces the items. Any row may be visible.
    void reset(const QList<QTableWidgetItem *> &items);
    const QList<QTableWidgetItem *> &items() const { return m_items; }
    /// Returns the item of the attribute with this internal name, the first of several; null if there is none. The
    /// first call after reset() reads the names of all items.
    QTableWidgetItem *findByName(const QString &name);

    /// Must be called for each row that is shown.
    void rowShown(int row);
    /// Returns the first visible row; -1 if there is none.
    int firstVisibleRow(const AttributeTable &table);

private:
    QList<QTableWidgetItem *> m_items;
    QHash<QString, QTableWidgetItem *> m_itemOfName;
    bool m_areNamesKnown = false;
    /// All rows before this one are hidden.
    int m_firstVisibleBound = 0;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
