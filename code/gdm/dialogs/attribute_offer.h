#ifndef GDM_DIALOGS_ATTRIBUTE_OFFER_H
#define GDM_DIALOGS_ATTRIBUTE_OFFER_H

#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

/// The rule that decides which attributes get a row in the top view. It differs on purpose from RowFilter,
/// which decides which rows are visible: here the group's case is ignored, obsolete attributes are left out,
/// and the text is matched by the host. Internal: not installed.
class AttributeOffer
{
public:
    /// `group` is compared unless `allGroups` is true. Of the filter text, at most the first 64 bytes in the
    /// local encoding count; an empty one lets every attribute through.
    AttributeOffer(int entityMask, const QString &group, bool allGroups, const QString &filterText,
                   bool byPrompt, bool showObsolete);

    bool takes(const DmlAttrDef &definition) const;

private:
    bool textMatches(const DmlAttrDef &definition) const;

    unsigned int m_entityMask;
    QString m_group;
    bool m_allGroups;
    char m_pattern[65];
    bool m_byPrompt;
    bool m_showObsolete;
};

} // namespace Zudunmaf

#endif
