#ifndef DEMO_DIALOG_USER_H
#define DEMO_DIALOG_USER_H

#include <QPixmap>
#include <QString>

#include <functional>

class QAbstractButton;
class QMenu;
class QTableWidget;
class QTableWidgetItem;

namespace Zudunmaf::demo
{

/// Hands and eyes at one window: keys go to the window as the window system would send them, so that focus,
/// mnemonics, editors and popups take part in where they end.
class DialogUser
{
public:
    /// The window must outlive this object.
    explicit DialogUser(QWidget &window);

    /// Shows the window and waits until keys reach it; false where they never do.
    bool open();

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Types ASCII text; "\n" is Return and "\t" is Tab.
    void type(const QString &text);
    /// Alt and the letter behind "&" in the text; false where the text has no such letter.
    bool pressMnemonic(const QString &text);
    /// Brings the keyboard focus to a widget: by the mnemonic of its label, else with Tab.
    bool goTo(QWidget &widget);
    /// Presses a button by its mnemonic, else with Tab and Space; false where it does not come up again.
    bool pushButton(QAbstractButton &button);
    void doubleClick(QTableWidget &table, const QTableWidgetItem &item);
    /// Asks for the context menu by keyboard and calls `use` while it is open; false where none opens.
    bool useContextMenu(const std::function<void(QMenu &)> &use);

    /// The window as it looks now, with a popup that is open over it.
    QPixmap picture() const;

private:
    QWidget &m_window;
};

} // namespace Zudunmaf::demo

#endif
