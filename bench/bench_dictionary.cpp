#include "bench_dictionary.h"

#include "dml/dml_control.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Zudunmaf::bench
{

namespace
{

QString attributeName(int index)
{
    static const char *const things[] = {"pad",    "via",   "track", "drill", "mask",
                                         "legend", "plane", "panel", "net",   "slot"};
    static const char *const traits[] = {"width", "height", "finish", "offset", "class", "grade", "length"};
    return QStringLiteral("%1_%2_%3")
        .arg(QLatin1String(things[index % 10]), QLatin1String(traits[index / 10 % 7]))
        .arg(index * 7919LL % 1000003, 6, 10, QLatin1Char('0')); // neighbours differ in every digit
}

QJsonObject attribute(int index)
{
    QJsonObject object{
        {QStringLiteral("name"), attributeName(index)},
        {QStringLiteral("prompt"), attributeName(index).replace(QLatin1Char('_'), QLatin1Char(' '))},
        {QStringLiteral("group"), QStringLiteral("group %1").arg(index % 40)},
        {QStringLiteral("entities"), QJsonArray{QStringLiteral("layer"), QStringLiteral("feature")}}};
    const QString type = QStringLiteral("type");
    switch (index % 5) {
    case 0:
        object[type] = QStringLiteral("boolean");
        object[QStringLiteral("default")] = false;
        break;
    case 1:
        object[type] = QStringLiteral("text");
        break;
    case 2:
        object[type] = QStringLiteral("option");
        object[QStringLiteral("options")] = QJsonArray{QStringLiteral("plain"), QStringLiteral("plated")};
        break;
    case 3:
        object[type] = QStringLiteral("integer");
        object[QStringLiteral("min")] = 0;
        object[QStringLiteral("max")] = 1000;
        object[QStringLiteral("default")] = 5;
        break;
    default:
        object[type] = QStringLiteral("float");
        object[QStringLiteral("min")] = 0;
        object[QStringLiteral("max")] = 10;
        object[QStringLiteral("default")] = 1.5;
        object[QStringLiteral("units")] = QStringLiteral("mm");
        break;
    }
    return object;
}

} // namespace

QStringList attributeNames(int count)
{
    QStringList names;
    names.reserve(count);
    for (int index = 0; index < count; ++index)
        names << attributeName(index);
    return names;
}

void loadDictionary(int count)
{
    if (dml::attributeCount(count) == count)
        return;
    QJsonArray attributes;
    for (int index = 0; index < count; ++index)
        attributes.append(attribute(index));
    const QJsonObject dictionary{{QStringLiteral("id"), count},
                                 {QStringLiteral("title"), QStringLiteral("bench")},
                                 {QStringLiteral("attributes"), attributes}};
    const QJsonObject file{{QStringLiteral("dictionaries"), QJsonArray{dictionary}}};
    QString error;
    if (!dml::loadJson(QJsonDocument(file).toJson(QJsonDocument::Compact), QStringLiteral("bench"), &error))
        qFatal("%s", qPrintable(error));
}

} // namespace Zudunmaf::bench
