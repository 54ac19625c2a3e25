#ifndef DEMO_DIALOG_WIDGETS_H
#define DEMO_DIALOG_WIDGETS_H

#include <QString>

class QComboBox;
class QDialog;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace Zudunmaf::demo
{

/// The widgets of the base dialog, found by their object names. They are the dialog's; without one, all are null.
struct DialogWidgets {
    DialogWidgets() = default;
    explicit DialogWidgets(const QDialog &dialog);

    /// The object name of a widget that the dialog lacks; empty where it lacks none.
    QString missing() const { return m_missing; }

    QComboBox *entityList = nullptr;
    QComboBox *groupList = nullptr;
    QLineEdit *filterText = nullptr;
    QTableWidget *topView = nullptr;
    QTableWidget *chosenList = nullptr;
    QPushButton *addButton = nullptr;
    QPushButton *removeButton = nullptr;
    QPushButton *undoButton = nullptr;
    QPushButton *clearButton = nullptr;
    QPushButton *okButton = nullptr;
    QPushButton *cancelButton = nullptr;
    QLabel *availableLabel = nullptr;
    QLabel *chosenLabel = nullptr;
    QLabel *description = nullptr;
    QLabel *preview = nullptr;

private:
    QString m_missing;
};

} // namespace Zudunmaf::demo

#endif
