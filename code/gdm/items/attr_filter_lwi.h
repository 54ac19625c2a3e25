#ifndef GDM_ITEMS_ATTR_FILTER_LWI_H
#define GDM_ITEMS_ATTR_FILTER_LWI_H

#include "gdm/items/dml_attr_lwi.h"

struct DmlAttrDef;
struct DmlAttrValue;

namespace Zudunmaf
{

/// Item of AttributesFilterDialog: one attribute with one condition. Column 0 shows the attribute, column 1
/// the condition, and DmlAttrFilterTextRole gives both as the line that the host gets: "5 <= width <= 9".
///
/// The condition lives in a DmlAttrValue that the item owns from construction to destruction. attrValue()
/// points to it, and whoever writes there changes the condition in place. Bounds are in the units of the
/// definition.
class GDM_EXPORT AttrFilterLWI : public DmlAttrLWI
{
public:
    /// An editable item without a definition, whose condition is not set. Its record comes from
    /// gen__mem_malloc() and goes back with the item.
    AttrFilterLWI();
    /// The copy has a record of its own with the same condition.
    AttrFilterLWI(const AttrFilterLWI &other);
    /// Copies the condition into the record that this item already has. Assigning through a reference to
    /// DmlAttrLWI does the same; from an item without a record, it leaves what setDmlAttribute() leaves.
    AttrFilterLWI &operator=(const AttrFilterLWI &other);
    ~AttrFilterLWI() override;

    /// A new item with the same condition in a record of its own, owned by the caller. It shows its condition
    /// at all times and has no display units, whatever this item has.
    QTableWidgetItem *clone() const override;
    /// Answers the label or the condition for Qt::DisplayRole, the prompt for Qt::ToolTipRole where the label
    /// is the name, and DmlAttrNameRole to DmlAttrFilterTextRole. DmlAttrValueRole gives true, a QString, a
    /// QPoint or a QPointF by type while the condition is set. Whatever it has no answer for, as every role
    /// without a definition, is answered as by a plain QTableWidgetItem.
    QVariant data(int role) const override;

    /// Takes the definition and wipes the condition: it is not set then, and its bounds span the whole range.
    /// A null variant, or one with a null pointer, clears the definition and leaves the condition.
    void setDmlAttribute(QVariant dmlAttribute) override;
    /// Copies the DmlAttrValue that the argument points to into the item's own record; a null one is ignored.
    /// The type is copied with the rest and compared with nothing.
    void setAttrValue(QVariant attrValue) override;
    /// The text of DmlAttrFilterTextRole.
    QString toString() const override;
    /// A null string: a condition has no value text.
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
