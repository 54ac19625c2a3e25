#ifndef WALK_DIALOG_WIDGETS_H
#define WALK_DIALOG_WIDGETS_H

#include <QString>

class QComboBox;
class QDialog;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace Zudunmaf::walk
{

/// The widgets of the base dialog, found by their object names. The dialog owns them. All are null without a dialog.
struct DialogWidgets {
    DialogWidgets() = default;
    explicit DialogWidgets(const QDialog &dialog);

    /// Returns the object name of the first widget that the dialog lacks; empty if it has all.
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

} // namespace Zudunmaf::walk

#endif
