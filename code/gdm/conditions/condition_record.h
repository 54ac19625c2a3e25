#ifndef GDM_CONDITIONS_CONDITION_RECORD_H
#define GDM_CONDITIONS_CONDITION_RECORD_H

#include "gdm/conditions/attr_condition.h"
#include "gdm/conditions/attr_restoring.h"

namespace Zudunmaf
{

/// Fills a record with the condition, or says why the definition does not take it; the record is then primed.
/// Internal: not installed.
RestoreResult fillRecord(const AttrCondition &condition, const DmlAttrDef &definition, DmlAttrValue *record);

/// Returns the index of the first entry with this text; -1 if there is none.
int indexOfOption(const DmlAttrDef &definition, const QString &text);

/// Returns the outcome for a name or a text that is quoted in the reason.
RestoreResult refusal(RestoreStatus status, const char *reason, const QString &quoted);

/// Returns the outcome for numbers: out of range if there is a problem.
RestoreResult rangeResult(const QString &problem);

/// Returns the outcome for units that cannot be converted into those of the attribute.
RestoreResult unknownUnits(const QString &text);

} // namespace Zudunmaf

#endif
