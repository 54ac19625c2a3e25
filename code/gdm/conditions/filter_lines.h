#ifndef GDM_CONDITIONS_FILTER_LINES_H
#define GDM_CONDITIONS_FILTER_LINES_H

#include "gdm/conditions/attr_condition.h"

#include <QList>
#include <QStringList>

/// @file
/// Reads the lines of AttributesFilterDialog::getFiltersAsStringList() back. docs/result-lines.md has their grammar.

namespace Zudunmaf
{

/// What a line was read as.
enum LineStatus {
    LineRead,        ///< A condition on exactly one attribute.
    LineUnknown,     ///< No attribute of the dictionary gives this line.
    LineAmbiguous,   ///< Several attributes give this line, or have given it.
    LineOptionGone,  ///< The option has no entry of this text.
    LineOutOfRange,  ///< A number is beyond the limits, or the bounds are out of order.
    LineNoDictionary ///< The dictionary could not be walked.
};

/// The outcome for one line.
struct LineResult {
    LineStatus status = LineUnknown; ///< The outcome.
    AttrCondition condition;         ///< With LineRead, the condition, in the units of the attribute.
    QString reason;                  ///< What is wrong, in English, for logs; empty with LineRead.
};

/// What the attributes were labelled with when the lines were made.
enum LineLabels {
    LabelsByName,  ///< The internal name.
    LabelsByPrompt ///< The prompt.
};

/// Reads lines of the filter dialog for a dictionary, and returns one result for each, in order. The empty line, which
/// an attribute of an unknown type gives, is refused.
///
/// A line is taken only if one attribute alone gives exactly this line, to each character; nothing is guessed. Numbers
/// of a float have three decimals, and what is read is the printed number. A limit that was rounded up or down beyond
/// itself is read as the limit, and -0.000 as the negative number next to zero. A label alone is a condition that is
/// not set. A label with a placeholder such as %1 is found in the form that it has in the line. A number
/// that a placeholder such as %L1 has written with separators of the locale is refused.
///
/// The dictionary is walked once for all lines; a failed walk is reported and refuses them all.
GDM_EXPORT QList<LineResult> conditionsFromLines(const QStringList &lines, int did, LineLabels labels);

} // namespace Zudunmaf

#endif
