#ifndef DML_REFUSAL_H
#define DML_REFUSAL_H

#include <QJsonValue>
#include <QString>

namespace Zudunmaf::dml
{

/// A place in a dictionary file. Entries are counted from 1; 0 means that the place lies above that level.
struct Place {
    int dictionary = 0;
    int attribute = 0;
    QString name; ///< Name of the attribute, as far as it has one.

    /// The place as a message names it, with the field there.
    QString at(const char *field = nullptr) const;
};

/// A value as the file spells it, cut where it is long; "nothing" for an undefined one.
QString describe(const QJsonValue &value);

/// Why a dictionary file is not taken. The first refusal counts: whatever is read behind it only follows from
/// it.
class Refusal
{
public:
    /// `source` names the file in the message.
    explicit Refusal(const QString &source);

    /// `place` is empty for the file as a whole.
    void refuse(const QString &place, const QString &expected, const QString &found);

    bool isSet() const { return !m_message.isEmpty(); }
    QString message() const { return m_message; }

private:
    QString m_source;
    QString m_message;
};

} // namespace Zudunmaf::dml

#endif
