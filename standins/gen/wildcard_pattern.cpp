#include "gen/wildcard_pattern.h"

#include <algorithm>

#include <QChar>

namespace Zudunmaf
{
namespace gen
{

namespace
{

char32_t folded(char32_t character)
{
    return QChar::toCaseFolded(character);
}

std::u32string foldedText(const QString &text)
{
    std::u32string result = text.toStdU32String();
    std::transform(result.begin(), result.end(), result.begin(), folded);
    return result;
}

} // namespace

bool WildcardPattern::Piece::takes(char32_t candidate) const
{
    const auto holds = [candidate](const Range &range) {
        return range.first <= candidate && candidate <= range.last;
    };
    switch (kind) {
    case Character:
        return candidate == character;
    case OneOf:
        return std::any_of(ranges.begin(), ranges.end(), holds);
    case NoneOf:
        return std::none_of(ranges.begin(), ranges.end(), holds);
    case AnyText:
    case AnyCharacter:
        break;
    }
    return true;
}

WildcardPattern::WildcardPattern(const QString &pattern)
    : m_source(pattern)
{
    const std::u32string text = foldedText(pattern);
    addAnyText();
    for (std::size_t position = 0; position < text.size() && m_isValid; ++position) {
        switch (text[position]) {
        case U'*':
            addAnyText();
            break;
        case U'?':
            m_pieces.push_back({Piece::AnyCharacter, 0, {}});
            break;
        case U'[':
            m_isValid = addSet(text, &position);
            break;
        default:
            m_pieces.push_back({Piece::Character, text[position], {}});
        }
    }
    addAnyText();
}

void WildcardPattern::addAnyText()
{
    // A run of stars says no more than one of them.
    if (m_pieces.empty() || m_pieces.back().kind != Piece::AnyText)
        m_pieces.push_back({Piece::AnyText, 0, {}});
}

bool WildcardPattern::addSet(const std::u32string &pattern, std::size_t *position)
{
    std::size_t at = *position + 1;
    const bool isNegated = at < pattern.size() && pattern[at] == U'^';
    if (isNegated)
        ++at;
    // The first character belongs to the set, also where it is a "]".
    const std::size_t end = pattern.find(U']', at + 1);
    if (end == std::u32string::npos)
        return false;

    Piece set{isNegated ? Piece::NoneOf : Piece::OneOf, 0, {}};
    while (at < end) {
        const bool isRange = at + 2 < end && pattern[at + 1] == U'-';
        set.ranges.push_back({pattern[at], pattern[isRange ? at + 2 : at]});
        at += isRange ? 3 : 1;
    }
    m_pieces.push_back(set);
    *position = end;
    return true;
}

bool WildcardPattern::matches(const QString &text) const
{
    if (!m_isValid)
        return false;
    if (m_pieces.size() == 1)
        return true;

    // Only the last star ever needs to take more: what stood before it has been matched as early as it can
    // be.
    const std::u32string characters = foldedText(text);
    std::size_t piece = 0;
    std::size_t at = 0;
    std::size_t pieceBehindStar = 0;
    std::size_t atBehindStar = 0;
    while (at < characters.size()) {
        if (piece < m_pieces.size() && m_pieces[piece].kind == Piece::AnyText) {
            pieceBehindStar = ++piece;
            atBehindStar = at;
            if (piece == m_pieces.size())
                return true;
        } else if (piece < m_pieces.size() && m_pieces[piece].takes(characters[at])) {
            ++piece;
            ++at;
        } else {
            piece = pieceBehindStar;
            at = ++atBehindStar;
        }
    }
    return std::all_of(m_pieces.begin() + static_cast<std::ptrdiff_t>(piece), m_pieces.end(),
                       [](const Piece &left) { return left.kind == Piece::AnyText; });
}

} // namespace gen
} // namespace Zudunmaf
