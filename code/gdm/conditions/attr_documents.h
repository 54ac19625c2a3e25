#ifndef GDM_CONDITIONS_ATTR_DOCUMENTS_H
#define GDM_CONDITIONS_ATTR_DOCUMENTS_H

#include "gdm/conditions/attr_assignment.h"
#include "gdm/conditions/attr_condition.h"

#include <QByteArray>
#include <QList>

/// @file
/// Conditions and values as JSON documents, see docs/conditions.schema.json. Qt 4.8 has no JSON: the library lacks
/// these functions there.

namespace Zudunmaf
{

/// The error in a document that was not read.
struct DocumentProblem {
    QString place;  ///< The field, such as "conditions[2].low"; empty for the document as a whole.
    QString reason; ///< The error, in English, for logs; empty if there is none.
};

/// Returns a JSON document in UTF-8 with the conditions in their order; the same conditions give the same bytes.
///
/// Each number keeps all its bits: infinities, NaN and the negative zero are texts. Fields that the type does not use
/// are left out. An unpaired surrogate is kept as a JSON escape.
GDM_EXPORT QByteArray conditionsToJson(const QList<AttrCondition> &conditions);

/// Reads a document of conditionsToJson() and returns true. On an error, sets `*problem`, leaves `*conditions`
/// unchanged and returns false. Errors are another version, a missing, unknown or repeated field, and a value of a
/// wrong type or out of range. `problem` can be null.
GDM_EXPORT bool conditionsFromJson(const QByteArray &json, QList<AttrCondition> *conditions,
                                   DocumentProblem *problem = nullptr);

/// Returns a JSON document with the values; see conditionsToJson(). A value whose metatype is not that of the type is
/// converted by QVariant.
GDM_EXPORT QByteArray assignmentsToJson(const QList<AttrAssignment> &assignments);

/// Reads a document of assignmentsToJson(), with the errors of conditionsFromJson().
GDM_EXPORT bool assignmentsFromJson(const QByteArray &json, QList<AttrAssignment> *assignments,
                                    DocumentProblem *problem = nullptr);

} // namespace Zudunmaf

#endif
