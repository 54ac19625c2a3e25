#include "gdm/dialogs/filter_pattern.h"

namespace Zudunmaf
{

namespace
{

char lowered(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Where in the label a match of the rest of a pattern can begin at the earliest.
const char *earliestStart(const char *label, const char *pattern)
{
    if (*pattern == '?' || *pattern == '*')
        return label;
    while (*label && lowered(*label) != *pattern)
        ++label;
    return label;
}

bool isAscii(const char *text)
{
    unsigned char bits = 0;
    for (; *text; ++text)
        bits |= static_cast<unsigned char>(*text);
    return bits < 0x80;
}

/// Whether QRegExp gives each character of the text its plain meaning, but for "*" and "?". A lone "]" and a
/// backslash are odd there; beyond ASCII, so is case.
bool isDirect(const QString &text)
{
    for (const QChar character : text) {
        const ushort code = character.unicode();
        if (code < ' ' || code > '~' || code == '[' || code == ']' || code == '\\')
            return false;
    }
    return true;
}

/// A run of stars means what one star means, and costs QRegExp the cube of its length. Two oddities of
/// QRegExp's reading are left alone: the star behind a backslash is an ordinary character, and how a set is
/// read depends on what stands before it, so that beside one only runs that nobody types are cut.
QString withShortRunsOfStars(const QString &text)
{
    const QLatin1Char star('*');
    const int longestRun = text.contains(QLatin1Char('[')) ? 16 : 1;
    QString result;
    QChar previous;
    int run = 0;
    for (const QChar character : text) {
        const bool isStar = character == star && previous != QLatin1Char('\\');
        run = isStar ? run + 1 : 0;
        if (run <= longestRun)
            result.append(character);
        previous = character;
    }
    return result;
}

} // namespace

FilterPattern::FilterPattern(const QString &text)
    : m_matchesAll(text.isEmpty())
    , m_direct(isDirect(text))
{
    const QString pattern =
        withShortRunsOfStars(QString(QLatin1String("*%1*")).arg(text, 0, QLatin1Char(' ')));
    if (m_direct)
        m_lowered = pattern.toLower().toLatin1();
    m_expression = QRegExp(pattern, Qt::CaseInsensitive, QRegExp::Wildcard);
}

bool FilterPattern::matches(const char *label) const
{
    if (m_matchesAll)
        return true;
    if (m_direct && isAscii(label))
        return matchesDirectly(label);
    return m_expression.indexIn(QString(label)) != -1;
}

/// Matches the whole label against the pattern, which begins and ends with a star. On a mismatch the last
/// star takes one more character: no earlier star can do better, so there is nothing else to come back to.
bool FilterPattern::matchesDirectly(const char *label) const
{
    const char *pattern = m_lowered.constData();
    const char *afterStar = pattern;
    const char *starEnd = label;
    while (*label) {
        if (*pattern == '*') {
            afterStar = ++pattern;
            if (!*pattern)
                return true;
            label = starEnd = earliestStart(label, pattern);
        } else if (*pattern == '?' || *pattern == lowered(*label)) {
            ++pattern;
            ++label;
        } else {
            pattern = afterStar;
            label = starEnd = earliestStart(starEnd + 1, pattern);
        }
    }
    while (*pattern == '*')
        ++pattern;
    return !*pattern;
}

} // namespace Zudunmaf
