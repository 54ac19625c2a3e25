#ifndef TVX_SELECTION_WIDGETS_H
#define TVX_SELECTION_WIDGETS_H

class QComboBox;
class QDialog;
class QDialogButtonBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QWidget;

namespace Zudunmaf
{
namespace tvx
{

class ChosenTable;
class AvailableTable;

/// The widgets of the dialog and their places: entity, group and filter; what is on offer; the buttons
/// between the tables; what is chosen; the description; OK and Cancel. The dialog owns them all. Object names
/// are those of the members.
class SelectionWidgets
{
public:
    explicit SelectionWidgets(QDialog *dialog);

    /// Sets the sizes that hang on the font.
    void fitToFont();
    /// Sets those that hang on the height of the dialog: a low one leaves its room to the tables.
    void fitToHeight();

    QComboBox *entityList;
    QComboBox *groupList;
    QLineEdit *filterText;
    QLabel *offeredLabel;
    AvailableTable *topView;
    QPushButton *addButton;
    QPushButton *removeButton;
    QPushButton *undoButton;
    QPushButton *clearButton;
    QLabel *chosenLabel;
    ChosenTable *chosenList;
    QLabel *description;
    QLabel *preview;
    QDialogButtonBox *buttonBox;

private:
    void createCriteria(QDialog *dialog);
    void createTables(QDialog *dialog);
    void createButtons(QDialog *dialog);
    void createTexts(QDialog *dialog);
    void arrange(QDialog *dialog);
    QLayout *criteriaLayout() const;
    QWidget *tablesWidget(QDialog *dialog) const;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
