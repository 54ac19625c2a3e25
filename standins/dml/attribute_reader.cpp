#include "dml/attribute_reader.h"

#include "dml/field_rules.h"
#include "dml/text_pool.h"
#include "gdm/host/gen_services.h"
#include "gdm/items/attr_roles.h"
#include "gen/gen_control.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <cstring>

namespace Zudunmaf::dml
{

namespace
{

constexpr unsigned Boolean = typeBit(DmlAttrBoolean);
constexpr unsigned Text = typeBit(DmlAttrText);
constexpr unsigned Option = typeBit(DmlAttrOption);
constexpr unsigned Integer = typeBit(DmlAttrInteger);
constexpr unsigned Float = typeBit(DmlAttrFloat);

const std::vector<FieldRule> &attributeRules()
{
    using Kind = FieldKind;
    static const std::vector<FieldRule> rules = {
        {"name", Kind::Text, FieldRule::Required, FieldRule::AllTypes, 1, sizeof(DmlAttrDef::name) - 1},
        {"prompt", Kind::Text, FieldRule::Optional, FieldRule::AllTypes, 0, sizeof(DmlAttrDef::prompt) - 1},
        {"group", Kind::Text, FieldRule::Optional, FieldRule::AllTypes, 0, sizeof(DmlAttrDef::group) - 1},
        {"type", Kind::Text, FieldRule::Required},
        {"entities", Kind::ListOrAll, FieldRule::Required},
        {"default", Kind::Flag, FieldRule::Required, Boolean},
        {"default", Kind::TextOrNull, FieldRule::Optional, Text | Option},
        {"default", Kind::WholeNumber, FieldRule::Required, Integer},
        {"default", Kind::Number, FieldRule::Required, Float},
        {"min", Kind::WholeNumber, FieldRule::Required, Integer},
        {"max", Kind::WholeNumber, FieldRule::Required, Integer},
        {"min", Kind::Number, FieldRule::Required, Float},
        {"max", Kind::Number, FieldRule::Required, Float},
        {"units", Kind::TextOrNull, FieldRule::Optional, Float},
        {"options", Kind::List, FieldRule::Required, Option, 1},
        {"choices", Kind::List, FieldRule::Optional, Text, 1},
    };
    return rules;
}

/// A keyword of the format and its code.
struct Word {
    const char *text;
    unsigned code;
};

constexpr Word TypeWords[] = {
    {"boolean", DmlAttrBoolean}, {"text", DmlAttrText},   {"option", DmlAttrOption},
    {"integer", DmlAttrInteger}, {"float", DmlAttrFloat},
};

constexpr Word EntityWords[] = {
    {"job", EntityJob},     {"step", EntityStep}, {"symbol", EntitySymbol},       {"layer", EntityLayer},
    {"wheel", EntityWheel}, {"net", EntityNet},   {"component", EntityComponent}, {"feature", EntityFeature},
};

/// Returns null if the value is not one of the words.
template <size_t Length>
const Word *findWord(const Word (&words)[Length], const QJsonValue &value)
{
    const QString text = value.toString();
    const auto found = std::find_if(std::begin(words), std::end(words),
                                    [&](const Word &word) { return text == QLatin1String(word.text); });
    return found == std::end(words) ? nullptr : found;
}

template <size_t Length>
QString joinWords(const Word (&words)[Length])
{
    QStringList texts;
    texts.reserve(int(Length));
    for (const Word &word : words)
        texts.append(QLatin1String(word.text));
    return texts.join(QStringLiteral(", "));
}

QString joinKnownUnits()
{
    const QVector<gen::UnitInfo> units = gen::units();
    QStringList texts;
    texts.reserve(units.size());
    for (const gen::UnitInfo &unit : units)
        texts.append(unit.text);
    return texts.join(QStringLiteral(", "));
}

/// The field rules have checked that `text` fits. The field is zero before the call.
template <size_t Length>
void copyInto(char (&field)[Length], const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::memcpy(field, bytes.constData(), std::min(size_t(bytes.size()), Length - 1));
}

} // namespace

AttributeReader::AttributeReader(const QJsonObject &object, const Place &place, TextPool &texts,
                                 Refusal &refusal)
    : m_object(object)
    , m_place(place)
    , m_texts(texts)
    , m_refusal(refusal)
{
    // An initialiser would set only the first member of each union.
    std::memset(&m_definition, 0, sizeof m_definition);
    m_definition.unitsClass = -1;
}

DmlAttrDef AttributeReader::read()
{
    if (readType() && checkFields(m_object, attributeRules(), m_definition.type, m_place, m_refusal)) {
        readHead();
        readEntities();
        readByType();
    }
    return m_definition;
}

bool AttributeReader::readType()
{
    const Word *word = findWord(TypeWords, value("type"));
    if (word)
        m_definition.type = int(word->code);
    else
        refuse("type", QStringLiteral("one of ") + joinWords(TypeWords), value("type"));
    return word;
}

void AttributeReader::readHead()
{
    const QString name = value("name").toString();
    copyInto(m_definition.name, name);
    copyInto(m_definition.prompt, value("prompt").toString(name));
    copyInto(m_definition.group, value("group").toString());
}

void AttributeReader::readEntities()
{
    if (value("entities").isString())
        m_definition.entityMask = EntityAll;
    const QJsonArray list = value("entities").toArray();
    for (int i = 0; i < list.size(); ++i) {
        const Word *word = findWord(EntityWords, list.at(i));
        if (!word || (m_definition.entityMask & word->code))
            return refuse("entities", QStringLiteral("each once, of ") + joinWords(EntityWords), list.at(i));
        m_definition.entityMask |= word->code;
    }
}

void AttributeReader::readByType()
{
    switch (m_definition.type) {
    case DmlAttrBoolean:
        m_definition.defaultBool = value("default").toBool();
        break;
    case DmlAttrText:
        readText();
        break;
    case DmlAttrOption:
        readOption();
        break;
    case DmlAttrInteger:
        readInteger();
        break;
    case DmlAttrFloat:
        readFloat();
        break;
    }
}

void AttributeReader::readText()
{
    if (value("default").isString())
        m_definition.defaultText = m_texts.keep(value("default").toString());
    setOptions(textList("choices"));
    m_definition.textChoiceCount = m_definition.optionCount;
}

void AttributeReader::readOption()
{
    const QStringList options = textList("options");
    setOptions(options);
    m_definition.defaultOption = -1;
    if (!value("default").isString())
        return;
    m_definition.defaultOption = int(options.indexOf(value("default").toString()));
    if (m_definition.defaultOption < 0)
        refuse("default", QStringLiteral("one of the options, or null"), value("default"));
}

void AttributeReader::readInteger()
{
    m_definition.intMin = value("min").toInt();
    m_definition.intMax = value("max").toInt();
    m_definition.defaultInt = value("default").toInt();
    checkRange();
}

void AttributeReader::readFloat()
{
    m_definition.floatMin = value("min").toDouble();
    m_definition.floatMax = value("max").toDouble();
    m_definition.defaultFloat = float(value("default").toDouble());
    checkRange();
    readUnits();
}

void AttributeReader::readUnits()
{
    if (!value("units").isString())
        return;
    const QByteArray units = value("units").toString().toUtf8();
    const int code = gen__torvex_get_str_units(units.constData());
    m_definition.unitsClass = code;
    // Rejects the other spellings that users may type: a file must not depend on the local encoding.
    if (code == -1 || units != gen__torvex_cur_units_str(code, code))
        refuse("units", QStringLiteral("null or one of ") + joinKnownUnits(), value("units"));
}

void AttributeReader::setOptions(const QStringList &texts)
{
    if (texts.isEmpty())
        return;
    m_definition.optionList = m_texts.keep(texts);
    m_definition.optionCount = int(texts.size());
}

QStringList AttributeReader::textList(const char *key)
{
    const QJsonArray list = value(key).toArray();
    QStringList texts;
    QSet<QString> seen;
    for (int i = 0; i < list.size(); ++i) {
        const QString text = list.at(i).toString();
        if (!isPlainText(list.at(i)) || seen.contains(text)) {
            refuse(key, QStringLiteral("texts without NUL, each once"), list.at(i));
            return {};
        }
        seen.insert(text);
        texts.append(text);
    }
    return texts;
}

void AttributeReader::checkRange()
{
    // Compares in double precision: rounding to float could move a default beyond its limit.
    const double low = value("min").toDouble();
    const double high = value("max").toDouble();
    const double preset = value("default").toDouble();
    if (low > high)
        refuse("max", QStringLiteral("a number not below \"min\", which is ") + describe(low), high);
    if (preset < low || preset > high) {
        refuse("default", QStringLiteral("a number from %1 to %2").arg(describe(low), describe(high)),
               preset);
    }
}

void AttributeReader::refuse(const char *key, const QString &expected, const QJsonValue &found)
{
    m_refusal.refuse(m_place.at(key), expected, describe(found));
}

} // namespace Zudunmaf::dml
