#ifndef GDM_ITEMS_ATTR_FILTER_LWI_H
#define GDM_ITEMS_ATTR_FILTER_LWI_H

#include "gdm/items/dml_attr_lwi.h"

struct DmlAttrDef;
struct DmlAttrValue;

namespace Zudunmaf
{

/// Item of AttributesFilterDialog with one attribute and one condition. Column 0 shows the label, column 1 the
/// condition. DmlAttrFilterTextRole returns both as the line that the host gets: "5 <= width <= 9".
///
/// The item owns a DmlAttrValue with the condition, from construction to destruction. attrValue() points to this
/// record; writing to the record changes the condition. Bounds are in the units of the definition.
class GDM_EXPORT AttrFilterLWI : public DmlAttrLWI
{
public:
    /// Constructs an editable item without a definition, whose condition is not set. The record is allocated with
    /// gen__mem_malloc(), and freed by the destructor with gen__mem_free().
    AttrFilterLWI();
    /// Constructs a copy with a record of its own.
    AttrFilterLWI(const AttrFilterLWI &other);
    /// Copies the condition into the record of this item. Assigning through a reference to DmlAttrLWI does the same. If
    /// the other item has no record, the condition is that of setDmlAttribute().
    AttrFilterLWI &operator=(const AttrFilterLWI &other);
    ~AttrFilterLWI() override;

    /// Returns a new item with the same condition in a record of its own. The caller owns it. The new item always shows
    /// its condition and has no display units, whatever the settings of this item are.
    QTableWidgetItem *clone() const override;
    /// Returns the label or the condition for Qt::DisplayRole, the prompt for Qt::ToolTipRole if the label is the name,
    /// and the data of DmlAttrNameRole to DmlAttrFilterTextRole. If the condition is set, DmlAttrValueRole returns
    /// true, a QString, a QPoint or a QPointF, by type. Returns QTableWidgetItem::data() for everything else, and for
    /// all roles without a definition.
    QVariant data(int role) const override;

    /// Sets the definition and clears the condition: it is not set, and its bounds are the limits of the definition. A
    /// null variant, or one with a null pointer, clears the definition and leaves the condition unchanged.
    void setDmlAttribute(QVariant dmlAttribute) override;
    /// Copies the DmlAttrValue that the variant points to into the record of this item. Ignores a null variant or
    /// pointer. The type is copied too and not checked against the definition.
    void setAttrValue(QVariant attrValue) override;
    /// Returns the text of DmlAttrFilterTextRole: the result line while the item shows its condition, because it always
    /// does or is selected; otherwise an empty string.
    QString toString() const override;
    /// Returns a null string: a condition has no value.
    QString valueAsString() const override;
    /// Does nothing.
    void setValueFromString(const QString &text) override;

private:
    explicit AttrFilterLWI(const DmlAttrValue &condition);
    void takeRecord(const DmlAttrValue &condition);
    DmlAttrValue *record() const;
    bool isShown() const;
    QVariant conditionValue(const DmlAttrDef &definition) const;
    QString cellText(const DmlAttrDef &definition) const;
    QString filterLine(const DmlAttrDef &definition) const;
};

} // namespace Zudunmaf

#endif
