#ifndef DEMO_DIALOG_WIDGETS_H
#define DEMO_DIALOG_WIDGETS_H

#include <QString>

class QAbstractButton;
class QComboBox;
class QDialog;
class QLineEdit;
class QTableWidget;

namespace Zudunmaf::demo
{

/// The widgets of the base dialog, found by their object names. They are the dialog's.
struct DialogWidgets {
    explicit DialogWidgets(const QDialog &dialog);

    /// The object name of the first widget that the dialog lacks; empty where it lacks none.
    QString missing() const;

    QComboBox *entityList;
    QComboBox *groupList;
    QLineEdit *filterText;
    QTableWidget *topView;
    QTableWidget *chosenList;
    QAbstractButton *addButton;
    QAbstractButton *removeButton;
    QAbstractButton *okButton;
};

} // namespace Zudunmaf::demo

#endif
