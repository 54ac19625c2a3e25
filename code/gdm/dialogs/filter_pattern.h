#ifndef GDM_DIALOGS_FILTER_PATTERN_H
#define GDM_DIALOGS_FILTER_PATTERN_H

#include <QByteArray>
#include <QRegExp>
#include <QString>

namespace Zudunmaf
{

/// The filter text as a pattern that is looked for anywhere in a label, without regard to case. "*" stands
/// for any characters, "?" for one, "[...]" for one of a set: the rule is that of QRegExp's wildcard syntax,
/// and so is every answer. A pattern that QRegExp cannot read matches nothing. Internal: not installed.
///
/// Where pattern and label are plain ASCII without sets, which is nearly always, a direct match gives the
/// same answer many times faster and in time bounded by the product of the two lengths.
class FilterPattern
{
public:
    /// An empty text matches every label.
    explicit FilterPattern(const QString &text);

    bool matches(const char *label) const;

private:
    bool matchesDirectly(const char *label) const;

    bool m_matchesAll;
    bool m_direct;
    QByteArray m_lowered;
    QRegExp m_expression;
};

} // namespace Zudunmaf

#endif
