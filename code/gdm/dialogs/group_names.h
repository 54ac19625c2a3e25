#ifndef GDM_DIALOGS_GROUP_NAMES_H
#define GDM_DIALOGS_GROUP_NAMES_H

#include <QSet>
#include <QString>
#include <QStringList>

struct DmlAttrDef;

namespace Zudunmaf
{

/// Collects the names of groups, each once and in the order of arrival, after a first row for all groups. A group with
/// the name of that row is left out. Internal: not installed.
class GroupNames
{
public:
    explicit GroupNames(const QString &firstRow);

    void add(const DmlAttrDef &definition);
    const QStringList &list() const { return m_names; }

private:
    QStringList m_names;
    QSet<QString> m_seen;
};

} // namespace Zudunmaf

#endif
