#ifndef GDM_ITEMS_DML_ATTR_LWI_H
#define GDM_ITEMS_DML_ATTR_LWI_H

#include "gdm/host/gdm_export.h"

#include <QString>
#include <QTableWidgetItem>
#include <QVariant>

namespace Zudunmaf
{

/// Table item with one dictionary attribute and a condition or a value. The base class of AttrFilterLWI and
/// FeatureAttrLWI; by itself it only stores what is set.
///
/// An item points to its definition and does not own it: the definition must outlive the item. Call setDmlAttribute()
/// first, and setAttrValue() after it. Settings take effect at the next data(); the table is not notified.
class GDM_EXPORT DmlAttrLWI : public QTableWidgetItem
{
public:
    /// The kinds of item; see itemType().
    enum ItemType_Enum {
        ItemType_None = 0,       ///< A plain DmlAttrLWI.
        ItemType_AttrFilter = 1, ///< An AttrFilterLWI.
        ItemType_FeatureAttr = 2 ///< A FeatureAttrLWI.
    };

    /// Constructs an item without definition and value. It is labelled by name, shows its value only while selected,
    /// and has no display units. QTableWidgetItem::type() is UserType for all kinds of item, and 0 for an
    /// item made by a copy constructor; use itemType().
    explicit DmlAttrLWI(ItemType_Enum itemType = ItemType_None);
    /// Copies the item with its settings. The variants are copied: a DmlAttrLWI that is constructed from an
    /// AttrFilterLWI points to that item's record, does not own it, and must not be asked for it after that item is
    /// deleted.
    DmlAttrLWI(const DmlAttrLWI &other);
    /// Assigns what the copy constructor copies. Definition and value go through the virtual setters, so an
    /// AttrFilterLWI keeps its own record even if it is assigned to through a reference to this class.
    DmlAttrLWI &operator=(const DmlAttrLWI &other);
    ~DmlAttrLWI() override;

    /// Returns a new item of the same kind with the same attribute, value and display settings. The caller owns it.
    /// Flags and data of the QTableWidgetItem are those of a new item.
    QTableWidgetItem *clone() const override;
    /// Returns QTableWidgetItem::data() for all roles.
    QVariant data(int role) const override;

    /// Sets the definition: a variant of metatype VoidStar with a pointer to a DmlAttrDef. A null variant clears it.
    virtual void setDmlAttribute(QVariant dmlAttribute);
    /// Sets the condition or the value. Subclasses define what the variant holds.
    virtual void setAttrValue(QVariant attrValue);
    /// Returns the item as one line of text; a null string in this class.
    virtual QString toString() const;
    /// Returns the value as text; a null string in this class.
    virtual QString valueAsString() const;
    /// Sets the value from a text; does nothing in this class.
    virtual void setValueFromString(const QString &text);

    /// Returns a variant of metatype VoidStar with a pointer to the DmlAttrDef; invalid before the first
    /// setDmlAttribute().
    QVariant dmlAttribute() const;
    /// Returns the condition or the value; see the subclasses. In this class, invalid before the first setAttrValue().
    QVariant attrValue() const;
    /// Returns true if the label is the prompt of the definition, false if it is the name.
    bool displayPrompt() const;
    /// Returns true if the value is always shown, false if only while the item is selected.
    bool displayValue();
    /// Returns the code of the units in which values are shown; -1 if they are shown as stored.
    int displayUnits();
    /// Returns the kind of the item.
    ItemType_Enum itemType();
    /// Returns the type code of the definition; 0, the code of a boolean, without a definition.
    int getDmlAttrType();

    /// Sets whether the label is the prompt or the name.
    void setDisplayPrompt(bool displayPrompt);
    /// Sets whether the value is always shown.
    void setDisplayValue(bool displayValue);
    /// Sets the units code. Every code is accepted and passed on to the host's services unchanged.
    void setDisplayUnits(int displayUnits);

protected:
    QVariant m_dmlAttribute;  ///< See dmlAttribute().
    QVariant m_attrValue;     ///< See attrValue().
    bool m_displayPrompt;     ///< See displayPrompt().
    bool m_displayValue;      ///< See displayValue().
    int m_displayUnits;       ///< See displayUnits().
    ItemType_Enum m_itemType; ///< See itemType().
};

} // namespace Zudunmaf

#endif
