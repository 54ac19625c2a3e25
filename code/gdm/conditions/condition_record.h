#ifndef GDM_CONDITIONS_CONDITION_RECORD_H
#define GDM_CONDITIONS_CONDITION_RECORD_H

#include "gdm/conditions/attr_condition.h"
#include "gdm/conditions/attr_restoring.h"

namespace Zudunmaf
{

/// Fills a record with the condition. If the definition does not accept the condition, returns the reason, and the
/// record is only primed. Internal: not installed.
RestoreResult fillRecord(const AttrCondition &condition, const DmlAttrDef &definition, DmlAttrValue *record);

/// Returns the index of the first entry with this text; -1 if there is none.
int indexOfOption(const DmlAttrDef &definition, const QString &text);

/// Returns an outcome whose reason quotes a name or a text.
RestoreResult refusal(RestoreStatus status, const char *reason, const QString &quoted);

/// Returns the outcome for numbers: out of range unless the problem is empty.
RestoreResult rangeResult(const QString &problem);

/// Returns the outcome for units that cannot be converted into those of the attribute.
RestoreResult unknownUnits(const QString &text);

} // namespace Zudunmaf

#endif
