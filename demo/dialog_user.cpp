#include "dialog_user.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace Zudunmaf::demo
{

namespace
{

constexpr int PatienceInMs = 5000;
constexpr int MostTabs = 50;

QString labelTextOf(const QWidget &window, const QWidget &widget)
{
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() == &widget)
            return label->text();
    }
    return QString();
}

} // namespace

DialogUser::DialogUser(QWidget &window)
    : m_window(window)
{
}

bool DialogUser::open()
{
    m_window.show();
    m_window.activateWindow();
    return QTest::qWaitForWindowActive(&m_window, PatienceInMs);
}

void DialogUser::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_window.windowHandle(), key, modifiers);
    QCoreApplication::processEvents();
}

void DialogUser::type(const QString &text)
{
    for (const QChar character : text) {
        if (character == QLatin1Char('\n'))
            press(Qt::Key_Return);
        else if (character == QLatin1Char('\t'))
            press(Qt::Key_Tab);
        else
            QTest::keyClick(m_window.windowHandle(), character.toLatin1());
    }
    QCoreApplication::processEvents();
}

bool DialogUser::pressMnemonic(const QString &text)
{
    const QString letter = QKeySequence::mnemonic(text).toString(QKeySequence::PortableText).right(1);
    if (letter.isEmpty() || letter.at(0).unicode() > 127)
        return false;
    press(Qt::Key(letter.at(0).unicode()), Qt::AltModifier);
    return true;
}

bool DialogUser::goTo(QWidget &widget)
{
    if (!widget.hasFocus())
        pressMnemonic(labelTextOf(m_window, widget));
    for (int tabs = 0; !widget.hasFocus() && tabs < MostTabs; ++tabs)
        press(Qt::Key_Tab);
    return widget.hasFocus();
}

bool DialogUser::pushButton(QAbstractButton &button)
{
    if (!pressMnemonic(button.text()) && goTo(button))
        press(Qt::Key_Space);
    // By its mnemonic, a button is seen to go down and clicks as it comes up.
    return QTest::qWaitFor([&button] { return !button.isDown(); }, PatienceInMs);
}

void DialogUser::doubleClick(QTableWidget &table, const QTableWidgetItem &item)
{
    const QPoint position = table.visualItemRect(&item).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    QCoreApplication::processEvents();
}

bool DialogUser::useContextMenu(const std::function<void(QMenu &)> &use)
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus)
        return false;
    // The menu may run an event loop of its own: it is met from within, by a timer.
    bool used = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (QMenu *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            watch.stop();
            use(*menu);
            used = true;
        }
    });
    watch.start(1);
    // Not every platform makes this event of the menu key, so it comes as a platform would send it.
    const QPoint position = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent request(QContextMenuEvent::Keyboard, position, focus->mapToGlobal(position));
    QCoreApplication::sendEvent(focus, &request);
    return QTest::qWaitFor([&used] { return used; }, PatienceInMs);
}

QPixmap DialogUser::picture() const
{
    QPixmap picture = m_window.grab();
    if (QWidget *popup = QApplication::activePopupWidget()) {
        QPainter painter(&picture);
        painter.drawPixmap(m_window.mapFromGlobal(popup->mapToGlobal(QPoint())), popup->grab());
    }
    return picture;
}

} // namespace Zudunmaf::demo
