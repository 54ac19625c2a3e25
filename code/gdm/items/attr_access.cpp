#include "gdm/items/attr_access.h"

#include "gdm/host/host_text.h"
#include "gdm/items/attr_roles.h"

#include <cstring>

namespace Zudunmaf
{

QVariant definitionData(const QVariant &dmlAttribute, int role)
{
    const DmlAttrDef *definition = definitionIn(dmlAttribute);
    switch (role) {
    case DmlAttrNameRole:
        return fieldString(definition->name);
    case DmlAttrPromptRole:
        return fieldString(definition->prompt);
    case DmlAttrTypeRole:
        return int(definition->type);
    case DmlAttrDefRole:
        return dmlAttribute;
    default:
        return QVariant();
    }
}

QString labelText(const DmlAttrDef &definition, bool byPrompt)
{
    return byPrompt ? fieldString(definition.prompt) : fieldString(definition.name);
}

void prime(DmlAttrValue &condition, const DmlAttrDef &definition)
{
    std::memset(&condition, 0, sizeof condition);
    condition.type = definition.type;
    switch (definition.type) {
    case DmlAttrOption:
        condition.option = -1;
        break;
    case DmlAttrInteger:
        condition.intLow = definition.intMin;
        condition.intHigh = definition.intMax;
        break;
    case DmlAttrFloat:
        condition.floatLow = definition.floatMin;
        condition.floatHigh = definition.floatMax;
        break;
    default:
        break;
    }
}

const char *optionEntry(const DmlAttrDef &definition, int index)
{
    const bool isEntry = definition.optionList && index >= 0 && index < definition.optionCount;
    return isEntry ? definition.optionList[index] : nullptr;
}

QVariant defaultValue(const DmlAttrDef &definition)
{
    switch (definition.type) {
    case DmlAttrBoolean:
        return QVariant(definition.defaultBool != 0);
    case DmlAttrText:
        return QVariant(QString(definition.defaultText));
    case DmlAttrOption: {
        const char *entry = optionEntry(definition, definition.defaultOption);
        return QVariant(QString(entry ? entry : ""));
    }
    case DmlAttrInteger:
        return QVariant(int(definition.defaultInt));
    case DmlAttrFloat:
        return QVariant(double(definition.defaultFloat));
    default:
        return QVariant();
    }
}

} // namespace Zudunmaf
