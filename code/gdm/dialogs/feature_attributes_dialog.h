#ifndef GDM_DIALOGS_FEATURE_ATTRIBUTES_DIALOG_H
#define GDM_DIALOGS_FEATURE_ATTRIBUTES_DIALOG_H

#include "gdm/conditions/attr_restoring.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

class QAction;
class QMenu;

namespace Zudunmaf
{

class DmlAttrLWI;

/// Dialog "Assign Attributes", in which a user chooses attributes that a board feature can carry and sets a value for
/// each. The host runs the dialog and reads assignments(), or the FeatureAttrLWI items of getChosenList(), before
/// deleting it.
///
/// The row of a chosen attribute is hidden in the available table until the attribute is removed. The user sees no
/// message about a failed service. It is reported with gen__log_status_check(), and the list that was being filled or
/// filtered is left unchanged.
class GDM_EXPORT FeatureAttributesDialog : public TvxAttributesSelectionDialog
{
    Q_OBJECT

public:
    /// Passes the arguments on to the base. With a `did` of -1, the base chooses the dictionary.
    explicit FeatureAttributesDialog(int did = -1, QWidget *parent = nullptr,
                                     Qt::WindowFlags flags = Qt::WindowFlags());
    ~FeatureAttributesDialog() override;

    /// Returns the values of the chosen attributes, in the order of the chosen table; see assignmentOf(). They are
    /// exact, in the units of the definitions, and can be saved; see gdm/conditions/attr_documents.h.
    QList<AttrAssignment> assignments() const;
    /// Adds the values to the chosen table through `add`, a function of the host's base, and returns one result for
    /// each. Leaves out values that no longer fit the dictionary, and a second value of an attribute. Call it after
    /// setDisplayUnits(), and before the dialog is shown.
    QList<RestoreResult> restoreAssignments(const QList<AttrAssignment> &assignments, const AddToChosen &add);
    /// Returns a new FeatureAttrLWI without a definition. The caller owns it.
    DmlAttrLWI *createNewItem();

    /// Fills all lists, with all entities and groups. Chosen attributes are visible in the available table until the
    /// next filterAttributeList().
    void buildInitialLists() override;
    /// Shows the rows of the available table that match the entity, the group and the filter text and are not chosen,
    /// and hides the others. The text is a wildcard pattern that matches anywhere in the label, case-insensitively.
    void filterAttributeList() override;
    void setupContextMenu() override;
    /// Sets the units code, and fills the available table with the current entity, group and filter text. Chosen items
    /// keep their units, and their attributes are visible in the available table until the next filterAttributeList().
    void setDisplayUnits(int units) override;
    /// Hides the row of the item, which is that of an added attribute in the available table. Does nothing for null, an
    /// item of another class, or one without a row there.
    void addButtonClickedCB(QTableWidgetItem *item) override;
    /// Shows the available table's row for the attribute of the item, a chosen one, even if the criteria do not match
    /// it. Does nothing for null, an item of another class, or one whose attribute has no row there.
    void removeButtonClickedCB(QTableWidgetItem *item) override;

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
