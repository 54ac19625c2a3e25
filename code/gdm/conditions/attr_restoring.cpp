#include "gdm/conditions/restore_target.h"

#include "gdm/conditions/available_items.h"
#include "gdm/conditions/condition_record.h"
#include "gdm/conditions/item_names.h"
#include "gdm/conditions/limit_check.h"
#include "gdm/conditions/number_units.h"
#include "gdm/host/host_text.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_filter_lwi.h"
#include "gdm/items/attr_roles.h"
#include "gdm/items/feature_attr_lwi.h"

#include <memory>
#include <vector>

namespace Zudunmaf
{

namespace
{

typedef std::vector<std::unique_ptr<QTableWidgetItem>> RestoredItems;

RestoreResult duplicate(const QString &name)
{
    return refusal(RestoreDuplicate, "'%1' has a value already", name);
}

/// Adds the items and sets the results; a null item is that of an entry that already has a result. All items are
/// created before the first is added, because adding can fill the available table again. `names` are the attributes
/// that have a value, and is null if an attribute can be added several times.
void addAll(const RestoredItems &items, const AddToChosen &add, QSet<QString> *names,
            QList<RestoreResult> *results)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (!items[i])
            continue;
        const QString name = items[i]->data(DmlAttrNameRole).toString();
        if (names && names->contains(name))
            (*results)[int(i)] = duplicate(name);
        else if (!add || !add(*items[i]))
            (*results)[int(i)] = refusal(RestoreNotAdded, "'%1' was not added to the chosen table", name);
        else if (names)
            names->insert(name);
    }
}

RestoreResult makeCondition(const AttrCondition &condition, AvailableItems *available,
                            std::unique_ptr<QTableWidgetItem> *made)
{
    const AttrFilterLWI *item = dynamic_cast<const AttrFilterLWI *>(available->find(condition.name));
    if (!item)
        return available->absence(condition.name);
    DmlAttrValue record;
    const RestoreResult result = fillRecord(condition, *definitionIn(item->dmlAttribute()), &record);
    if (result.status == RestoreDone) {
        made->reset(item->clone());
        static_cast<AttrFilterLWI *>(made->get())->setAttrValue(variantOfRecord(&record));
    }
    return result;
}

/// Checks a number against the limits and converts a float to the units of the definition. The default is always
/// accepted.
RestoreResult checkNumber(const AttrAssignment &assignment, const DmlAttrDef &definition, int displayUnits,
                          QVariant *value)
{
    bool isNumber = false;
    const double number = value->toDouble(&isNumber);
    if (!isNumber)
        return refusal(RestoreOutOfRange, "'%1' is no number", value->toString());
    if (definition.type == DmlAttrInteger) {
        const QString problem =
            number == double(definition.defaultInt) ? QString() : problemOfInteger(number, definition);
        if (problem.isEmpty())
            *value = int(number);
        return rangeResult(problem);
    }
    const NumberUnits units(assignment.units, assignment.unitsText, definition.unitsClass);
    if (units.isUnknown() || units.isOneUnitless())
        return unknownUnits(assignment.unitsText);
    *value = units.converted(number);
    if (value->toDouble() == double(definition.defaultFloat))
        return RestoreResult();
    return rangeResult(problemOfFloat(value->toDouble(), definition, displayUnits));
}

/// Sets `*value` to the value for the item. If the definition does not accept it, returns the reason.
RestoreResult checkValue(const AttrAssignment &assignment, const DmlAttrDef &definition, int displayUnits,
                         QVariant *value)
{
    *value = assignment.value;
    const bool isText = definition.type == DmlAttrText || definition.type == DmlAttrOption;
    if (isText)
        *value = value->isValid() ? value->toString() : QString();
    if (!value->isValid())
        return RestoreResult();
    switch (definition.type) {
    case DmlAttrBoolean:
        *value = value->toBool();
        return RestoreResult();
    case DmlAttrOption:
        // An option without a default has an empty text, which names no entry.
        if (!value->toString().isEmpty() && indexOfOption(definition, value->toString()) == -1)
            return refusal(RestoreOptionGone, "there is no option '%1'", value->toString());
        return RestoreResult();
    case DmlAttrInteger:
    case DmlAttrFloat:
        return checkNumber(assignment, definition, displayUnits, value);
    default:
        return RestoreResult();
    }
}

RestoreResult makeAssignment(const AttrAssignment &assignment, AvailableItems *available,
                             const QSet<QString> &names, std::unique_ptr<QTableWidgetItem> *made)
{
    if (names.contains(assignment.name))
        return duplicate(assignment.name);
    const FeatureAttrLWI *item = dynamic_cast<const FeatureAttrLWI *>(available->find(assignment.name));
    if (!item)
        return available->absence(assignment.name);
    const DmlAttrDef &definition = *definitionIn(item->dmlAttribute());
    if (assignment.type != definition.type)
        return refusal(RestoreTypeChanged, "'%1' has another type now", assignment.name);
    std::unique_ptr<FeatureAttrLWI> copy(static_cast<FeatureAttrLWI *>(item->clone()));
    QVariant value;
    const RestoreResult result = checkValue(assignment, definition, copy->displayUnits(), &value);
    if (result.status != RestoreDone)
        return result;
    copy->setAttrValue(value);
    *made = std::move(copy);
    return result;
}

} // namespace

QList<RestoreResult> restoreConditions(const QList<AttrCondition> &conditions, const RestoreTarget &target)
{
    AvailableItems available(target);
    QList<RestoreResult> results;
    results.reserve(conditions.size());
    RestoredItems items(std::size_t(conditions.size()));
    for (int i = 0; i < int(conditions.size()); ++i)
        results.append(makeCondition(conditions.at(i), &available, &items[std::size_t(i)]));
    addAll(items, target.add, nullptr, &results);
    return results;
}

QList<RestoreResult> restoreAssignments(const QList<AttrAssignment> &assignments, const RestoreTarget &target)
{
    AvailableItems available(target);
    QSet<QString> names = namesOf<FeatureAttrLWI>(target.chosen);
    QList<RestoreResult> results;
    results.reserve(assignments.size());
    RestoredItems items(std::size_t(assignments.size()));
    for (int i = 0; i < int(assignments.size()); ++i)
        results.append(makeAssignment(assignments.at(i), &available, names, &items[std::size_t(i)]));
    addAll(items, target.add, &names, &results);
    return results;
}

} // namespace Zudunmaf
