#ifndef GDM_EDITING_CONDITION_EDITING_H
#define GDM_EDITING_CONDITION_EDITING_H

class QTableWidgetItem;
class QWidget;
struct DmlAttrDef;

namespace Zudunmaf
{

class AttrFilterLWI;

/// Creates the editor of a condition: a line edit, a combo box or a range editor, by type. Returns null if the type has
/// no editor.
QWidget *newConditionEditor(const DmlAttrDef &definition, QWidget *parent);

/// Sets the editor from the item's record, even if the condition is not set. Sets limits before bounds, because a spin
/// box clamps its value to its limits.
void loadCondition(AttrFilterLWI &item, const DmlAttrDef &definition, QWidget *editor);

/// Stores the editor's content in the item's record, bounds in ascending order and in the units of the definition. With
/// an empty text, or an option without a current entry, the condition is not set.
void storeCondition(AttrFilterLWI &item, const DmlAttrDef &definition, QWidget *editor);

/// Primes the condition of the item, which must be a DmlAttrLWI. Does nothing without a definition or a record.
void clearCondition(QTableWidgetItem *item);

} // namespace Zudunmaf

#endif
