#ifndef GDM_DIALOGS_ATTRIBUTES_FILTER_DIALOG_H
#define GDM_DIALOGS_ATTRIBUTES_FILTER_DIALOG_H

#include "gdm/conditions/attr_restoring.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <QStringList>

class QAction;
class QMenu;

namespace Zudunmaf
{

class DmlAttrLWI;

/// Dialog in which a user chooses attributes of the dictionary and sets a condition on each. The host runs the dialog
/// and reads conditions() or getFiltersAsStringList() before deleting it.
///
/// A chosen attribute remains available: two conditions on one attribute are two rows. The user sees no message about a
/// failed service. It is reported with gen__log_status_check(), and the list that was being filled or filtered is left
/// unchanged.
class GDM_EXPORT AttributesFilterDialog : public TvxAttributesSelectionDialog
{
    Q_OBJECT

public:
    /// Passes the arguments on to the base. With a `did` of -1, the base chooses the dictionary.
    explicit AttributesFilterDialog(int did = -1, QWidget *parent = nullptr,
                                    Qt::WindowFlags flags = Qt::WindowFlags());
    ~AttributesFilterDialog() override;

    /// Returns a line for each chosen attribute, in the order of the chosen table: "5 <= width <= 9", "finish = matt",
    /// or the label alone if no condition is set. The line of an attribute of an unknown type is empty. Items of
    /// another class have no line.
    QStringList getFiltersAsStringList() const;
    /// Returns the conditions of the chosen attributes, in the order of the chosen table; see conditionOf(). Unlike
    /// lines, they are exact and can be saved; see gdm/conditions/attr_documents.h.
    QList<AttrCondition> conditions() const;
    /// Adds the conditions to the chosen table through `add`, a function of the host's base, and returns one result for
    /// each. Leaves out conditions that no longer fit the dictionary. Call it after setDisplayUnits(), and before the
    /// dialog is shown.
    QList<RestoreResult> restoreConditions(const QList<AttrCondition> &conditions, const AddToChosen &add);
    /// Returns a new AttrFilterLWI without a definition. The caller owns it.
    DmlAttrLWI *createNewItem();

    /// Fills all lists, with all entities and groups.
    void buildInitialLists() override;
    /// Shows the rows of the available table that match the entity, the group and the filter text, and hides the
    /// others. The text is a wildcard pattern that matches anywhere in the label, case-insensitively.
    void filterAttributeList() override;
    void setupContextMenu() override;
    /// Sets the units code, and fills the available table with the current entity, group and filter text. Conditions
    /// remain in the units of their definitions.
    void setDisplayUnits(int units) override;

private Q_SLOTS:
    void contextMenu_triggered(QAction *action);

private:
    void fillEntityList();
    void fillGroupsList();
    void fillAttributeList();

    QMenu *contextMenu;
};

} // namespace Zudunmaf

#endif
