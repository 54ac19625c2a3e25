#ifndef DML_DICTIONARY_H
#define DML_DICTIONARY_H

#include "dml/text_pool.h"
#include "gdm/items/attr_records.h"

#include <QString>

#include <vector>

namespace Zudunmaf::dml
{

/// Owns the definitions of one dictionary, in the order of its file, and their texts. Nothing is added after loading,
/// so pointers to definitions stay valid until the dictionary is destroyed.
class Dictionary
{
public:
    Dictionary(int id, const QString &title);

    int id() const { return m_id; }
    QString title() const { return m_title; }
    int count() const { return int(m_definitions.size()); }

    TextPool &texts() { return m_texts; }
    /// Invalidates pointers to definitions; call only while the dictionary is being read.
    void append(const DmlAttrDef &definition) { m_definitions.push_back(definition); }

    /// Returns the first definition from index `cursor` on that shares a bit with `entityMask`; with all bits set, any
    /// definition. Returns null after the last one. Sets `cursor`, which ranges from 0 to count(), to the next index.
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
