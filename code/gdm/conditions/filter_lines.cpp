#include "gdm/conditions/filter_lines.h"

#include "gdm/conditions/label_index.h"
#include "gdm/conditions/line_reading.h"
#include "gdm/host/dictionary_walk.h"
#include "gdm/items/attr_roles.h"

namespace Zudunmaf
{

namespace
{

LineResult refusedLine(LineStatus status, const QString &reason)
{
    LineResult result;
    result.status = status;
    result.reason = reason;
    return result;
}

QString namesOf(const QList<LineResult> &readings)
{
    QStringList names;
    names.reserve(readings.size());
    for (const LineResult &reading : readings)
        names << QLatin1Char('\'') + reading.condition.name + QLatin1Char('\'');
    return names.join(QLatin1String(", "));
}

/// Readings that the dictionary no longer allows make a line ambiguous too: it can be older than the dictionary.
LineResult readLine(const QString &line, const LabelIndex &index, bool byPrompt)
{
    QList<LineResult> readings;
    const QList<const DmlAttrDef *> candidates = index.candidates(line);
    readings.reserve(candidates.size());
    for (const DmlAttrDef *definition : candidates) {
        const LineResult reading = readLineAs(*definition, byPrompt, line);
        if (reading.status != LineUnknown)
            readings.append(reading);
    }
    if (readings.isEmpty())
        return refusedLine(
            LineUnknown,
            QString(QLatin1String("no attribute of the dictionary gives the line '%1'")).arg(line));
    if (readings.size() > 1)
        return refusedLine(LineAmbiguous,
                           QString(QLatin1String("the line '%1' can be of %2")).arg(line, namesOf(readings)));
    const LineResult reading = readings.first();
    return reading.status == LineRead ? reading : refusedLine(reading.status, reading.reason);
}

} // namespace

QList<LineResult> conditionsFromLines(const QStringList &lines, int did, LineLabels labels)
{
    const bool byPrompt = labels == LabelsByPrompt;
    LabelIndex index(byPrompt);
    const bool isRead =
        did >= 0 && walkDictionary([did] { return did; }, EntityAll, GDM_HERE,
                                   [&index](const DmlAttrDef *definition) { index.add(definition); });
    QList<LineResult> results;
    results.reserve(lines.size());
    for (const QString &line : lines)
        results.append(isRead
                           ? readLine(line, index, byPrompt)
                           : refusedLine(LineNoDictionary, QLatin1String("the dictionary cannot be read")));
    return results;
}

} // namespace Zudunmaf
