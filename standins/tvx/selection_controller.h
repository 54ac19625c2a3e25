#ifndef TVX_SELECTION_CONTROLLER_H
#define TVX_SELECTION_CONTROLLER_H

#include "tvx/dialog_status.h"
#include "tvx/filter_criteria.h"
#include "tvx/selection_widgets.h"

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QMenu;
class QPoint;
class QTableWidgetItem;
class TvxAttributesSelectionDialog;

namespace Zudunmaf
{
namespace tvx
{

class RowMover;

/// All that the base dialog holds and does, behind its declaration. It is the receiver of every connection
/// and goes before the dialog's widgets do, so that nothing reaches a dialog that is half gone.
///
/// Calls these virtual operations of the dialog: filterAttributeList(), the two hooks, and, where a fill has failed or
/// left rows out, setDisplayUnits() or buildInitialLists().
class SelectionController : public QObject
{
    Q_OBJECT

public:
    /// `did` is the dictionary; -1 leaves it to the selected entity row. The dialog becomes the parent.
    SelectionController(int did, TvxAttributesSelectionDialog *dialog);
    ~SelectionController() override;

    /// Connects the widgets to their reactions; a second call does nothing.
    void connectWidgets();

    const SelectionWidgets &widgets() const { return m_widgets; }
    const FilterCriteria &criteria() const { return m_criteria; }
    FilterCriteria &criteria() { return m_criteria; }
    RowMover &mover() { return *m_mover; }

    int displayUnits() const { return m_displayUnits; }
    /// An open edit is ended and stored first: its number stands in the units of before.
    void setDisplayUnits(int units);

    void fillTopView(const QList<QTableWidgetItem *> &items);
    void setContextMenu(QMenu *menu);
    /// The value items of the selected chosen rows, in row order; that of the current row if none is
    /// selected.
    QList<QTableWidgetItem *> contextMenuItems() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectCriteria();
    void connectButtons();
    void connectTables();
    void connectShortcuts();
    void acceptDialog();
    void rejectDialog();
    void applyCriteria();
    void refill();
    void fitNameColumns();
    void showContextMenu(const QPoint &globalPosition);
    bool filterKey(QKeyEvent *event);
    void refresh();

    TvxAttributesSelectionDialog *m_dialog;
    SelectionWidgets m_widgets;
    FilterCriteria m_criteria;
    RowMover *m_mover;
    DialogStatus m_status;
    QPointer<QMenu> m_contextMenu;
    int m_displayUnits = -1;
    bool m_isConnected = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
