// Opens the attribute filter dialog and prints the conditions. With the argument "--once" it adds a condition without user
// input, for the test.
#include "gdm/gdm_qt.h"

#include <QApplication>
#include <QPushButton>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Zudunmaf::AttributesFilterDialog dialog(0);

    if (application.arguments().contains(QLatin1String("--once"))) {
        dialog.setFirstVisibleItemAsCurrent();
        dialog.findChildren<QPushButton *>().first()->click();
        DmlAttrValue condition = {};
        condition.isSet = 1;
        condition.intLow = 5;
        condition.intHigh = 9;
        auto *item = static_cast<Zudunmaf::AttrFilterLWI *>(dialog.getChosenList().value(0));
        item->setAttrValue(QVariant::fromValue<void *>(&condition));
    } else if (dialog.exec() != QDialog::Accepted) {
        return 1;
    }

    for (const QString &line : dialog.getFiltersAsStringList())
        std::printf("%s\n", qPrintable(line));
    return 0;
}
