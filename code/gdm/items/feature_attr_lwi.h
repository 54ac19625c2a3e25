#ifndef GDM_ITEMS_FEATURE_ATTR_LWI_H
#define GDM_ITEMS_FEATURE_ATTR_LWI_H

#include "gdm/items/dml_attr_lwi.h"

struct DmlAttrDef;

namespace Zudunmaf
{

/// Item of FeatureAttributesDialog: one attribute with the value assigned to it. Column 0 shows the
/// attribute, column 1 its value in the display units.
///
/// The value lies in attrValue() itself, by type: a bool, a QString (also for an option, whose text it is and
/// never its index), an int, or a double in the units of the definition. A float that was read from a text
/// with a unit is held as a 32-bit float.
class GDM_EXPORT FeatureAttrLWI : public DmlAttrLWI
{
public:
    /// An editable, selectable and enabled item without a definition or value.
    FeatureAttrLWI();
    /// Copies share the definition and have a value of their own.
    FeatureAttrLWI(const FeatureAttrLWI &other);
    /// Takes what a copy would take.
    FeatureAttrLWI &operator=(const FeatureAttrLWI &other);
    ~FeatureAttrLWI() override;

    /// A new item with the same attribute, value, label and display units, owned by the caller. It shows its
    /// value at all times, whatever this item does.
    QTableWidgetItem *clone() const override;
    /// Answers the label or the value for Qt::DisplayRole, a description of the attribute in several lines
    /// for Qt::ToolTipRole, and DmlAttrNameRole to DmlAttrDefRole. DmlAttrValueRole gives the value unless it
    /// is null. Whatever it has no answer for, as every role without a definition, is answered as by a plain
    /// QTableWidgetItem.
    QVariant data(int role) const override;

    /// Takes the definition and sets the value to its default. A null definition, or one of an unknown type,
    /// leaves the value as it was.
    void setDmlAttribute(QVariant dmlAttribute) override;
    /// Takes the value as it is: it is neither converted nor compared with the limits.
    void setAttrValue(QVariant attrValue) override;
    /// The text of the cell.
    QString toString() const override;
    /// The value as the user reads it, in the display units and with three decimals for a float; empty for a
    /// boolean and where there is no value.
    QString valueAsString() const override;
    /// Takes the value from a text as valueAsString() writes it. A text or an option takes it unchanged, and
    /// an option's is not looked up. A float may be a number, a blank and a unit; a lone number is in the
    /// units of the definition. A text that is no number, or has more than two words, gives 0 in place of the
    /// old value. No limits are applied. A boolean is left alone, and so is an item without a definition.
    void setValueFromString(const QString &text) override;

private:
    QString cellText(const DmlAttrDef &definition) const;
    QString floatAsString(const DmlAttrDef &definition) const;
    static QVariant floatFromString(const DmlAttrDef &definition, const QString &text);
};

} // namespace Zudunmaf

#endif
