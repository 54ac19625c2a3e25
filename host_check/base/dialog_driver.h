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

/// Text of a message key.
QString messageText(const char *key);

/// Works one dialog of the library over the host's base, by keys and by the mouse. Widgets that the contract does not
/// name are found by what they show or do. A widget that is not found ends the running check as not checkable.
class DialogDriver
{
public:
    /// Opens the dialog over the dictionary of the settings.
    DialogDriver(const Settings &settings, Kind kind);

    TvxAttributesSelectionDialog *operator->() const { return m_dialog.get(); }
    Kind kind() const { return m_kind; }
    const Calls &calls() const { return *m_calls; }
    /// Where a violation was seen, for a message.
    std::string where() const
    {
        return m_kind == Kind::Filter ? "in the filter dialog" : "in \"Assign Attributes\"";
    }

    /// The two tables. The top view needs a row, the chosen list is found as the other table.
    QTableWidget *topView() const;
    QTableWidget *chosenList() const;
    QStringList chosenNames() const;
    QStringList availableNames(bool visibleOnly) const;

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void type(const QString &ascii) const;
    void click(QWidget *widget) const;
    void clickRow(QTableWidget *table, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  Qt::MouseButton button = Qt::LeftButton) const;

    /// Replaces the filter text by keys.
    void setFilterText(const QString &ascii);
    /// The entity or group list, which has a row with this text, and its number of rows.
    QWidget *listWith(const QString &rowText) const;
    static int rowCount(const QWidget *list);
    void selectRow(QWidget *list, int row) const;

    /// Adds the row by its button, and returns the row of the chosen list; the same for several selected rows.
    int add(int topRow);
    void addSelected();
    void removeSelected();
    /// Presses OK or Cancel.
    void end(QDialogButtonBox::StandardButton button) const;

    /// Row of an attribute in the top view that satisfies the condition. Ends the running check if there is none.
    int topRowWhere(const std::function<bool(const DmlAttrDef &)> &isWanted, const std::string &what) const;
    /// The spin boxes of the open editor.
    QList<QSpinBox *> editorBoxes() const;

private:
    void clickWhatChanges(QAbstractButton *&button, const QString &word, const std::string &what);

    Kind m_kind;
    std::unique_ptr<TvxAttributesSelectionDialog> m_dialog;
    const Calls *m_calls; ///< A part of the dialog.
    QLineEdit *m_filterLine = nullptr;
    QAbstractButton *m_addButton = nullptr;
    QAbstractButton *m_removeButton = nullptr;
};

} // namespace Zudunmaf::hostcheck

#endif
