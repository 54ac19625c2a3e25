#ifndef DEMO_DIALOG_USER_H
#define DEMO_DIALOG_USER_H

#include "dialog_widgets.h"

#include <QPixmap>
#include <QRect>
#include <QStringList>

#include <functional>
#include <initializer_list>

class QAbstractButton;
class QMenu;

namespace Zudunmaf::demo
{

/// Hands and eyes at one dialog: keys and clicks go to the window as the window system would send them, so that focus,
/// mnemonics, editors and popups take part in where they end. Attributes are known by their internal names.
class DialogUser : public DialogWidgets
{
public:
    /// At no dialog yet: another one is to be assigned.
    DialogUser() = default;
    /// The dialog must outlive this object.
    explicit DialogUser(QDialog &dialog);

    /// Shows the dialog and waits until keys reach it; false where they never do.
    bool open() const;

    /// A popup that is open takes the key.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void press(std::initializer_list<int> keys) const;
    /// Types ASCII text; "\n" is Return and "\t" is Tab.
    void type(const QString &text) const;
    /// Alt and the letter behind "&" in the text; false where the text has no such letter.
    bool pressMnemonic(const QString &text) const;
    /// Brings the keyboard focus to a widget: by the mnemonic of its label, else with Tab.
    bool goTo(QWidget &widget) const;
    /// Presses a button by its mnemonic, else with Tab and Space; false where it does not come up again.
    bool pushButton(QAbstractButton &button) const;

    void clickAt(const QWidget *widget, const QPoint &place, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                 Qt::MouseButton button = Qt::LeftButton) const;
    void click(QWidget *widget) const;
    void click(QTableWidget *table, const QString &attribute, int column = 0,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton) const;
    void doubleClick(QTableWidget *table, const QString &attribute, int column = 0) const;
    void clickHeader(const QTableWidget *table, int column) const;
    /// Asks for the context menu by keyboard and calls `use` while it is open; false where none opens.
    bool useContextMenu(const std::function<void(QMenu &)> &use) const;

    /// Replaces the filter text.
    void setFilter(const QString &text) const;
    /// Takes the attributes over by clicks and Return; the first chosen row is current then.
    void choose(const QStringList &attributes) const;
    /// Opens the editor of a chosen attribute by F2, types and presses Return.
    void enter(const QString &attribute, const QString &keys) const;

    /// The row of an attribute, and the other way round; -1 and an empty name where there is none.
    static int rowOf(const QTableWidget *table, const QString &attribute);
    static QString nameAt(const QTableWidget *table, int row);
    static QString currentName(const QTableWidget *table);
    static QStringList visibleNames(const QTableWidget *table);
    static QStringList selectedNames(const QTableWidget *table);
    static QRect cellRect(const QTableWidget *table, const QString &attribute, int column);
    /// The editor that is open in a cell of the chosen list; null where none is.
    QWidget *editor() const;
    /// The dialog as it looks now, with a popup that is open over it.
    QPixmap picture() const;

private:
    QDialog *m_dialog = nullptr;
};

} // namespace Zudunmaf::demo

#endif
