#ifndef DML_DICTIONARY_H
#define DML_DICTIONARY_H

#include "dml/text_pool.h"
#include "gdm/items/attr_records.h"

#include <QString>

#include <vector>

namespace Zudunmaf::dml
{

/// The attributes of one dictionary in the order of its file, with every text that they point to. Once it is
/// loaded nothing is added, so a definition stays where it is for as long as the dictionary lives.
class Dictionary
{
public:
    Dictionary(int id, const QString &title);

    int id() const { return m_id; }
    QString title() const { return m_title; }
    int count() const { return int(m_definitions.size()); }

    TextPool &texts() { return m_texts; }
    /// Only while the dictionary is being read: moves the definitions.
    void append(const DmlAttrDef &definition) { m_definitions.push_back(definition); }

    /// The first definition at or behind `cursor` that shares a bit with `entityMask` (all bits take any),
    /// null where there is none. `cursor` is an index from 0 to count() and is left behind the answer.
    DmlAttrDef *next(unsigned int entityMask, int &cursor);

private:
    Q_DISABLE_COPY(Dictionary)

    int m_id;
    QString m_title;
    TextPool m_texts;
    std::vector<DmlAttrDef> m_definitions;
};

} // namespace Zudunmaf::dml

#endif
