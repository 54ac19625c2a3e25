#include "gdm/items/attr_description.h"

#include "gdm/host/host_text.h"
#include "gdm/host/message_keys.h"
#include "gdm/items/attr_access.h"

#include <QStringList>

namespace Zudunmaf
{

namespace
{

/// Returns a line with the text, or with the message of `absentKey` if the text is null. Two statements, because the
/// order of the calls of gen__nls_nlst() is part of the contract.
QString lineWithDefault(const char *lineKey, const char *text, const char *absentKey)
{
    const QString line = messageText(lineKey);
    const QString argument = text ? QString(text) : messageText(absentKey);
    return line.arg(argument);
}

void describeInteger(const DmlAttrDef &definition, QStringList *lines)
{
    *lines << messageText(keys::TipInteger);
    *lines << messageText(keys::TipIntegerDefault).arg(int(definition.defaultInt));
    *lines << messageText(keys::TipIntegerRange).arg(int(definition.intMin)).arg(int(definition.intMax));
}

void describeFloat(const DmlAttrDef &definition, int displayUnits, QStringList *lines)
{
    *lines << messageText(keys::TipFloat);
    *lines << messageText(keys::TipFloatDefault).arg(double(definition.defaultFloat), 0, 'g', -1);

    float low = static_cast<float>(definition.floatMin);
    float high = static_cast<float>(definition.floatMax);
    gen__torvex_units_convert_2(&low, definition.unitsClass, displayUnits);
    gen__torvex_units_convert_2(&high, definition.unitsClass, displayUnits);
    *lines << messageText(keys::TipFloatRange).arg(double(low), 0, 'g', -1).arg(double(high), 0, 'g', -1);

    const QString line = messageText(keys::TipFloatUnits);
    *lines << line.arg(QString(gen__torvex_cur_units_str(definition.unitsClass, displayUnits)));
}

} // namespace

QString attributeDescription(const DmlAttrDef &definition, int displayUnits)
{
    QStringList lines;
    lines << messageText(keys::TipInternalName).arg(fieldString(definition.name));
    lines << messageText(keys::TipDisplayName).arg(fieldString(definition.prompt));
    lines << messageText(keys::TipGroup).arg(fieldString(definition.group));

    switch (definition.type) {
    case DmlAttrBoolean:
        lines << messageText(keys::TipBoolean);
        break;
    case DmlAttrText:
        lines << messageText(keys::TipText);
        lines << lineWithDefault(keys::TipTextDefault, definition.defaultText, keys::TipTextNoDefault);
        break;
    case DmlAttrOption:
        lines << messageText(keys::TipOption);
        lines << lineWithDefault(keys::TipOptionDefault, optionEntry(definition, definition.defaultOption),
                                 keys::TipOptionNoDefault);
        break;
    case DmlAttrInteger:
        describeInteger(definition, &lines);
        break;
    case DmlAttrFloat:
        describeFloat(definition, displayUnits, &lines);
        break;
    default:
        break;
    }
    return lines.join(QLatin1String("\n"));
}

} // namespace Zudunmaf
