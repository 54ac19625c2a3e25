#ifndef WALK_DIALOG_USER_H
#define WALK_DIALOG_USER_H

#include "dialog_widgets.h"

#include <QPixmap>
#include <QRect>
#include <QStringList>

#include <functional>
#include <initializer_list>

class QAbstractButton;
class QMenu;

namespace Zudunmaf::walk
{

/// Drives one dialog by key and mouse, and reads what it shows. Events go to the window, as from the window
/// system, so that focus, mnemonics, editors and popups decide which widget handles them. Attributes are given
/// by their internal names.
class DialogUser : public DialogWidgets
{
public:
    /// Without a dialog: assign another DialogUser before use.
    DialogUser() = default;
    /// The dialog must outlive this object.
    explicit DialogUser(QDialog &dialog);

    /// Shows the dialog and waits until its window is active. Returns false after a timeout, or if no widget
    /// has the focus.
    bool open() const;

    /// Sends the key to the open popup, otherwise to the window of the dialog.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void press(std::initializer_list<int> keys) const;
    /// Types ASCII text. "\n" is Return and "\t" is Tab.
    void type(const QString &text) const;
    /// Presses Alt and the mnemonic of the text. Returns false if it has no ASCII mnemonic.
    bool pressMnemonic(const QString &text) const;
    /// Moves the keyboard focus to the widget by the mnemonic of its label, otherwise by Tab. Returns false if
    /// both fail.
    bool goTo(QWidget &widget) const;
    /// Presses the button by its mnemonic, otherwise by Tab and Space. Returns false if it is not released again.
    bool pushButton(QAbstractButton &button) const;

    void clickAt(const QWidget *widget, const QPoint &position,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                 Qt::MouseButton button = Qt::LeftButton) const;
    void click(QWidget *widget) const;
    void click(QTableWidget *table, const QString &attribute, int column = 0,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton) const;
    void doubleClick(QTableWidget *table, const QString &attribute, int column = 0) const;
    void clickHeader(const QTableWidget *table, int column) const;
    /// Opens the context menu by keyboard and calls `use` while it is open. Returns false if no menu opens.
    bool useContextMenu(const std::function<void(QMenu &)> &use) const;

    /// Replaces the filter text.
    void setFilter(const QString &text) const;
    /// Adds each attribute by a click and Return, then makes the first chosen row current.
    void choose(const QStringList &attributes) const;
    /// Opens the editor of the chosen attribute with F2, types the keys and presses Return.
    void enter(const QString &attribute, const QString &keys) const;

    /// Returns the row of the attribute; -1 if the table has none.
    static int rowOf(const QTableWidget *table, const QString &attribute);
    /// Returns the name of the attribute in the row; empty if there is none.
    static QString nameAt(const QTableWidget *table, int row);
    static QString currentName(const QTableWidget *table);
    static QStringList visibleNames(const QTableWidget *table);
    static QStringList selectedNames(const QTableWidget *table);
    static QRect cellRect(const QTableWidget *table, const QString &attribute, int column);
    /// Returns the open editor of the chosen table; null if there is none.
    QWidget *editor() const;
    /// Returns an image of the dialog with its open popup.
    QPixmap picture() const;

private:
    QDialog *m_dialog = nullptr;
};

} // namespace Zudunmaf::walk

#endif
