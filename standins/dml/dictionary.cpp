#include "dml/dictionary.h"

#include "gdm/items/attr_roles.h"

namespace Zudunmaf::dml
{

Dictionary::Dictionary(int id, const QString &title)
    : m_id(id)
    , m_title(title)
{
}

DmlAttrDef *Dictionary::next(unsigned int entityMask, int &cursor)
{
    while (cursor < count()) {
        DmlAttrDef &definition = m_definitions[size_t(cursor++)];
        if (entityMask == EntityAll || (definition.entityMask & entityMask))
            return &definition;
    }
    return nullptr;
}

} // namespace Zudunmaf::dml
