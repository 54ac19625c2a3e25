#include "dml/refusal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace Zudunmaf::dml
{

QString Place::at(const char *field) const
{
    QStringList parts;
    if (dictionary > 0)
        parts.append(QStringLiteral("dictionary #") + QString::number(dictionary));
    if (attribute > 0)
        parts.append(QStringLiteral("attribute #") + QString::number(attribute));
    if (attribute > 0 && !name.isEmpty())
        parts.last() += QLatin1Char(' ') + describe(name);
    if (field)
        parts.append(QStringLiteral("field \"") + QLatin1String(field) + QLatin1Char('"'));
    return parts.join(QStringLiteral(", "));
}

QString describe(const QJsonValue &value)
{
    constexpr int Longest = 70;
    if (value.isUndefined())
        return QStringLiteral("nothing");
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    QString text = QString::fromUtf8(json);
    text = text.mid(1, text.size() - 2);
    return text.size() > Longest ? text.left(Longest) + QStringLiteral("...") : text;
}

Refusal::Refusal(const QString &source)
    : m_source(source)
{
}

void Refusal::refuse(const QString &place, const QString &expected, const QString &found)
{
    if (isSet())
        return;
    m_message = m_source + QStringLiteral(": ");
    if (!place.isEmpty())
        m_message += place + QStringLiteral(": ");
    m_message += QStringLiteral("expected ") + expected + QStringLiteral(", found ") + found;
}

} // namespace Zudunmaf::dml
