#include "dialog_widgets.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace Zudunmaf::demo
{

namespace
{

QAbstractButton *okButtonOf(const QDialog &dialog)
{
    const QDialogButtonBox *box = dialog.findChild<QDialogButtonBox *>();
    return box ? box->button(QDialogButtonBox::Ok) : nullptr;
}

} // namespace

DialogWidgets::DialogWidgets(const QDialog &dialog)
    : entityList(dialog.findChild<QComboBox *>(QStringLiteral("entityList")))
    , groupList(dialog.findChild<QComboBox *>(QStringLiteral("groupList")))
    , filterText(dialog.findChild<QLineEdit *>(QStringLiteral("filterText")))
    , topView(dialog.findChild<QTableWidget *>(QStringLiteral("topView")))
    , chosenList(dialog.findChild<QTableWidget *>(QStringLiteral("chosenList")))
    , addButton(dialog.findChild<QAbstractButton *>(QStringLiteral("addButton")))
    , removeButton(dialog.findChild<QAbstractButton *>(QStringLiteral("removeButton")))
    , okButton(okButtonOf(dialog))
{
}

QString DialogWidgets::missing() const
{
    const struct {
        const QWidget *widget;
        const char *name;
    } wanted[] = {{entityList, "entityList"}, {groupList, "groupList"},      {filterText, "filterText"},
                  {topView, "topView"},       {chosenList, "chosenList"},    {addButton, "addButton"},
                  {okButton, "OK"},           {removeButton, "removeButton"}};
    for (const auto &entry : wanted) {
        if (!entry.widget)
            return QString::fromLatin1(entry.name);
    }
    return QString();
}

} // namespace Zudunmaf::demo
