#ifndef GDM_ITEMS_DML_ATTR_LWI_H
#define GDM_ITEMS_DML_ATTR_LWI_H

#include "gdm/host/gdm_export.h"

#include <QString>
#include <QTableWidgetItem>
#include <QVariant>

namespace Zudunmaf
{

/// Table item that binds one dictionary attribute to a condition or a value. The common base of AttrFilterLWI
/// and FeatureAttrLWI, which do the work; by itself it only keeps what it is given.
///
/// An item refers to its definition by pointer and owns no part of it: the definition must outlive the item.
/// It is useful once setDmlAttribute() has been called, and setAttrValue() comes after that. The display
/// settings take effect at the next data(); nothing here notifies the table.
class GDM_EXPORT DmlAttrLWI : public QTableWidgetItem
{
public:
    /// The kinds of item, see itemType().
    enum ItemType_Enum {
        ItemType_None = 0,       ///< A DmlAttrLWI and no more.
        ItemType_AttrFilter = 1, ///< An AttrFilterLWI.
        ItemType_FeatureAttr = 2 ///< A FeatureAttrLWI.
    };

    /// An item without a definition or value, labelled by name, with its value shown while it is selected and
    /// no display units. Its QTableWidgetItem type is UserType, as for all items here: itemType() tells the
    /// kinds apart.
    explicit DmlAttrLWI(ItemType_Enum itemType = ItemType_None);
    /// Copies the item with its settings. Variants are copied, so a copy of an AttrFilterLWI in this class
    /// points to the other item's record, does not own it, and must not use it once that item is gone.
    DmlAttrLWI(const DmlAttrLWI &other);
    /// Assigns what the copy constructor copies, the definition and the value through the virtual setters: an
    /// AttrFilterLWI on the left keeps its own record, also through a reference to this class.
    DmlAttrLWI &operator=(const DmlAttrLWI &other);
    ~DmlAttrLWI() override;

    /// A new item of the same kind with the same attribute, value and display settings, owned by the caller.
    /// Flags and data given to the QTableWidgetItem are those of a new item.
    QTableWidgetItem *clone() const override;
    /// Every role is answered as by a plain QTableWidgetItem.
    QVariant data(int role) const override;

    /// Takes the definition, a variant of metatype VoidStar that points to a DmlAttrDef; a null one clears
    /// it.
    virtual void setDmlAttribute(QVariant dmlAttribute);
    /// Takes the condition or the value; what the variant holds is the subclass's business.
    virtual void setAttrValue(QVariant attrValue);
    /// The item as one line of text; a null string here.
    virtual QString toString() const;
    /// The value in its text form; a null string here.
    virtual QString valueAsString() const;
    /// Takes the value from its text form; does nothing here.
    virtual void setValueFromString(const QString &text);

    /// A variant of metatype VoidStar that points to the DmlAttrDef; invalid before the first
    /// setDmlAttribute().
    QVariant dmlAttribute() const;
    /// The condition or the value, as the subclass holds it; invalid before the first setAttrValue() here.
    QVariant attrValue() const;
    /// True: the item is labelled with the definition's prompt. False: with its name.
    bool displayPrompt() const;
    /// True: the value is shown at all times. False: only while the item is selected.
    bool displayValue();
    /// Code of the units in which values are shown; -1 means as they are stored.
    int displayUnits();
    /// Which kind of item this is.
    ItemType_Enum itemType();
    /// The type code of the definition; 0, the code of a boolean, for an item without a definition.
    int getDmlAttrType();

    /// Sets what displayPrompt() tells.
    void setDisplayPrompt(bool displayPrompt);
    /// Sets what displayValue() tells.
    void setDisplayValue(bool displayValue);
    /// Sets the units code. Any code is kept as it is given and passed on to the host's services.
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
