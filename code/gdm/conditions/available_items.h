#ifndef GDM_CONDITIONS_AVAILABLE_ITEMS_H
#define GDM_CONDITIONS_AVAILABLE_ITEMS_H

#include "gdm/conditions/restore_target.h"

#include <QHash>
#include <QSet>

namespace Zudunmaf
{

class DmlAttrLWI;

/// The attributes of a dialog's available table by name, and the names of the whole dictionary. Internal: not
/// installed.
class AvailableItems
{
public:
    explicit AvailableItems(const RestoreTarget &target);

    /// Returns the item of the attribute; null if the table has none. The item has a definition.
    const DmlAttrLWI *find(const QString &name) const { return m_items.value(name, nullptr); }
    /// Returns the outcome for an attribute that find() does not find. Walks the dictionary at the first call.
    RestoreResult absence(const QString &name);

private:
    void readDictionary();

    int m_did;
    QHash<QString, const DmlAttrLWI *> m_items;
    bool m_isDictionaryRead;
    bool m_hasDictionary;
    QSet<QString> m_dictionaryNames;
};

} // namespace Zudunmaf

#endif
