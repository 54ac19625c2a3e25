#ifndef DML_FIELD_RULES_H
#define DML_FIELD_RULES_H

#include <QJsonObject>

#include <limits>
#include <vector>

namespace Zudunmaf::dml
{

struct Place;
class Refusal;

/// What the value of a field has to be.
enum class FieldKind {
    Flag,
    Text,
    TextOrNull,
    Identifier, ///< A whole number, not negative.
    WholeNumber,
    Number, ///< Within single precision, since units are converted in it.
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
    unsigned types = AllTypes; ///< Attributes: the types that have the field, see typeBit().
    int minSize = 0;           ///< Bytes of a text in UTF-8, entries of a list.
    int maxSize = std::numeric_limits<int>::max();
};

constexpr unsigned typeBit(int type)
{
    return 1u << type;
}

/// Checks that `object` holds what the rules ask for and nothing else; only rules with the bit of `type`
/// count. Refuses the first field that is not as it should be and answers false then.
bool checkFields(const QJsonObject &object, const std::vector<FieldRule> &rules, int type, const Place &place,
                 Refusal &refusal);

/// Whether a value is a text that a definition can hold.
bool isPlainText(const QJsonValue &value);

} // namespace Zudunmaf::dml

#endif
