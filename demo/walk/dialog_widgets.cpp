#include "dialog_widgets.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <type_traits>

namespace Zudunmaf::walk
{

namespace
{

QPushButton *standardButton(const QDialog &dialog, QDialogButtonBox::StandardButton which)
{
    const QDialogButtonBox *box = dialog.findChild<QDialogButtonBox *>();
    return box ? box->button(which) : nullptr;
}

} // namespace

DialogWidgets::DialogWidgets(const QDialog &dialog)
    : okButton(standardButton(dialog, QDialogButtonBox::Ok))
    , cancelButton(standardButton(dialog, QDialogButtonBox::Cancel))
{
    const auto find = [this, &dialog](const char *name, auto *widget) {
        *widget = dialog.findChild<std::remove_pointer_t<decltype(widget)>>(QLatin1String(name));
        if (!*widget && m_missing.isEmpty())
            m_missing = QLatin1String(name);
    };
    find("entityList", &entityList);
    find("groupList", &groupList);
    find("filterText", &filterText);
    find("topView", &topView);
    find("chosenList", &chosenList);
    find("addButton", &addButton);
    find("removeButton", &removeButton);
    find("undoButton", &undoButton);
    find("clearButton", &clearButton);
    find("availableLabel", &availableLabel);
    find("chosenLabel", &chosenLabel);
    find("description", &description);
    find("preview", &preview);
    if (m_missing.isEmpty() && !(okButton && cancelButton))
        m_missing = QLatin1String(okButton ? "Cancel" : "OK");
}

} // namespace Zudunmaf::walk
