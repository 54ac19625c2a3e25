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

/// Reads a dictionary file whole: the file, its dictionaries, and through AttributeReader their attributes.
class DictionaryReader
{
public:
    /// `refusal` takes what is wrong with the file, and has to outlive the reader.
    explicit DictionaryReader(Refusal &refusal);

    /// The dictionaries in the order of the file. They mean nothing where the file was refused.
    std::vector<std::unique_ptr<Dictionary>> read(const QByteArray &json);

private:
    QJsonObject parse(const QByteArray &json);
    std::unique_ptr<Dictionary> readDictionary(const QJsonValue &value, Place place);
    void readAttributes(const QJsonArray &attributes, Place place, Dictionary &dictionary);
    /// The value as an object; refuses anything else.
    QJsonObject objectAt(const QJsonValue &value, const Place &place);

    Refusal &m_refusal;
};

} // namespace Zudunmaf::dml

#endif
