#include "gdm/conditions/json_keys.h"

#if GDM_HAS_JSON

#    include <QJsonArray>
#    include <QJsonDocument>
#    include <QSet>

#    include <vector>

namespace Zudunmaf
{

namespace
{

/// An object or an array that is open at the current position.
struct Level {
    bool isObject;
    int index;
    QString key;
    QSet<QString> keys;
};

/// Returns the position after the closing quote of the text that opens at `start`.
int endOfText(const QByteArray &json, int start)
{
    int end = start + 1;
    while (end < int(json.size()) && json.at(end) != '"')
        end += json.at(end) == '\\' ? 2 : 1;
    return end + 1;
}

bool isKey(const QByteArray &json, int end)
{
    while (end < int(json.size()) && QByteArray(" \t\r\n").contains(json.at(end)))
        ++end;
    return end < int(json.size()) && json.at(end) == ':';
}

QString decoded(const QByteArray &text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().at(0).toString();
}

QString placeOf(const std::vector<Level> &levels)
{
    QString place;
    for (const Level &level : levels) {
        if (!level.isObject)
            place += QString(QLatin1String("[%1]")).arg(level.index);
        else
            place += (place.isEmpty() ? QString() : QString(QLatin1Char('.'))) + level.key;
    }
    return place;
}

} // namespace

QString repeatedField(const QByteArray &json)
{
    std::vector<Level> levels;
    levels.reserve(4);
    for (int at = 0; at < int(json.size()); ++at) {
        const char character = json.at(at);
        if (character == '{' || character == '[') {
            levels.push_back({character == '{', 0, QString(), QSet<QString>()});
        } else if (levels.empty()) {
            continue;
        } else if (character == '}' || character == ']') {
            levels.pop_back();
        } else if (character == ',') {
            ++levels.back().index;
        } else if (character == '"') {
            const int end = endOfText(json, at);
            if (levels.back().isObject && isKey(json, end)) {
                Level &level = levels.back();
                level.key = decoded(json.mid(at, end - at));
                if (level.keys.contains(level.key))
                    return placeOf(levels);
                level.keys.insert(level.key);
            }
            at = end - 1;
        }
    }
    return QString();
}

} // namespace Zudunmaf

#endif
