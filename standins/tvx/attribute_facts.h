#ifndef TVX_ATTRIBUTE_FACTS_H
#define TVX_ATTRIBUTE_FACTS_H

#include <QStringList>

class QTableWidgetItem;
struct DmlAttrDef;

namespace Zudunmaf
{
namespace tvx
{

/// What is said of an attribute, from its definition: what it takes, its type, limits, entries and default.
///
/// The numbers of a condition are in the units of the definition, those of a value in the units of its cell. They are
/// rounded as in cells, without trailing zeros. Without a definition all texts are empty. The definition must outlive
/// the object.
class AttributeFacts
{
public:
    /// `item` is the value item of the row. `displayUnits` are the units of a value whose cell is empty; -1 for those
    /// of the definition.
    AttributeFacts(const QTableWidgetItem &item, int displayUnits);

    /// Returns what can be entered, such as "1 to 100", "0 to 6.5 mm" or "matt, gloss, satin, 9 more".
    QString taken() const;
    /// Returns the prompt, the name and the group. Leaves out what is empty or said already.
    QStringList title() const;
    /// Returns the type, the limits, the default and the entries. Leaves out what is empty.
    QStringList facts() const;
    /// Returns the type and the default.
    QStringList factsWithoutLimits() const;
    /// Returns the limits of a number with the units; empty if it has none.
    QString limits() const;
    /// Returns the units of the numbers; empty if there are none.
    QString units() const;

private:
    QString withUnits(const QString &number) const;
    QString typeText() const;
    QString defaultText() const;
    QStringList entries() const;
    bool isUnlimited() const;
    QString written(double number) const;

    const DmlAttrDef *m_definition;
    int m_units;
};

/// Returns a number as in limits and defaults: at most `decimals` decimals, without trailing zeros. From 1e10 on, with
/// an exponent.
QString shortNumber(double number, int decimals);
/// Returns what separates the parts of a description.
QString factSeparator();
/// Joins entries by commas. The others, if there are `count` in all, are "3 more" at the end.
QString listed(const QStringList &first, int count);
/// Joins parts of a description; leaves out empty ones.
QString joinedFacts(QStringList parts);

} // namespace tvx
} // namespace Zudunmaf

#endif
