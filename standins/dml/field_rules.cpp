#include "dml/field_rules.h"

#include "dml/refusal.h"

#include <QJsonArray>
#include <QStringList>

#include <cmath>

namespace Zudunmaf::dml
{

namespace
{

constexpr int IntMin = std::numeric_limits<qint32>::min();
constexpr int IntMax = std::numeric_limits<qint32>::max();
constexpr int AnySize = std::numeric_limits<int>::max();

bool isSizeWithin(qint64 size, const FieldRule &rule)
{
    return size >= rule.minSize && size <= rule.maxSize;
}

bool isText(const QJsonValue &value, const FieldRule &rule)
{
    return isPlainText(value) && isSizeWithin(value.toString().toUtf8().size(), rule);
}

bool isWholeNumber(const QJsonValue &value, int lowest)
{
    const double number = value.toDouble();
    return value.isDouble() && number >= lowest && number <= IntMax && std::floor(number) == number;
}

bool isFitting(const QJsonValue &value, const FieldRule &rule)
{
    switch (rule.kind) {
    case FieldKind::Flag:
        return value.isBool();
    case FieldKind::Text:
        return isText(value, rule);
    case FieldKind::TextOrNull:
        return value.isNull() || isText(value, rule);
    case FieldKind::Identifier:
        return isWholeNumber(value, 0);
    case FieldKind::WholeNumber:
        return isWholeNumber(value, IntMin);
    case FieldKind::Number:
        return value.isDouble() && std::abs(value.toDouble()) <= std::numeric_limits<float>::max();
    case FieldKind::List:
        return value.isArray() && isSizeWithin(value.toArray().size(), rule);
    case FieldKind::ListOrAll:
        return value.isArray() || value.toString() == QLatin1String("all");
    }
    return false;
}

QString describeText(const FieldRule &rule)
{
    QString text = QStringLiteral("a text without NUL");
    if (rule.maxSize != AnySize)
        text += QStringLiteral(" of %1 to %2 bytes in UTF-8").arg(rule.minSize).arg(rule.maxSize);
    return text;
}

QString describeExpected(const FieldRule &rule)
{
    switch (rule.kind) {
    case FieldKind::Flag:
        return QStringLiteral("true or false");
    case FieldKind::Text:
        return describeText(rule);
    case FieldKind::TextOrNull:
        return describeText(rule) + QStringLiteral(", or null");
    case FieldKind::Identifier:
        return QStringLiteral("a whole number from 0 to %1").arg(IntMax);
    case FieldKind::WholeNumber:
        return QStringLiteral("a whole number from %1 to %2").arg(IntMin).arg(IntMax);
    case FieldKind::Number:
        return QStringLiteral("a number within single precision");
    case FieldKind::List:
        return rule.minSize > 0 ? QStringLiteral("a list with at least one entry") : QStringLiteral("a list");
    case FieldKind::ListOrAll:
        return QStringLiteral("a list or \"all\"");
    }
    return QString();
}

void refuseUnknownKey(const QJsonObject &object, const QStringList &known, const Place &place,
                      Refusal &refusal)
{
    for (const QString &key : object.keys()) {
        if (!known.contains(key)) {
            refusal.refuse(place.at(),
                           QStringLiteral("no other field than ") + known.join(QStringLiteral(", ")),
                           describe(key));
            return;
        }
    }
}

} // namespace

bool isPlainText(const QJsonValue &value)
{
    return value.isString() && !value.toString().contains(QChar(QChar::Null));
}

bool checkFields(const QJsonObject &object, const std::vector<FieldRule> &rules, int type, const Place &place,
                 Refusal &refusal)
{
    QStringList known;
    for (const FieldRule &rule : rules) {
        if (!(rule.types & typeBit(type)))
            continue;
        known.append(QLatin1String(rule.key));
        const QJsonValue value = object.value(QLatin1String(rule.key));
        const bool isLeftOut = value.isUndefined();
        if (isLeftOut ? rule.presence == FieldRule::Required : !isFitting(value, rule)) {
            refusal.refuse(place.at(rule.key), describeExpected(rule), describe(value));
            return false;
        }
    }
    refuseUnknownKey(object, known, place, refusal);
    return !refusal.isSet();
}

} // namespace Zudunmaf::dml
