#ifndef GEN_WILDCARD_PATTERN_H
#define GEN_WILDCARD_PATTERN_H

#include <string>
#include <vector>

#include <QString>

namespace Zudunmaf
{
namespace gen
{

/// A pattern of shell wildcards that is looked for anywhere in a text, case ignored.
///
/// "*" stands for any text, "?" for one character, "[a-z_]" for one character of a set and "[^a-z_]" for one
/// that is not in it; a "]" that comes first belongs to its set. Every other character, the backslash too,
/// stands for itself. A "[" that is never closed makes a pattern that matches nothing, as it does where the
/// dialogs narrow their rows. A character is a code point. A match takes at most the
/// product of both lengths, never more.
class WildcardPattern
{
public:
    explicit WildcardPattern(const QString &pattern);

    const QString &source() const { return m_source; }
    bool matches(const QString &text) const;

private:
    struct Range {
        char32_t first;
        char32_t last;
    };
    struct Piece {
        enum Kind { AnyText, AnyCharacter, Character, OneOf, NoneOf };
        Kind kind;
        char32_t character;
        std::vector<Range> ranges;

        bool takes(char32_t candidate) const;
    };

    /// Reads the set behind the "[" at `*position` and leaves that at its "]". False where there is none.
    bool addSet(const std::u32string &pattern, std::size_t *position);
    void addAnyText();

    QString m_source;
    std::vector<Piece> m_pieces;
    bool m_isValid = true;
};

} // namespace gen
} // namespace Zudunmaf

#endif
