#include "dml/dictionary_store.h"

#include "dml/refusal.h"

namespace Zudunmaf::dml
{

DictionaryStore &DictionaryStore::instance()
{
    static DictionaryStore store;
    return store;
}

void DictionaryStore::add(std::vector<std::unique_ptr<Dictionary>> dictionaries, Refusal &refusal)
{
    Place place;
    for (const std::unique_ptr<Dictionary> &dictionary : dictionaries) {
        ++place.dictionary;
        if (find(dictionary->id())) {
            refusal.refuse(place.at("id"), QStringLiteral("an identifier that is not loaded yet"),
                           describe(dictionary->id()));
            return;
        }
    }
    for (std::unique_ptr<Dictionary> &dictionary : dictionaries) {
        const int id = dictionary->id();
        m_dictionaries.emplace(id, std::move(dictionary));
    }
}

Dictionary *DictionaryStore::find(int did) const
{
    const auto found = m_dictionaries.find(did);
    return found == m_dictionaries.end() ? nullptr : found->second.get();
}

QVector<int> DictionaryStore::ids() const
{
    QVector<int> ids;
    ids.reserve(int(m_dictionaries.size()));
    for (const auto &entry : m_dictionaries)
        ids.append(entry.first);
    return ids;
}

} // namespace Zudunmaf::dml
