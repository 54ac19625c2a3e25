#ifndef GDM_CONDITIONS_ATTR_DOCUMENTS_H
#define GDM_CONDITIONS_ATTR_DOCUMENTS_H

#include "gdm/conditions/attr_assignment.h"
#include "gdm/conditions/attr_condition.h"

#include <QByteArray>
#include <QList>

/// @file
/// Conditions and values as JSON documents, see docs/conditions.schema.json. Qt 4.8 has no JSON: the library lacks these
/// functions there.

namespace Zudunmaf
{

/// What a reader of documents has refused.
struct DocumentProblem {
    QString place;  ///< Where, such as "conditions[2].low"; empty for the document as a whole.
    QString reason; ///< What is wrong, in English, for logs; empty if nothing is.
};

/// Returns a JSON document in UTF-8 with the conditions in their order; the same conditions give the same bytes.
///
/// Each number keeps all its bits: infinities, NaN and the negative zero are texts. Fields that the type does not use are
/// left out. An unpaired surrogate is kept too, as the escape that JSON has for it.
GDM_EXPORT QByteArray conditionsToJson(const QList<AttrCondition> &conditions);

/// Reads what conditionsToJson() has written, and returns true. Anything else is refused with place and reason, and
/// leaves `*conditions` as it was: another version, a missing, unknown or repeated field, a value of a wrong type or out
/// of range. `problem` may be null.
GDM_EXPORT bool conditionsFromJson(const QByteArray &json, QList<AttrCondition> *conditions,
                                   DocumentProblem *problem = nullptr);

/// Returns a JSON document with the assigned values, as conditionsToJson() does with conditions. A value of another kind
/// than the type asks for is converted as QVariant does it.
GDM_EXPORT QByteArray assignmentsToJson(const QList<AttrAssignment> &assignments);

/// Reads what assignmentsToJson() has written, under the rules of conditionsFromJson().
GDM_EXPORT bool assignmentsFromJson(const QByteArray &json, QList<AttrAssignment> *assignments,
                                    DocumentProblem *problem = nullptr);

} // namespace Zudunmaf

#endif
