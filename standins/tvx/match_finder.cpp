#include "tvx/match_finder.h"

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// The set that begins at `position`, which moves to its last character; empty where the bracket stays open.
QString setAt(const QString &pattern, int *position)
{
    int first = *position + 1;
    const bool negated = first < pattern.size() && pattern[first] == QLatin1Char('^');
    if (negated)
        ++first;
    // A bracket that comes first is a member of the set.
    const auto end = pattern.indexOf(QLatin1Char(']'), first + 1);
    if (end < 0)
        return QString();
    QString members = pattern.mid(first, end - first);
    members.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    members.replace(QLatin1Char('['), QLatin1String("\\["));
    members.replace(QLatin1Char(']'), QLatin1String("\\]"));
    members.replace(QLatin1Char('^'), QLatin1String("\\^"));
    *position = static_cast<int>(end);
    return QLatin1Char('[') + QLatin1String(negated ? "^" : "") + members + QLatin1Char(']');
}

QString expressionFor(const QString &pattern)
{
    QString expression;
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == QLatin1Char('*')) {
            expression += QLatin1String(".*?");
        } else if (c == QLatin1Char('?')) {
            expression += QLatin1Char('.');
        } else if (c == QLatin1Char('[')) {
            const QString set = setAt(pattern, &i);
            if (set.isEmpty())
                return QString();
            expression += set;
        } else {
            expression += QRegularExpression::escape(QString(c));
        }
    }
    return expression;
}

} // namespace

void MatchFinder::setPattern(const QString &pattern)
{
    // Stars at the ends would stretch the match over the whole label.
    QString inner = pattern;
    while (inner.startsWith(QLatin1Char('*')))
        inner.remove(0, 1);
    while (inner.endsWith(QLatin1Char('*')))
        inner.chop(1);
    const QString expression = expressionFor(inner);
    m_expression = QRegularExpression(expression, QRegularExpression::CaseInsensitiveOption |
                                                      QRegularExpression::DotMatchesEverythingOption);
    m_usable = !expression.isEmpty() && m_expression.isValid();
}

QVector<MatchFinder::Match> MatchFinder::matchesIn(const QString &label) const
{
    QVector<Match> matches;
    if (!m_usable)
        return matches;
    auto found = m_expression.globalMatch(label);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (match.capturedLength() > 0)
            matches.append(
                {static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength())});
    }
    return matches;
}

} // namespace tvx
} // namespace Zudunmaf
