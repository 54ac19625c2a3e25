#include "dialog_user.h"

#include "gdm/items/attr_roles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace Zudunmaf::walk
{

namespace
{

constexpr int TimeoutInMs = 5000;
constexpr int MaximumTabs = 50;

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

DialogUser::DialogUser(QDialog &dialog)
    : DialogWidgets(dialog)
    , m_dialog(&dialog)
{
}

bool DialogUser::open() const
{
    m_dialog->show();
    m_dialog->activateWindow();
    return QTest::qWaitForWindowActive(m_dialog, TimeoutInMs) && QApplication::focusWidget();
}

void DialogUser::press(int key, Qt::KeyboardModifiers modifiers) const
{
    if (QWidget *popup = QApplication::activePopupWidget())
        QTest::keyClick(popup, Qt::Key(key), modifiers);
    else
        QTest::keyClick(m_dialog->windowHandle(), Qt::Key(key), modifiers);
    QCoreApplication::processEvents();
}

void DialogUser::press(std::initializer_list<int> keys) const
{
    for (int key : keys)
        press(key);
}

void DialogUser::type(const QString &text) const
{
    for (const QChar character : text) {
        if (character == QLatin1Char('\n'))
            press(Qt::Key_Return);
        else if (character == QLatin1Char('\t'))
            press(Qt::Key_Tab);
        else
            QTest::keyClick(m_dialog->windowHandle(), character.toLatin1());
    }
    QCoreApplication::processEvents();
}

bool DialogUser::pressMnemonic(const QString &text) const
{
    const QString letter = QKeySequence::mnemonic(text).toString(QKeySequence::PortableText).right(1);
    if (letter.isEmpty() || letter.at(0).unicode() > 127)
        return false;
    press(Qt::Key(letter.at(0).unicode()), Qt::AltModifier);
    return true;
}

bool DialogUser::goTo(QWidget &widget) const
{
    if (!widget.hasFocus())
        pressMnemonic(labelTextOf(*m_dialog, widget));
    for (int tabs = 0; !widget.hasFocus() && tabs < MaximumTabs; ++tabs)
        press(Qt::Key_Tab);
    return widget.hasFocus();
}

bool DialogUser::pushButton(QAbstractButton &button) const
{
    if (!pressMnemonic(button.text()) && goTo(button))
        press(Qt::Key_Space);
    // A mnemonic calls animateClick(), which emits clicked() only when it releases the button.
    return QTest::qWaitFor([&button] { return !button.isDown(); }, TimeoutInMs);
}

void DialogUser::clickAt(const QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers,
                         Qt::MouseButton button) const
{
    QTest::mouseClick(m_dialog->windowHandle(), button, modifiers, widget->mapTo(m_dialog, position));
    QCoreApplication::processEvents();
}

void DialogUser::click(QWidget *widget) const
{
    clickAt(widget, widget->rect().center());
}

void DialogUser::click(QTableWidget *table, const QString &attribute, int column,
                       Qt::KeyboardModifiers modifiers, Qt::MouseButton button) const
{
    table->scrollToItem(table->item(rowOf(table, attribute), 0));
    clickAt(table->viewport(), cellRect(table, attribute, column).center(), modifiers, button);
}

void DialogUser::doubleClick(QTableWidget *table, const QString &attribute, int column) const
{
    click(table, attribute, column);
    const QPoint position = cellRect(table, attribute, column).center();
    QTest::mouseDClick(m_dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       table->viewport()->mapTo(m_dialog, position));
    QCoreApplication::processEvents();
}

void DialogUser::clickHeader(const QTableWidget *table, int column) const
{
    const QHeaderView *header = table->horizontalHeader();
    clickAt(header->viewport(), QPoint(header->sectionViewportPosition(column) + 20, header->height() / 2));
}

bool DialogUser::useContextMenu(const std::function<void(QMenu &)> &use) const
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus)
        return false;
    // The menu may run a nested event loop, so a timer looks for it.
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
    // Not every platform turns the menu key into this event, so send the event itself.
    const QPoint position = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent request(QContextMenuEvent::Keyboard, position, focus->mapToGlobal(position));
    QCoreApplication::sendEvent(focus, &request);
    return QTest::qWaitFor([&used] { return used; }, TimeoutInMs);
}

void DialogUser::setFilter(const QString &text) const
{
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Delete);
    type(text);
}

void DialogUser::choose(const QStringList &attributes) const
{
    for (const QString &attribute : attributes) {
        click(topView, attribute);
        press(Qt::Key_Return);
    }
    click(chosenList, nameAt(chosenList, 0));
}

void DialogUser::enter(const QString &attribute, const QString &keys) const
{
    click(chosenList, attribute);
    press(Qt::Key_F2);
    type(keys);
    press(Qt::Key_Return);
}

int DialogUser::rowOf(const QTableWidget *table, const QString &attribute)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (nameAt(table, row) == attribute)
            return row;
    }
    return -1;
}

QString DialogUser::nameAt(const QTableWidget *table, int row)
{
    const QTableWidgetItem *item = table->item(row, 1);
    return item ? item->data(DmlAttrNameRole).toString() : QString();
}

QString DialogUser::currentName(const QTableWidget *table)
{
    return nameAt(table, table->currentRow());
}

QStringList DialogUser::visibleNames(const QTableWidget *table)
{
    QStringList names;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (!table->isRowHidden(row))
            names.append(nameAt(table, row));
    }
    return names;
}

QStringList DialogUser::selectedNames(const QTableWidget *table)
{
    QStringList names;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (!table->isRowHidden(row) && table->selectionModel()->isRowSelected(row, QModelIndex()))
            names.append(nameAt(table, row));
    }
    return names;
}

QRect DialogUser::cellRect(const QTableWidget *table, const QString &attribute, int column)
{
    return table->visualItemRect(table->item(rowOf(table, attribute), column));
}

QWidget *DialogUser::editor() const
{
    for (int cell = 0; cell < 2 * chosenList->rowCount(); ++cell) {
        if (QWidget *found = chosenList->indexWidget(chosenList->model()->index(cell / 2, cell % 2)))
            return found;
    }
    return nullptr;
}

QPixmap DialogUser::picture() const
{
    QPixmap picture = m_dialog->grab();
    if (QWidget *popup = QApplication::activePopupWidget()) {
        QPainter painter(&picture);
        painter.drawPixmap(m_dialog->mapFromGlobal(popup->mapToGlobal(QPoint())), popup->grab());
    }
    return picture;
}

} // namespace Zudunmaf::walk
