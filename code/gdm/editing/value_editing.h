#ifndef GDM_EDITING_VALUE_EDITING_H
#define GDM_EDITING_VALUE_EDITING_H

class QTableWidgetItem;
class QWidget;
struct DmlAttrDef;

namespace Zudunmaf
{

class FeatureAttrLWI;

/// The editor of a value: a line edit, a combo box or a spin box by type; null where there is none. A text
/// that has choices gets a combo box.
QWidget *newValueEditor(const DmlAttrDef &definition, QWidget *parent);

/// Fills the editor from the item's value, limits before the value; leaves it alone where the item has none.
/// A float is shown in the item's display units.
void loadValue(FeatureAttrLWI &item, const DmlAttrDef &definition, QWidget *editor);

/// Gives what the editor shows to the item, a float in the units of the definition. A combo box that has
/// neither a current entry nor a line to type in leaves the item's value as it was.
void storeValue(FeatureAttrLWI &item, const DmlAttrDef &definition, QWidget *editor);

/// Sets the value of the item to the default of its definition. Does nothing if the item is no FeatureAttrLWI, has no
/// definition or is of an unknown type.
void setDefaultValue(QTableWidgetItem *item);

} // namespace Zudunmaf

#endif
