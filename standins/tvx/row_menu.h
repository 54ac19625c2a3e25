#ifndef TVX_ROW_MENU_H
#define TVX_ROW_MENU_H

#include <QObject>
#include <QPointer>

class QAction;
class QMenu;
class QPoint;
class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

class ChosenTable;

/// Opens the context menu of the chosen table. Owned by the table. The menu and what its actions do are the host's.
class RowMenu : public QObject
{
    Q_OBJECT

public:
    explicit RowMenu(ChosenTable *table);

    /// Sets the menu, which stays the caller's. Null for none.
    void setMenu(QMenu *menu);
    /// Opens the menu for the clicked row, or for the selected ones if it is one of them. Commits an open editor first.
    /// Does nothing if there is no row at this position.
    void openAt(const QPoint &globalPosition);
    /// Opens the menu below the current row, so that its value remains visible. Does nothing without a current row.
    void openAtCurrentRow();
    /// Returns the value items on which the menu acts: those of the selected rows, in row order; that of the current
    /// row if none is selected.
    QList<QTableWidgetItem *> items() const;

Q_SIGNALS:
    /// Emitted before an action of the menu runs, if setMenu() was called before the slot of the action was connected.
    void aboutToRun(const QAction *action);
    /// Emitted after an action of the menu has run.
    void triggered();

private:
    void open(int row, const QPoint &globalPosition);

    ChosenTable *m_table;
    QPointer<QMenu> m_menu;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
