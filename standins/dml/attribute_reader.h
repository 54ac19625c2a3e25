#ifndef DML_ATTRIBUTE_READER_H
#define DML_ATTRIBUTE_READER_H

#include "dml/refusal.h"
#include "gdm/items/attr_records.h"

#include <QJsonObject>
#include <QStringList>

namespace Zudunmaf::dml
{

class TextPool;

/// Converts one attribute of a dictionary file to its definition. Call read() once.
class AttributeReader
{
public:
    /// Stores the texts of the definition in `texts`, which must outlive it.
    AttributeReader(const QJsonObject &object, const Place &place, TextPool &texts, Refusal &refusal);

    /// Returns the definition; undefined if the attribute was refused.
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
    void setOptions(const QStringList &texts);

    QJsonValue value(const char *key) const { return m_object.value(QLatin1String(key)); }
    QStringList textList(const char *key);
    /// Refuses limits in descending order and a default outside of them.
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
