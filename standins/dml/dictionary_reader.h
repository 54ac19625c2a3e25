#ifndef DML_DICTIONARY_READER_H
#define DML_DICTIONARY_READER_H

#include "dml/dictionary.h"
#include "dml/refusal.h"

#include <QJsonObject>

#include <memory>
#include <vector>

class QByteArray;

namespace Zudunmaf::dml
{

/// Reads a whole dictionary file. AttributeReader reads each attribute.
class DictionaryReader
{
public:
    /// `refusal` receives the first error of the file. It must outlive the reader.
    explicit DictionaryReader(Refusal &refusal);

    /// Returns the dictionaries in the order of the file; undefined if the file was refused.
    std::vector<std::unique_ptr<Dictionary>> read(const QByteArray &json);

private:
    QJsonObject parse(const QByteArray &json);
    std::unique_ptr<Dictionary> readDictionary(const QJsonValue &value, Place place);
    void readAttributes(const QJsonArray &attributes, Place place, Dictionary &dictionary);
    /// Returns the value as an object. Refuses any other type.
    QJsonObject objectAt(const QJsonValue &value, const Place &place);

    Refusal &m_refusal;
};

} // namespace Zudunmaf::dml

#endif
