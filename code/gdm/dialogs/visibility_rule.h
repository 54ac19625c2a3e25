#ifndef GDM_DIALOGS_VISIBILITY_RULE_H
#define GDM_DIALOGS_VISIBILITY_RULE_H

#include "gdm/dialogs/filter_pattern.h"

#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

/// Decides which rows of the available table are visible. Constructed once for each pass over the rows. FillRule
/// describes how the two rules differ. Internal: not installed.
class VisibilityRule
{
public:
    /// `group` is the selected group, and `allGroups` the text of the row for all groups.
    VisibilityRule(int entityMask, const QString &group, const QString &allGroups, const QString &filterText,
                   bool byPrompt);

    bool shows(const DmlAttrDef &definition) const;

private:
    bool groupShows(const DmlAttrDef &definition) const;

    unsigned int m_entityMask;
    QString m_group;
    bool m_allGroups;
    FilterPattern m_pattern;
    bool m_byPrompt;
};

} // namespace Zudunmaf

#endif
