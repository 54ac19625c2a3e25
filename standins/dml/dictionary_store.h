#ifndef DML_DICTIONARY_STORE_H
#define DML_DICTIONARY_STORE_H

#include "dml/dictionary.h"

#include <QVector>

#include <map>
#include <memory>
#include <vector>

namespace Zudunmaf::dml
{

class Refusal;

/// The loaded dictionaries of the process, by identifier.
class DictionaryStore
{
public:
    static DictionaryStore &instance();

    /// Adds all of `dictionaries`. Adds none and refuses if an identifier is already loaded.
    void add(std::vector<std::unique_ptr<Dictionary>> dictionaries, Refusal &refusal);
    bool remove(int did) { return m_dictionaries.erase(did) > 0; }
    void clear() { m_dictionaries.clear(); }

    /// Returns null if `did` is not loaded.
    Dictionary *find(int did) const;
    QVector<int> ids() const;

private:
    std::map<int, std::unique_ptr<Dictionary>> m_dictionaries;
};

} // namespace Zudunmaf::dml

#endif
