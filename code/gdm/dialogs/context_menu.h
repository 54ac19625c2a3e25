#ifndef GDM_DIALOGS_CONTEXT_MENU_H
#define GDM_DIALOGS_CONTEXT_MENU_H

#include "gdm/dialogs/dialog_kind.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/host_text.h"

#include <QAction>
#include <QMenu>

// The context menu of both dialogs. Internal: not installed.
namespace Zudunmaf
{

/// The data of the menu's actions.
enum MenuAction { MenuEdit = 1, MenuReset = 2 };

/// Creates the context menu as a child of the dialog, passes it to the base and connects it to the dialog's slot.
inline QMenu *installContextMenu(TvxAttributesSelectionDialog *dialog, const DialogKind &kind)
{
    QMenu *menu = new QMenu(dialog);
    menu->addAction(messageText(kind.editAction))->setData(int(MenuEdit));
    menu->addAction(messageText(kind.resetAction))->setData(int(MenuReset));
    dialog->setCustomContextMenu(menu);
    // clang-format off
    QObject::connect(menu, SIGNAL(triggered(QAction*)), dialog, SLOT(contextMenu_triggered(QAction*)));
    // clang-format on
    return menu;
}

/// Edits the current item, or calls `reset` for each item that the menu applies to. Ignores null and other actions.
inline void runMenuAction(TvxAttributesSelectionDialog *dialog, const QAction *action,
                          void (*reset)(QTableWidgetItem *))
{
    const int choice = action ? action->data().toInt() : 0;
    if (choice == MenuEdit)
        dialog->editCurrentItem();
    if (choice != MenuReset)
        return;
    const QList<QTableWidgetItem *> items = dialog->getItemsForContextMenuCallback();
    for (QTableWidgetItem *item : items)
        reset(item);
}

} // namespace Zudunmaf

#endif
