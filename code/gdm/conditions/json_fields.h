#ifndef GDM_CONDITIONS_JSON_FIELDS_H
#define GDM_CONDITIONS_JSON_FIELDS_H

#include "gdm/host/qt_compat.h"

#if GDM_HAS_JSON

#    include "gdm/conditions/attr_documents.h"

#    include <QJsonObject>
#    include <QSet>

namespace Zudunmaf
{

/// Returns the number as a JSON value, without a loss of bits.
QJsonValue jsonOfNumber(double number);

/// Returns the name of a known type, or the number of an unknown one.
QJsonValue jsonOfType(int type);

/// Reads the fields of one JSON object one by one, and keeps the first error. Internal: not installed.
class JsonFields
{
public:
    /// `place` is the position of the object in the document.
    JsonFields(const QJsonObject &object, const QString &place);

    QString text(const char *name);
    bool flag(const char *name);
    double number(const char *name);
    /// Returns a whole number of 32 bits.
    int integer(const char *name);
    int type(const char *name);
    /// Returns any value; undefined, and an error, if there is none.
    QJsonValue any(const char *name);

    void refuse(const QString &name, const QString &reason);
    void refuse(const char *name, const QString &reason) { refuse(QString(QLatin1String(name)), reason); }
    bool has(const char *name) const { return m_object.contains(QLatin1String(name)); }

    /// Refuses fields that were not read. Returns true if there is no error, and sets `*problem` otherwise.
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
