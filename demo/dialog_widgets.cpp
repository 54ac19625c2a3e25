#include "dialog_widgets.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace Zudunmaf::demo
{

namespace
{

template <class Widget>
void find(const QDialog &dialog, const char *name, Widget **widget)
{
    *widget = dialog.findChild<Widget *>(QLatin1String(name));
}

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
    find(dialog, "entityList", &entityList);
    find(dialog, "groupList", &groupList);
    find(dialog, "filterText", &filterText);
    find(dialog, "topView", &topView);
    find(dialog, "chosenList", &chosenList);
    find(dialog, "addButton", &addButton);
    find(dialog, "removeButton", &removeButton);
    find(dialog, "undoButton", &undoButton);
    find(dialog, "clearButton", &clearButton);
    find(dialog, "offeredLabel", &offeredLabel);
    find(dialog, "chosenLabel", &chosenLabel);
    find(dialog, "description", &description);
    find(dialog, "preview", &preview);
}

QString DialogWidgets::missing() const
{
    const struct {
        const QWidget *widget;
        const char *name;
    } wanted[] = {{entityList, "entityList"},
                  {groupList, "groupList"},
                  {filterText, "filterText"},
                  {topView, "topView"},
                  {chosenList, "chosenList"},
                  {addButton, "addButton"},
                  {removeButton, "removeButton"},
                  {undoButton, "undoButton"},
                  {clearButton, "clearButton"},
                  {okButton, "OK"},
                  {cancelButton, "Cancel"},
                  {offeredLabel, "offeredLabel"},
                  {chosenLabel, "chosenLabel"},
                  {description, "description"},
                  {preview, "preview"}};
    for (const auto &entry : wanted) {
        if (!entry.widget)
            return QString::fromLatin1(entry.name);
    }
    return QString();
}

} // namespace Zudunmaf::demo
