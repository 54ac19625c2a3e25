#ifndef GDM_DIALOGS_CONTEXT_MENU_H
#define GDM_DIALOGS_CONTEXT_MENU_H

#include "gdm/host/host_text.h"

#include <QAction>
#include <QMenu>

namespace Zudunmaf
{

/// What an action of a context menu does, held in its data. Internal: not installed.
enum MenuAction { MenuEdit = 1, MenuReset = 2 };

/// The context menu of a dialog, which owns it: edit the current item, reset the selected ones.
inline QMenu *newContextMenu(QWidget *dialog, const char *editKey, const char *resetKey)
{
    QMenu *menu = new QMenu(dialog);
    menu->addAction(messageText(editKey))->setData(int(MenuEdit));
    menu->addAction(messageText(resetKey))->setData(int(MenuReset));
    return menu;
}

} // namespace Zudunmaf

#endif
