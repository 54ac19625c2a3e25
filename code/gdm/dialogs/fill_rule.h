#ifndef GDM_DIALOGS_FILL_RULE_H
#define GDM_DIALOGS_FILL_RULE_H

#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

/// Decides which attributes get a row when the available table is filled. VisibilityRule then decides which of the rows
/// are visible. Internal: not installed.
///
/// The two rules differ on purpose. An example, with the group "Board" and the filter text "width":
/// - The attribute "width" of the group "BOARD" gets a row, and the row is hidden: VisibilityRule alone compares the
///   case of the group.
/// - The attribute "line_width" of the group "Board" gets a row if gen__str_cmp_reg("line_width", "width") returns
///   true. If it has a row from an earlier fill without a filter text, the row is visible: VisibilityRule matches
///   "*width*".
/// - If edt_show_obsolete_attrs becomes false, the rows of the group "Obsolete" stay as visible as others until the
///   next fill, which leaves them out.
/// - Displayed by prompt, FillRule matches the answer of gen__nls_nlsa_get_att_prompt(), and VisibilityRule the prompt
///   of the definition, which is the label of the row.
class FillRule
{
public:
    /// `group` is ignored if `allGroups` is true. Of the filter text, only the first 64 bytes in the local 8-bit
    /// encoding count; an empty text accepts every attribute.
    FillRule(int entityMask, const QString &group, bool allGroups, const QString &filterText, bool byPrompt,
             bool showObsolete);

    bool accepts(const DmlAttrDef &definition) const;

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
