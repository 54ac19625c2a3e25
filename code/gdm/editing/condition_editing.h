#ifndef GDM_EDITING_CONDITION_EDITING_H
#define GDM_EDITING_CONDITION_EDITING_H

class QTableWidgetItem;
class QWidget;
struct DmlAttrDef;

namespace Zudunmaf
{

class AttrFilterLWI;

/// The editor of a condition: a line edit, a combo box or a range editor by type; null where there is none.
QWidget *newConditionEditor(const DmlAttrDef &definition, QWidget *parent);

/// Fills the editor from the item's record, limits before bounds, whether the condition is set or not.
void loadCondition(AttrFilterLWI &item, const DmlAttrDef &definition, QWidget *editor);

/// Writes what the editor shows into the item's record, bounds in ascending order. An empty text, or an
/// option without a current entry, leaves the condition not set. No units play a part: bounds are in those of
/// the definition.
void storeCondition(AttrFilterLWI &item, const DmlAttrDef &definition, QWidget *editor);

/// Primes the condition of the item, which must be a DmlAttrLWI. Does nothing without a definition or a record.
void clearCondition(QTableWidgetItem *item);

} // namespace Zudunmaf

#endif
