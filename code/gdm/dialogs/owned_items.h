#ifndef GDM_DIALOGS_OWNED_ITEMS_H
#define GDM_DIALOGS_OWNED_ITEMS_H

#include <QList>
#include <QTableWidgetItem>

namespace Zudunmaf
{

/// Items on their way to the base dialog, which copies them: they end with this list. Internal: not
/// installed.
class OwnedItems
{
public:
    OwnedItems() = default;
    ~OwnedItems() { qDeleteAll(m_items); }
    OwnedItems(const OwnedItems &) = delete;
    OwnedItems &operator=(const OwnedItems &) = delete;

    void append(QTableWidgetItem *item) { m_items.append(item); }
    const QList<QTableWidgetItem *> &list() const { return m_items; }

private:
    QList<QTableWidgetItem *> m_items;
};

} // namespace Zudunmaf

#endif
