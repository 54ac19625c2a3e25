#include "dml/dictionary_reader.h"

#include "dml/attribute_reader.h"
#include "dml/field_rules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>

namespace Zudunmaf::dml
{

namespace
{

/// Only attributes have several types.
constexpr int OnlyType = 0;

const std::vector<FieldRule> &fileRules()
{
    static const std::vector<FieldRule> rules = {
        {"$schema", FieldKind::Text, FieldRule::Optional},
        {"dictionaries", FieldKind::List, FieldRule::Required, FieldRule::AllTypes, 1},
    };
    return rules;
}

const std::vector<FieldRule> &dictionaryRules()
{
    static const std::vector<FieldRule> rules = {
        {"id", FieldKind::Identifier, FieldRule::Required},
        {"title", FieldKind::Text, FieldRule::Optional},
        {"attributes", FieldKind::List, FieldRule::Required},
    };
    return rules;
}

/// Returns the line and column of the error. The parser's offset is one past the invalid character, except for characters
/// after the end of the document.
QString describePosition(const QByteArray &json, const QJsonParseError &error)
{
    const int back = error.error == QJsonParseError::GarbageAtEnd ? 0 : 1;
    const QByteArray before = json.left(std::max(0, error.offset - back));
    const int column = int(QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size()) + 1;
    return QStringLiteral("line %1, column %2").arg(before.count('\n') + 1).arg(column);
}

} // namespace

DictionaryReader::DictionaryReader(Refusal &refusal)
    : m_refusal(refusal)
{
}

std::vector<std::unique_ptr<Dictionary>> DictionaryReader::read(const QByteArray &json)
{
    std::vector<std::unique_ptr<Dictionary>> dictionaries;
    const QJsonObject root = parse(json);
    if (m_refusal.isSet() || !checkFields(root, fileRules(), OnlyType, {}, m_refusal))
        return dictionaries;

    const QJsonArray list = root.value(QLatin1String("dictionaries")).toArray();
    QSet<int> ids;
    Place place;
    while (place.dictionary < list.size() && !m_refusal.isSet()) {
        const QJsonValue value = list.at(place.dictionary++);
        dictionaries.push_back(readDictionary(value, place));
        const int id = dictionaries.back()->id();
        if (ids.contains(id))
            m_refusal.refuse(place.at("id"), QStringLiteral("an identifier of its own in the file"),
                             describe(id));
        ids.insert(id);
    }
    return dictionaries;
}

QJsonObject DictionaryReader::parse(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        m_refusal.refuse(describePosition(json, error), QStringLiteral("JSON"), error.errorString());
    else if (!document.isObject())
        m_refusal.refuse({}, QStringLiteral("an object"), QStringLiteral("a list"));
    return document.object();
}

std::unique_ptr<Dictionary> DictionaryReader::readDictionary(const QJsonValue &value, Place place)
{
    const QJsonObject object = objectAt(value, place);
    const bool isFitting = checkFields(object, dictionaryRules(), OnlyType, place, m_refusal);
    auto dictionary = std::make_unique<Dictionary>(object.value(QLatin1String("id")).toInt(),
                                                   object.value(QLatin1String("title")).toString());
    if (isFitting)
        readAttributes(object.value(QLatin1String("attributes")).toArray(), place, *dictionary);
    return dictionary;
}

void DictionaryReader::readAttributes(const QJsonArray &attributes, Place place, Dictionary &dictionary)
{
    QSet<QString> names;
    while (place.attribute < attributes.size() && !m_refusal.isSet()) {
        const QJsonValue value = attributes.at(place.attribute++);
        place.name.clear();
        const QJsonObject object = objectAt(value, place);
        place.name = object.value(QLatin1String("name")).toString();
        dictionary.append(AttributeReader(object, place, dictionary.texts(), m_refusal).read());
        if (names.contains(place.name))
            m_refusal.refuse(place.at("name"), QStringLiteral("a name of its own in the dictionary"),
                             describe(place.name));
        names.insert(place.name);
    }
}

QJsonObject DictionaryReader::objectAt(const QJsonValue &value, const Place &place)
{
    if (!value.isObject())
        m_refusal.refuse(place.at(), QStringLiteral("an object"), describe(value));
    return value.toObject();
}

} // namespace Zudunmaf::dml
