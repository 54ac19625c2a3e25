#ifndef HOST_CHECK_BASE_DIALOG_DRIVER_H
#define HOST_CHECK_BASE_DIALOG_DRIVER_H

#include "check.h"

#include "gdm/gdm_qt.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>

#include <functional>
#include <memory>

namespace Zudunmaf::hostcheck
{

/// What the base has called of the dialog.
struct Calls {
    int filterings = 0;
    QStringList added;   ///< Names of the items, one for each call of the hook.
    QStringList removed; ///< The same.
};

enum class Kind { Filter, Assign };
enum class Button { Add, Remove };

/// Text of a message key.
QString messageText(const char *key);

/// expectEqual() for names. Says the first difference only, since dictionaries are long.
void expectNames(const QStringList &came, const QStringList &expected, const std::string &where);

/// Works one dialog of the library over the host's base, by keys and by the mouse. Widgets that the contract does not
/// name are found by what they show or do. A widget that is not found ends the running check as not checkable.
class DialogDriver
{
public:
    /// Opens the dialog over the dictionary of the settings.
    DialogDriver(const Settings &settings, Kind kind);

    TvxAttributesSelectionDialog *operator->() const { return m_dialog.get(); }
    const Settings &settings() const { return m_settings; }
    Kind kind() const { return m_kind; }
    const Calls &calls() const { return *m_calls; }

    /// The two tables. The top view needs two rows, the chosen list is found as the other table.
    QTableWidget *topView() const;
    QTableWidget *chosenList() const;
    QStringList chosenNames() const;
    QStringList availableNames(bool visibleOnly) const;
    /// Row of a visible attribute in the top view that satisfies the condition.
    int topRowWhere(const std::function<bool(const DmlAttrDef &)> &isWanted, const std::string &what) const;

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Replaces the text of the widget with the focus.
    void type(const QString &ascii) const;
    void click(QWidget *widget) const;
    void clickRow(QTableWidget *table, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    void setFilterText(const QString &ascii);
    /// The entity or group list, which has a row with this text.
    QWidget *listWith(const QString &rowText) const;
    static int rowCount(const QWidget *list);
    void selectRow(QWidget *list, int row) const;

    /// Clicks the add or the remove button. The first call clicks the enabled buttons that have "add" or "remove" in
    /// their object names, texts or tool tips, until one makes the chosen list longer or shorter. Not checkable if none
    /// does. Later calls click that button only, and may change nothing.
    void clickButton(Button kind);
    /// Adds the row by the add button, and returns its row in the chosen list.
    int add(int topRow);
    void pressOk() const;

    /// The spin boxes of the open editor.
    QList<QSpinBox *> editorBoxes() const;

private:
    void findFilterLine();

    const Settings &m_settings;
    Kind m_kind;
    std::unique_ptr<TvxAttributesSelectionDialog> m_dialog;
    const Calls *m_calls = nullptr; ///< A part of the dialog.
    QLineEdit *m_filterLine = nullptr;
    QAbstractButton *m_buttons[2] = {}; ///< By Button, null until found.
};

/// A check that is done in a new dialog of each of these kinds.
template <void (*check)(DialogDriver &), Kind... kinds>
void in(const Settings &settings)
{
    for (Kind kind : {kinds...}) {
        DialogDriver dialog(settings, kind);
        try {
            check(dialog);
        } catch (Violation &violation) {
            violation.came += kind == Kind::Filter ? " in the filter dialog" : " in \"Assign Attributes\"";
            throw;
        }
    }
}

} // namespace Zudunmaf::hostcheck

#endif
