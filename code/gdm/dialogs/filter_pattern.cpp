#include "gdm/dialogs/filter_pattern.h"

namespace Zudunmaf
{

namespace
{

char lowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Returns the first position in the label where the rest of a pattern can match.
const char *earliestStart(const char *label, const char *pattern)
{
    if (*pattern == '?' || *pattern == '*')
        return label;
    while (*label && lowerCase(*label) != *pattern)
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

/// Returns true if all characters of the text but "*" and "?" match only themselves in QRegExp. A lone "]" and a
/// backslash are special there, and characters other than ASCII have special cases.
bool isPlain(const QString &text)
{
    for (const QChar character : text) {
        const ushort code = character.unicode();
        if (code < ' ' || code > '~' || code == '[' || code == ']' || code == '\\')
            return false;
    }
    return true;
}

/// Replaces several stars in a row with one. They mean the same, but QRegExp takes the cube of their number: 15 seconds
/// for 3,000. A star after a backslash is an ordinary character. If there is a set, whose meaning depends on the
/// characters before it, up to 16 stars are kept.
QString withoutRepeatedStars(const QString &text)
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
    , m_isPlain(isPlain(text))
{
    const QString pattern =
        withoutRepeatedStars(QString(QLatin1String("*%1*")).arg(text, 0, QLatin1Char(' ')));
    if (m_isPlain)
        m_lowered = pattern.toLower().toLatin1();
    m_expression = QRegExp(pattern, Qt::CaseInsensitive, QRegExp::Wildcard);
}

bool FilterPattern::matches(const char *label) const
{
    if (m_matchesAll)
        return true;
    if (m_isPlain && isAscii(label))
        return matchesPlain(label);
    return m_expression.indexIn(QString(label)) != -1;
}

/// Matches the whole label; the pattern begins and ends with a star. After a mismatch, the last star matches one more
/// character. Earlier stars need no backtracking, because the last one can match whatever they would.
bool FilterPattern::matchesPlain(const char *label) const
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
        } else if (*pattern == '?' || *pattern == lowerCase(*label)) {
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
