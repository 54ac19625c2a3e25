#include "gdm/conditions/attr_documents.h"

#include "gdm/host/qt_compat.h"

#if GDM_HAS_JSON

#    include "gdm/conditions/json_entries.h"
#    include "gdm/conditions/json_keys.h"

#    include <QJsonArray>
#    include <QJsonDocument>

namespace Zudunmaf
{

namespace
{

const char Version[] = "version";
const char Conditions[] = "conditions";
const char Assignments[] = "assignments";

/// The version of the documents. No other version is read.
const int CurrentVersion = 1;

template <class Entry>
QByteArray toJson(const char *listName, const QList<Entry> &entries, QJsonObject (*jsonOf)(const Entry &))
{
    QJsonArray list;
    for (const Entry &entry : entries)
        list.append(jsonOf(entry));
    QJsonObject document;
    document.insert(QLatin1String(Version), CurrentVersion);
    document.insert(QLatin1String(listName), list);
    return QJsonDocument(document).toJson();
}

/// Parses the JSON and reads the list of entries.
bool readList(const QByteArray &json, const char *listName, QJsonArray *list, DocumentProblem *problem)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        problem->reason =
            error.error == QJsonParseError::NoError
                ? QString(QLatin1String("is no JSON object"))
                : QString(QLatin1String("no JSON at byte %1: %2")).arg(error.offset).arg(error.errorString());
        return false;
    }
    problem->place = repeatedField(json);
    if (!problem->place.isNull()) {
        problem->reason = QLatin1String("is there twice");
        return false;
    }
    JsonFields fields(document.object(), QString());
    if (fields.integer(Version) != CurrentVersion)
        fields.refuse(Version, QString(QLatin1String("is not %1")).arg(CurrentVersion));
    if (!fields.any(listName).isArray())
        fields.refuse(listName, QLatin1String("is no list"));
    *list = fields.any(listName).toArray();
    return fields.finish(problem);
}

template <class Entry>
bool readEntries(const QByteArray &json, const char *listName, Entry (*entryIn)(JsonFields *),
                 QList<Entry> *entries, DocumentProblem *problem)
{
    QJsonArray list;
    if (!readList(json, listName, &list, problem))
        return false;
    QList<Entry> read;
    for (int i = 0; i < int(list.size()); ++i) {
        const QString place = QString(QLatin1String("%1[%2]")).arg(QLatin1String(listName)).arg(i);
        if (!list.at(i).isObject()) {
            problem->place = place;
            problem->reason = QLatin1String("is no object");
            return false;
        }
        JsonFields fields(list.at(i).toObject(), place);
        read.append(entryIn(&fields));
        if (!fields.finish(problem))
            return false;
    }
    *entries = read;
    return true;
}

/// Same as readEntries(), but `problem` can be null.
template <class Entry>
bool readDocument(const QByteArray &json, const char *listName, Entry (*entryIn)(JsonFields *),
                  QList<Entry> *entries, DocumentProblem *problem)
{
    DocumentProblem found;
    const bool isRead = readEntries(json, listName, entryIn, entries, &found);
    if (problem)
        *problem = found;
    return isRead;
}

} // namespace

QByteArray conditionsToJson(const QList<AttrCondition> &conditions)
{
    return toJson(Conditions, conditions, jsonOfCondition);
}

bool conditionsFromJson(const QByteArray &json, QList<AttrCondition> *conditions, DocumentProblem *problem)
{
    return readDocument(json, Conditions, conditionIn, conditions, problem);
}

QByteArray assignmentsToJson(const QList<AttrAssignment> &assignments)
{
    return toJson(Assignments, assignments, jsonOfAssignment);
}

bool assignmentsFromJson(const QByteArray &json, QList<AttrAssignment> *assignments, DocumentProblem *problem)
{
    return readDocument(json, Assignments, assignmentIn, assignments, problem);
}

} // namespace Zudunmaf

#endif
