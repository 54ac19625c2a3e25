#ifndef GDM_ITEMS_FEATURE_ATTR_LWI_H
#define GDM_ITEMS_FEATURE_ATTR_LWI_H

#include "gdm/items/dml_attr_lwi.h"

struct DmlAttrDef;

namespace Zudunmaf
{

/// Item of FeatureAttributesDialog with one attribute and its value. Column 0 shows the label, column 1 the value in
/// the display units.
///
/// attrValue() holds the value, by type: a bool, a QString (for an option the text of the entry, never its index), an
/// int, or a double in the units of the definition. A float that was read from a text with a unit is a 32-bit float.
class GDM_EXPORT FeatureAttrLWI : public DmlAttrLWI
{
public:
    /// Constructs an editable, selectable and enabled item without definition and value.
    FeatureAttrLWI();
    /// Constructs a copy with a value of its own; the definition is shared.
    FeatureAttrLWI(const FeatureAttrLWI &other);
    /// Assigns what the copy constructor copies.
    FeatureAttrLWI &operator=(const FeatureAttrLWI &other);
    ~FeatureAttrLWI() override;

    /// Returns a new item with the same attribute, value, label and display units. The caller owns it. The new item
    /// always shows its value, whatever the setting of this item is.
    QTableWidgetItem *clone() const override;
    /// Returns the label or the value for Qt::DisplayRole, a description of the attribute in several lines for
    /// Qt::ToolTipRole, and the data of DmlAttrNameRole to DmlAttrDefRole. DmlAttrValueRole returns the value unless it
    /// is null. Returns QTableWidgetItem::data() for everything else, and for all roles without a definition.
    QVariant data(int role) const override;

    /// Sets the definition, and the value to its default: a null string for a text without a default, an empty one for
    /// an option without a valid default. If the definition is null or of an unknown type, the value is left unchanged.
    void setDmlAttribute(QVariant dmlAttribute) override;
    /// Sets the value. It is neither converted nor checked against the limits.
    void setAttrValue(QVariant attrValue) override;
    /// Returns the text of the cell.
    QString toString() const override;
    /// Returns the value as the cell shows it, a float in the display units and with three decimals. Empty for a
    /// boolean and if there is no value.
    QString valueAsString() const override;
    /// Sets the value from a text that valueAsString() can have returned. A text or an option is set to the text as it
    /// is; an option is not searched for an entry. An integer is decimal digits, with or without a sign. A float is a
    /// number, or, if the definition has units, a number, a blank and a unit; a number alone is in the units of the
    /// definition, and so is one with a unit that the services cannot convert to them. Any other text, and an integer
    /// beyond the range of int, sets the value to 0. Limits are not checked. Does nothing for a boolean, and without a
    /// definition.
    void setValueFromString(const QString &text) override;

private:
    QString cellText(const DmlAttrDef &definition) const;
    QString floatAsString(const DmlAttrDef &definition) const;
    static QVariant floatFromString(const DmlAttrDef &definition, const QString &text);
};

} // namespace Zudunmaf

#endif
