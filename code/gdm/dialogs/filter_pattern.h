#ifndef GDM_DIALOGS_FILTER_PATTERN_H
#define GDM_DIALOGS_FILTER_PATTERN_H

#include <QByteArray>
#include <QRegExp>
#include <QString>

namespace Zudunmaf
{

/// The filter text as a wildcard pattern that matches anywhere in a label, case-insensitively. "*" matches any
/// characters, "?" one character, "[...]" one of a set. The result is always that of QRegExp; an invalid pattern
/// matches nothing. Internal: not installed.
///
/// QRegExp itself is used only if the pattern or the label has sets or characters outside of printable ASCII. It takes
/// hundreds of times as long.
class FilterPattern
{
public:
    /// An empty text matches every label.
    explicit FilterPattern(const QString &text);

    bool matches(const char *label) const;

private:
    bool matchesPlain(const char *label) const;

    bool m_matchesAll;
    bool m_isPlain;
    QByteArray m_lowered;
    QRegExp m_expression;
};

} // namespace Zudunmaf

#endif
