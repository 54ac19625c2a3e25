#ifndef DML_FIELD_RULES_H
#define DML_FIELD_RULES_H

#include <QJsonObject>

#include <limits>
#include <vector>

namespace Zudunmaf::dml
{

struct Place;
class Refusal;

/// The type that the value of a field must have.
enum class FieldKind {
    Flag,
    Text,
    TextOrNull,
    Identifier, ///< A whole number, at least 0.
    WholeNumber,
    Number, ///< Within the range of float, in which units are converted.
    List,
    ListOrAll ///< A list, or the word "all".
};

/// One field of an object in a dictionary file.
struct FieldRule {
    enum Presence { Optional, Required };
    static constexpr unsigned AllTypes = ~0u;

    const char *key;
    FieldKind kind;
    Presence presence;
    unsigned types = AllTypes; ///< Attribute types that have the field, see typeBit().
    int minSize = 0;           ///< In bytes of UTF-8 for a text, in entries for a list.
    int maxSize = std::numeric_limits<int>::max();
};

constexpr unsigned typeBit(int type)
{
    return 1u << type;
}

/// Returns true if `object` has all required fields, no unknown ones, and only valid values. Applies only rules with the
/// bit of `type`. Otherwise refuses the first invalid field and returns false.
bool checkFields(const QJsonObject &object, const std::vector<FieldRule> &rules, int type, const Place &place,
                 Refusal &refusal);

/// Returns true if the value is a text without NUL.
bool isPlainText(const QJsonValue &value);

} // namespace Zudunmaf::dml

#endif
