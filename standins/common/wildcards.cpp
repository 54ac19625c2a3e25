#include "common/wildcards.h"

#include <QStringList>

#include <utility>

namespace Zudunmaf
{
namespace standins
{

namespace
{

constexpr char MatchesNothing[] = "(?!)";

/// Not QRegularExpression::escape(), which cannot take the halves of a surrogate pair one at a time.
QString literal(QChar character)
{
    const bool needsEscape = character.unicode() < 0x80 && !character.isLetterOrNumber();
    return needsEscape ? QLatin1Char('\\') + QString(character) : QString(character);
}

/// Returns the set whose "[" is at `*position`, and moves that to its "]"; an empty text if there is none.
QString setAt(const QString &text, int *position)
{
    int first = *position + 1;
    const bool isNegated = text.mid(first, 1) == QLatin1String("^");
    if (isNegated)
        ++first;
    // A "]" in first place is a member.
    const int end = static_cast<int>(text.indexOf(QLatin1Char(']'), first + 1));
    if (end < 0)
        return QString();
    QString members;
    for (int i = first; i < end; ++i) {
        QChar lowest = text[i];
        if (i + 2 < end && text[i + 1] == QLatin1Char('-')) {
            QChar highest = text[i + 2];
            // PCRE rejects a range in descending order.
            if (highest < lowest && !highest.isSurrogate() && !lowest.isSurrogate())
                std::swap(lowest, highest);
            members += literal(lowest) + QLatin1Char('-') + literal(highest);
            i += 2;
        } else {
            members += literal(lowest);
        }
    }
    *position = end;
    return QLatin1String(isNegated ? "[^" : "[") + members + QLatin1Char(']');
}

/// Returns what a backslash at `*position` matches, and moves that to the last character it takes. QRegExp keeps the
/// backslash and takes a wildcard after it literally, but doubles it before any other character. At the end of the
/// text follows the star that the dialogs append.
QString backslashAt(const QString &text, int *position)
{
    const QString backslash = QLatin1String("\\\\");
    const QChar next = *position + 1 < text.size() ? text[*position + 1] : QLatin1Char('*');
    if (next == QLatin1Char('\\'))
        return backslash;
    if (!QLatin1String("*?[]").contains(next))
        return backslash + backslash;
    ++*position;
    return backslash + literal(next);
}

/// Translates what is between the stars; no piece is empty. An empty list with `*isReadable` false if QRegExp cannot
/// read the text.
QStringList piecesOf(const QString &text, bool *isReadable)
{
    QStringList pieces{QString()};
    pieces.reserve(text.count(QLatin1Char('*')) + 1);
    for (int i = 0; i < text.size(); ++i) {
        QString translated;
        switch (text[i].unicode()) {
        case '*':
            pieces.append(QString());
            continue;
        case '?':
            translated = QLatin1Char('.');
            break;
        case '[':
            translated = setAt(text, &i);
            break;
        case ']':
            break;
        case '\\':
            translated = backslashAt(text, &i);
            break;
        default:
            translated = literal(text[i]);
        }
        *isReadable = !translated.isEmpty();
        if (!*isReadable)
            return QStringList();
        pieces.last() += translated;
    }
    pieces.removeAll(QString());
    return pieces;
}

} // namespace

QRegularExpression wildcardExpression(const QString &text)
{
    bool isReadable = true;
    QStringList pieces = piecesOf(text, &isReadable);
    QString pattern = isReadable ? QString() : QLatin1String(MatchesNothing);
    if (!pieces.isEmpty())
        pattern = pieces.takeFirst();
    // Each piece has one length, so its first match after the previous piece is as good as any later one. Atomic groups
    // and (*COMMIT) drop all others: otherwise "a*a*a*b" takes a time that grows with a power of the label's length.
    if (!pieces.isEmpty())
        pattern +=
            QLatin1String("(*COMMIT)(?>.*?") + pieces.join(QLatin1String(")(?>.*?")) + QLatin1Char(')');
    QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    // Such as a text that is no valid UTF-16.
    if (!expression.isValid())
        expression.setPattern(QLatin1String(MatchesNothing));
    return expression;
}

} // namespace standins
} // namespace Zudunmaf
