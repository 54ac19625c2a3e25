#ifndef GDM_CONDITIONS_FILTER_LINES_H
#define GDM_CONDITIONS_FILTER_LINES_H

#include "gdm/conditions/attr_condition.h"

#include <QList>
#include <QStringList>

/// @file
/// Reads the lines of AttributesFilterDialog::getFiltersAsStringList(). See docs/result-lines.md for their grammar.

namespace Zudunmaf
{

/// Outcome of reading one line.
enum LineStatus {
    LineRead,        ///< A condition on exactly one attribute.
    LineUnknown,     ///< No attribute of the dictionary gives this line.
    LineAmbiguous,   ///< Several attributes give this line, or could have given it.
    LineOptionGone,  ///< The option has no entry of this text.
    LineOutOfRange,  ///< A number is beyond the limits, the bounds are out of order, or the text is too long.
    LineNoDictionary ///< The dictionary could not be walked.
};

/// The outcome for one line.
struct LineResult {
    LineStatus status = LineUnknown; ///< The outcome.
    AttrCondition condition;         ///< With LineRead, the condition, in the units of the attribute.
    QString reason;                  ///< The error, in English, for logs; empty with LineRead.
};

/// The labels in the lines.
enum LineLabels {
    LabelsByName,  ///< The internal name.
    LabelsByPrompt ///< The prompt.
};

/// Reads lines of the filter dialog for a dictionary, and returns one result for each, in order.
///
/// A line is read only if exactly one attribute gives this line, character by character. A label alone is a condition
/// that is not set. The numbers of a float are read as printed, with three decimals; two texts are read otherwise: a
/// limit that rounding has moved out of range as the limit, and -0.000 as the negative number nearest to zero. A label
/// with a placeholder such as %1 is recognised as it appears in the line.
///
/// Not read are the empty line of an attribute of an unknown type, a number that a placeholder such as %L1 has printed
/// with separators of the locale, and a text that was cut at 199 bytes inside of a character. The dictionary is walked
/// once for all lines; if the walk fails, this is reported, and no line is read.
GDM_EXPORT QList<LineResult> conditionsFromLines(const QStringList &lines, int did, LineLabels labels);

} // namespace Zudunmaf

#endif
