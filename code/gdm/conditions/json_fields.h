#ifndef GDM_CONDITIONS_JSON_FIELDS_H
#define GDM_CONDITIONS_JSON_FIELDS_H

#include "gdm/host/qt_compat.h"

#if GDM_HAS_JSON

#    include "gdm/conditions/attr_documents.h"

#    include <QJsonObject>
#    include <QSet>

namespace Zudunmaf
{

/// Returns a number as a JSON value that keeps its bits.
QJsonValue jsonOfNumber(double number);

/// Returns the name of a known type; an unknown one stays a number.
QJsonValue jsonOfType(int type);

/// Takes the fields of one JSON object one by one and keeps the first problem. Internal: not installed.
class JsonFields
{
public:
    /// `place` is that of the object.
    JsonFields(const QJsonObject &object, const QString &place);

    QString text(const char *name);
    bool flag(const char *name);
    double number(const char *name);
    /// A whole number of 32 bits.
    int integer(const char *name);
    int type(const char *name);
    /// Accepts any value; undefined and a problem if there is none.
    QJsonValue any(const char *name);

    void refuse(const QString &name, const QString &reason);
    void refuse(const char *name, const QString &reason) { refuse(QString(QLatin1String(name)), reason); }
    bool has(const char *name) const { return m_object.contains(QLatin1String(name)); }

    /// Refuses fields that were not asked for, and returns true if no problem was found.
    bool finish(DocumentProblem *problem);

private:
    QJsonObject m_object;
    QString m_place;
    QSet<QString> m_read;
    DocumentProblem m_problem;
};

} // namespace Zudunmaf

#endif

#endif
