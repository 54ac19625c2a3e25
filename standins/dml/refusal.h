#ifndef DML_REFUSAL_H
#define DML_REFUSAL_H

#include <QJsonValue>
#include <QString>

namespace Zudunmaf::dml
{

/// A position in a dictionary file. Entries count from 1; 0 if the position is not inside an entry of that level.
struct Place {
    int dictionary = 0;
    int attribute = 0;
    QString name; ///< Name of the attribute; empty if it has none.

    /// Returns the position for a message, with the field's name.
    QString at(const char *field = nullptr) const;
};

/// Returns the value as JSON, shortened if it is long; "nothing" for an undefined value.
QString describe(const QJsonValue &value);

/// Keeps the first error of a dictionary file. Later errors are usually consequences of it.
class Refusal
{
public:
    /// `source` is the file's name in the message.
    explicit Refusal(const QString &source);

    /// `place` is empty for the whole file.
    void refuse(const QString &place, const QString &expected, const QString &found);

    bool isSet() const { return !m_message.isEmpty(); }
    QString message() const { return m_message; }

private:
    QString m_source;
    QString m_message;
};

} // namespace Zudunmaf::dml

#endif
