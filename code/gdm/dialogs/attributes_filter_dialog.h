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

/// Dialog in which a user picks attributes of the dictionary and puts a condition on each. The host runs it
/// and reads the conditions with getFiltersAsStringList() while the dialog exists.
///
/// A picked attribute stays on offer: two conditions on one attribute are two rows. No failure reaches the
/// user; a failed service is reported through gen__log_status_check() and leaves the lists as they were.
class GDM_EXPORT AttributesFilterDialog : public TvxAttributesSelectionDialog
{
    Q_OBJECT

public:
    /// The arguments are handed to the base unchanged; -1 lets the base choose the dictionary.
    explicit AttributesFilterDialog(int did = -1, QWidget *parent = nullptr,
                                    Qt::WindowFlags flags = Qt::WindowFlags());
    ~AttributesFilterDialog() override;

    /// A line for each attribute of the chosen list, in its order: "5 <= width <= 9", "finish = matt", or the
    /// label alone where no condition is set.
    QStringList getFiltersAsStringList() const;
    /// The conditions of the chosen list as values, in its order, as conditionOf() reads each. Unlike lines, they are
    /// exact and can be saved: see gdm/conditions/attr_documents.h.
    QList<AttrCondition> conditions() const;
    /// Adds conditions to the chosen list through `add`, which hands them to the host's base, and returns one result
    /// for each. Conditions that do not fit the dictionary any more are left out and stay the caller's. Call it before
    /// the dialog is shown, and after setDisplayUnits().
    QList<RestoreResult> restoreConditions(const QList<AttrCondition> &conditions, const AddToChosen &add);
    /// A new AttrFilterLWI without a definition, owned by the caller.
    DmlAttrLWI *createNewItem();

    void buildInitialLists() override;
    /// Shows the rows of the top view that the entity, the group and the filter text let through. The text is
    /// a wildcard pattern, matched anywhere in the label without regard to case.
    void filterAttributeList() override;
    void setupContextMenu() override;
    /// Stores the units code and rebuilds the top view under the selection and the text of this moment.
    /// Conditions stay in the units of their definitions.
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
