#include "gdm/conditions/label_index.h"

#include "gdm/items/attr_access.h"

#include <QSet>

namespace Zudunmaf
{

namespace
{

/// The greatest number of characters of a label: the size of its field, all of it text if the NUL is missing.
const int LongestLabel = int(sizeof DmlAttrDef::prompt);

/// QString::arg() replaces a percent sign before a digit, or before an L and a digit.
bool hasPlaceholder(const QString &label)
{
    for (int sign = int(label.indexOf(QLatin1Char('%'))); sign >= 0;
         sign = int(label.indexOf(QLatin1Char('%'), sign + 1))) {
        const QString after = label.mid(sign + 1, 2);
        const int digit = after.startsWith(QLatin1Char('L')) ? 1 : 0;
        if (digit < int(after.size()) && after.at(digit).digitValue() >= 0)
            return true;
    }
    return false;
}

} // namespace

LabelIndex::LabelIndex(bool byPrompt)
    : m_byPrompt(byPrompt)
{
}

void LabelIndex::add(const DmlAttrDef *definition)
{
    const QString label = labelText(*definition, m_byPrompt);
    if (hasPlaceholder(label))
        m_withPlaceholder.append(definition);
    else
        m_byLabel[label].append(definition);
}

QList<const DmlAttrDef *> LabelIndex::candidates(const QString &line) const
{
    QSet<QString> labels;
    labels.reserve(4);
    labels << line;

    const QString equals = QLatin1String(" = ");
    for (int end = int(line.indexOf(equals)); end >= 0 && end <= LongestLabel;
         end = int(line.indexOf(equals, end + 1)))
        labels << line.left(end);

    // Bounds have no blank, so the label is between the first sign and the last.
    const QString within = QLatin1String(" <= ");
    const int start = int(line.indexOf(within)) + int(within.size());
    const int end = int(line.lastIndexOf(within));
    if (start <= end)
        labels << line.mid(start, end - start);

    QList<const DmlAttrDef *> found = m_withPlaceholder;
    const QSet<QString> &each = labels;
    for (const QString &label : each)
        found += m_byLabel.value(label);
    return found;
}

} // namespace Zudunmaf
