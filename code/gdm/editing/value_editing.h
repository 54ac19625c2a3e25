#ifndef GDM_EDITING_VALUE_EDITING_H
#define GDM_EDITING_VALUE_EDITING_H

class QTableWidgetItem;
class QWidget;
struct DmlAttrDef;

namespace Zudunmaf
{

class FeatureAttrLWI;

/// Creates the editor of a value: a line edit, a combo box or a spin box, by type. A text with choices has a combo box.
/// Returns null if the type has no editor.
QWidget *newValueEditor(const DmlAttrDef &definition, QWidget *parent);

/// Sets the editor from the item's value, a float in the item's display units. Sets limits before the value, because a
/// spin box clamps its value to its limits. Does nothing if the item has no value.
void loadValue(FeatureAttrLWI &item, const DmlAttrDef &definition, QWidget *editor);

/// Stores the editor's content as the item's value, a float in the units of the definition. Does nothing for a combo
/// box that has no current entry and is not editable.
void storeValue(FeatureAttrLWI &item, const DmlAttrDef &definition, QWidget *editor);

/// Sets the value of the item to the default of its definition. Does nothing if the item is no FeatureAttrLWI, has no
/// definition or is of an unknown type.
void setDefaultValue(QTableWidgetItem *item);

} // namespace Zudunmaf

#endif
