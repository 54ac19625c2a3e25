#ifndef DML_ATTRIBUTE_READER_H
#define DML_ATTRIBUTE_READER_H

#include "dml/refusal.h"
#include "gdm/items/attr_records.h"

#include <QJsonObject>
#include <QStringList>

namespace Zudunmaf::dml
{

class TextPool;

/// Turns one attribute of a dictionary file into its definition. Good for one read().
class AttributeReader
{
public:
    /// The texts of the definition go into `texts`, which has to outlive it.
    AttributeReader(const QJsonObject &object, const Place &place, TextPool &texts, Refusal &refusal);

    /// The definition; it means nothing where the attribute was refused.
    DmlAttrDef read();

private:
    bool readType();
    void readHead();
    void readEntities();
    void readByType();
    void readText();
    void readOption();
    void readInteger();
    void readFloat();
    void readUnits();
    void offer(const QStringList &texts);

    QJsonValue value(const char *key) const { return m_object.value(QLatin1String(key)); }
    QStringList textList(const char *key);
    /// Refuses limits out of order and a default outside them.
    void checkRange();
    void refuse(const char *key, const QString &expected, const QJsonValue &found);

    QJsonObject m_object;
    Place m_place;
    TextPool &m_texts;
    Refusal &m_refusal;
    DmlAttrDef m_definition;
};

} // namespace Zudunmaf::dml

#endif
