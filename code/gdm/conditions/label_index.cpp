#include "gdm/conditions/label_index.h"

#include "gdm/items/attr_access.h"

#include <QSet>

namespace Zudunmaf
{

namespace
{

/// No label has more characters: the fields of a definition have fewer bytes.
const int LongestLabel = int(sizeof DmlAttrDef::prompt);

} // namespace

LabelIndex::LabelIndex(bool byPrompt)
    : m_byPrompt(byPrompt)
{
}

void LabelIndex::add(const DmlAttrDef *definition)
{
    const QString label = labelText(*definition, m_byPrompt);
    if (label.contains(QLatin1Char('%')))
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
    for (int end = int(line.indexOf(equals)); end >= 0 && end < LongestLabel;
         end = int(line.indexOf(equals, end + 1)))
        labels << line.left(end);

    // Bounds hold no blank, so the label stands between the first sign and the last.
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
