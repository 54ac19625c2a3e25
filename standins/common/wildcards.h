#ifndef COMMON_WILDCARDS_H
#define COMMON_WILDCARDS_H

#include <QRegularExpression>

namespace Zudunmaf
{
namespace standins
{

/// Returns the expression that finds a filter text anywhere in a label, ignoring case. Each match is as short as
/// possible. The services select attributes with it, and the available table marks names with it.
///
/// "*", "?", sets and backslashes mean what they mean to QRegExp::Wildcard, which decides the rows that are visible.
/// An empty text, or one of stars only, gives an empty pattern, which matches everywhere. A text that QRegExp cannot
/// read, such as one with an unclosed "[", gives a pattern that matches nothing.
///
/// Two differences from QRegExp remain: a character above U+FFFF counts as one character, and all letters that
/// Unicode folds together, such as the two forms of a small sigma, are equal.
QRegularExpression wildcardExpression(const QString &text);

} // namespace standins
} // namespace Zudunmaf

#endif
