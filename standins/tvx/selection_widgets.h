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
class DescriptionLabel;
class AvailableTable;

/// Creates the widgets of the dialog and their layout. The dialog owns the widgets. Connects nothing. The members have
/// the names of the objects.
class SelectionWidgets
{
public:
    explicit SelectionWidgets(QDialog *dialog);

    /// Sets the sizes that depend on the font.
    void fitToFont();

    QComboBox *entityList;
    QComboBox *groupList;
    QLineEdit *filterText;
    QLabel *availableLabel;
    AvailableTable *topView;
    /// In the middle of an empty available table.
    QPushButton *widenButton;
    QPushButton *addButton;
    QPushButton *removeButton;
    QPushButton *undoButton;
    QPushButton *clearButton;
    QLabel *chosenLabel;
    ChosenTable *chosenList;
    DescriptionLabel *description;
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
