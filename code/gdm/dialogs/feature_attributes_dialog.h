#ifndef GDM_DIALOGS_FEATURE_ATTRIBUTES_DIALOG_H
#define GDM_DIALOGS_FEATURE_ATTRIBUTES_DIALOG_H

#include "gdm/conditions/attr_restoring.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

class QAction;
class QMenu;

namespace Zudunmaf
{

class DmlAttrLWI;

/// Dialog "Assign Attributes", in which a user picks attributes that a board feature can carry and gives each
/// a value. The host reads the FeatureAttrLWI items of getChosenList() while the dialog exists.
///
/// A picked attribute leaves the offer until it is removed again. No failure reaches the user; a failed
/// service is reported through gen__log_status_check() and leaves the lists as they were.
class GDM_EXPORT FeatureAttributesDialog : public TvxAttributesSelectionDialog
{
    Q_OBJECT

public:
    /// The arguments are handed to the base unchanged; -1 lets the base choose the dictionary.
    explicit FeatureAttributesDialog(int did = -1, QWidget *parent = nullptr,
                                     Qt::WindowFlags flags = Qt::WindowFlags());
    ~FeatureAttributesDialog() override;

    /// The values of the chosen list, in its order, as assignmentOf() reads each: exact, and in the units of the
    /// definitions. They can be saved: see gdm/conditions/attr_documents.h.
    QList<AttrAssignment> assignments() const;
    /// Adds values to the chosen list through `add`, which hands them to the host's base, and returns one result for
    /// each. Values that do not fit the dictionary any more, or a second one of an attribute, are left out and stay the
    /// caller's. Call it before the dialog is shown, and after setDisplayUnits().
    QList<RestoreResult> restoreAssignments(const QList<AttrAssignment> &assignments, const AddToChosen &add);
    /// A new FeatureAttrLWI without a definition, owned by the caller.
    DmlAttrLWI *createNewItem();

    void buildInitialLists() override;
    /// Shows the rows of the top view that the entity, the group and the filter text let through and that are
    /// not chosen. The text is a wildcard pattern, matched anywhere in the label without regard to case.
    void filterAttributeList() override;
    void setupContextMenu() override;
    /// Stores the units code and rebuilds the top view under the selection and the text of this moment. The
    /// chosen items keep theirs, and their attributes are on offer again until the next
    /// filterAttributeList().
    void setDisplayUnits(int units) override;
    /// Hides the row of the item, an attribute of the top view that was taken over.
    void addButtonClickedCB(QTableWidgetItem *item) override;
    /// Shows the row of the attribute that the item of the chosen list stands for, whatever the filter says.
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
