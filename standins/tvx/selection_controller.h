#ifndef TVX_SELECTION_CONTROLLER_H
#define TVX_SELECTION_CONTROLLER_H

#include "tvx/dialog_status.h"
#include "tvx/filter_criteria.h"
#include "tvx/selection_widgets.h"

#include <QObject>

class QTableWidgetItem;
class TvxAttributesSelectionDialog;

namespace Zudunmaf
{
namespace tvx
{

class ChangeHistory;
class EmptyTableGuide;
class EscapeGuard;
class RowMover;

/// Connects the parts of the base dialog, and runs the dialog's virtual functions when the criteria change. Owned by
/// the dialog, and deleted before its widgets, because it is the receiver of their signals.
///
/// Calls filterAttributeList(), and setDisplayUnits() or buildInitialLists() if a fill failed or left attributes out.
/// The two hooks are called by RowMover.
class SelectionController : public QObject
{
    Q_OBJECT

public:
    /// `did` is the dictionary; -1 means that of the selected entity row. The dialog becomes the parent.
    SelectionController(int did, TvxAttributesSelectionDialog *dialog);
    ~SelectionController() override;

    /// Connects the widgets. A second call does nothing.
    void connectWidgets();

    const SelectionWidgets &widgets() const { return m_widgets; }
    const FilterCriteria &criteria() const { return m_criteria; }
    FilterCriteria &criteria() { return m_criteria; }
    RowMover &mover() { return *m_mover; }

    int displayUnits() const { return m_displayUnits; }
    /// Stores the code. Commits an open editor first: its value is in the old units.
    void setDisplayUnits(int units);
    /// Fills the available table with clones of the items.
    void fillAvailable(const QList<QTableWidgetItem *> &items);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectCriteria();
    void connectButtons();
    void connectTables();
    void connectHistory();
    void connectShortcuts();
    void acceptDialog();
    void applyCriteria();
    void refill();
    void fitNameColumns();
    void fitToFont();
    void refresh();

    TvxAttributesSelectionDialog *m_dialog;
    SelectionWidgets m_widgets;
    FilterCriteria m_criteria;
    ChangeHistory *m_history;
    RowMover *m_mover;
    EmptyTableGuide *m_guide;
    EscapeGuard *m_escapeGuard;
    DialogStatus m_status;
    int m_displayUnits = -1;
    int m_nameWidth = 0;
    bool m_isConnected = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
