#ifndef TESTS_SUPPORT_JSON_TABLE_H
#define TESTS_SUPPORT_JSON_TABLE_H

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

/// The table in a JSON file next to the test. Ends the program if there is none.
inline QJsonObject jsonTable(const char *name)
{
    QFile file(QStringLiteral(ZUDUNMAF_TEST_TABLES "/") + QLatin1String(name));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QJsonDocument document = QJsonDocument::fromJson(isOpen ? file.readAll() : QByteArray());
    if (document.isNull())
        qFatal("%s is no table", name);
    return document.object();
}

inline QStringList textsOf(const QJsonValue &list)
{
    return list.toVariant().toStringList();
}

#endif
