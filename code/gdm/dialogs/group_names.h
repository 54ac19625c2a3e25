#ifndef GDM_DIALOGS_GROUP_NAMES_H
#define GDM_DIALOGS_GROUP_NAMES_H

#include <QSet>
#include <QString>
#include <QStringList>

#include <string>
#include <unordered_set>

struct DmlAttrDef;

namespace Zudunmaf
{

/// The groups of a dictionary, each once, in the order in which they are met, behind a first row that stands
/// for all of them. A group that is called like that row gets no row of its own. Internal: not installed.
class GroupNames
{
public:
    explicit GroupNames(const QString &firstRow);

    void add(const DmlAttrDef &definition);
    const QStringList &list() const { return m_names; }

private:
    QStringList m_names;
    QSet<QString> m_seen;
    std::unordered_set<std::string> m_seenBytes;
};

} // namespace Zudunmaf

#endif
