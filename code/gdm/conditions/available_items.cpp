#include "gdm/conditions/available_items.h"

#include "gdm/conditions/condition_record.h"
#include "gdm/host/dictionary_walk.h"
#include "gdm/host/host_text.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_roles.h"
#include "gdm/items/dml_attr_lwi.h"

namespace Zudunmaf
{

AvailableItems::AvailableItems(const RestoreTarget &target)
    : m_did(target.did)
    , m_isDictionaryRead(false)
    , m_hasDictionary(false)
{
    for (const QTableWidgetItem *item : target.available) {
        const DmlAttrLWI *attribute = dynamic_cast<const DmlAttrLWI *>(item);
        const DmlAttrDef *definition = attribute ? definitionIn(attribute->dmlAttribute()) : nullptr;
        if (!definition)
            continue;
        const QString name = fieldString(definition->name);
        if (!m_items.contains(name))
            m_items.insert(name, attribute);
    }
}

RestoreResult AvailableItems::absence(const QString &name)
{
    if (!m_isDictionaryRead)
        readDictionary();
    if (!m_hasDictionary)
        return refusal(RestoreNoDictionary, "'%1' is not available, and the dictionary cannot be read", name);
    if (m_dictionaryNames.contains(name))
        return refusal(RestoreNotAvailable, "the attribute '%1' is not available in this dialog", name);
    return refusal(RestoreNoSuchAttribute, "there is no attribute '%1' in the dictionary", name);
}

void AvailableItems::readDictionary()
{
    m_isDictionaryRead = true;
    if (m_did < 0)
        return;
    const int did = m_did;
    QSet<QString> names;
    m_hasDictionary = walkDictionary(
        [did] { return did; }, EntityAll, GDM_HERE,
        [&names](const DmlAttrDef *definition) { names.insert(fieldString(definition->name)); });
    m_dictionaryNames = names;
}

} // namespace Zudunmaf
