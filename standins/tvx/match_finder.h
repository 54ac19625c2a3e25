#ifndef TVX_MATCH_FINDER_H
#define TVX_MATCH_FINDER_H

#include <QRegularExpression>
#include <QVector>

namespace Zudunmaf
{
namespace tvx
{

/// Where a filter text occurs in a label, case ignored: "*" stands for any characters, "?" for one, "[..]"
/// for one of a set. It marks what the user sees as found and decides nothing.
class MatchFinder
{
public:
    struct Match {
        int start;
        int length;
    };

    /// An empty text, one of stars alone or one with an open bracket matches nothing.
    void setPattern(const QString &pattern);
    bool isEmpty() const { return !m_usable; }
    /// The matches from left to right, each as short as it can be.
    QVector<Match> matchesIn(const QString &label) const;

private:
    QRegularExpression m_expression;
    bool m_usable = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
