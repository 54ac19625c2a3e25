// Sends the events on the standard input to both dialogs over the stand-ins. An event is a line of three numbers: its kind,
// and two numbers that select the widget and the position. Checks the invariants after each event, and ends with status 1
// if one is broken. The same lines have the same effect in every process. monkey.py writes them.
#include "commit_watch.h"
#include "dml/dml_control.h"
#include "gdm/gdm_qt.h"
#include "gen/gen_control.h"
#include "tvx/tvx_control.h"
#include "value_watch.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMimeData>
#include <QSet>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <iostream>
#include <malloc.h>
#include <memory>
#include <unistd.h>

using namespace Zudunmaf;

static constexpr unsigned SecondsPerEvent = 60;

static QString s_warning;

class Monkey
{
public:
    Monkey()
    {
        // Started before each event, because a menu can run its own event loop.
        QObject::connect(&m_popupTimer, &QTimer::timeout, &m_popupTimer, [this] { workPopup(); });
        openDialog(0);
    }

    void perform(unsigned kind, unsigned a, unsigned b)
    {
        m_popupChoice = b / 64;
        m_popupTimer.start(0);
        if (!m_dialog->isVisible() || !m_dialog->isActiveWindow()) {
            m_dialog->show();
            m_dialog->activateWindow();
            (void)QTest::qWaitForWindowActive(m_dialog.get());
        }
        m_filtered = false;
        m_values.begin(m_dialog.get());
        if (kind < 50)
            press(a % 12, b);
        else if (kind < 84)
            click(kind, a, b);
        else if (kind < 88)
            sendToTable(a, b);
        else if (kind < 99)
            callHost(a % 11, b);
        else
            openDialog(b);
        // A button that was pressed by its mnemonic is released after 100 ms.
        (void)QTest::qWaitFor([this] {
            const auto buttons = m_dialog->findChildren<QAbstractButton *>();
            return std::none_of(buttons.begin(), buttons.end(),
                                [](const auto *button) { return button->isDown(); });
        });
        QCoreApplication::processEvents();
        workPopup();
        m_popupTimer.stop();
        m_closed.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Returns the broken invariant in one line; empty if there is none.
    QString fault() const
    {
        QString fault = s_warning.isEmpty() ? m_values.fault(m_dialog.get()) : s_warning;
        QSet<const void *> records;
        for (int cell = 0; fault.isEmpty() && cell < 2 * (rowsOf(0) + rowsOf(1)); ++cell) {
            const bool chosen = cell / 2 >= rowsOf(0);
            const int row = cell / 2 - (chosen ? rowsOf(0) : 0);
            const auto *item = dynamic_cast<const DmlAttrLWI *>(table(chosen)->item(row, cell % 2));
            if (!item || item->row() != row || item->column() != cell % 2 || !isSound(*item))
                return QString("row %1 of %2 is broken").arg(row).arg(table(chosen)->objectName());
            const QVariant value = item->attrValue();
            const void *record = value.userType() == QMetaType::VoidStar ? value.value<void *>() : item;
            if (records.contains(record))
                return QString("row %1 of %2 shares its record").arg(row).arg(table(chosen)->objectName());
            records.insert(record);
        }
        for (int row = 0; fault.isEmpty() && row < rowsOf(1); ++row)
            fault = faultOfChosen(row);
        return fault;
    }

private:
    /// Replaces the dialog by a new one, or opens a second one. The number selects the dialog and its dictionary, and whether
    /// the dictionary is loaded again first.
    void openDialog(unsigned number)
    {
        m_second = number % 5 == 4 ? std::move(m_dialog) : nullptr;
        m_dialog.reset();
        if (!m_second && number % 7 == 0) {
            dml::unloadAll();
            dml::loadFile(ZUDUNMAF_DICTIONARY);
        }
        const int dictionary = number % 31 == 30 ? 99 : -1;
        m_dialog.reset(new AttributesFilterDialog(dictionary));
        if (number % 2)
            m_dialog.reset(new FeatureAttributesDialog(dictionary));
        m_values.attach(m_dialog.get());
        QObject::connect(m_dialog->findChild<QMenu *>(), &QMenu::triggered, &m_popupTimer, [this] {
            if (m_popupChoice % 5)
                return;
            // A host that closes the dialog in an action of its menu. The dialog is deleted after the event, because Qt
            // Test sends the key release to its window in any case.
            m_dialog->close();
            m_closed = std::move(m_dialog);
            openDialog(4 + m_popupChoice % 2);
        });
    }

    void press(unsigned kind, unsigned which)
    {
        static const std::string typed = "ae_*?[]\\-0123459.,  ", withControl = "zacvfhe ",
                                 withAlt = "arluge";
        static const Qt::Key keys[] = {Qt::Key_Tab,  Qt::Key_Backtab,  Qt::Key_Up,     Qt::Key_Down,
                                       Qt::Key_Down, Qt::Key_Home,     Qt::Key_End,    Qt::Key_PageDown,
                                       Qt::Key_F2,   Qt::Key_Return,   Qt::Key_Escape, Qt::Key_Delete,
                                       Qt::Key_Menu, Qt::Key_Backspace};
        QWindow *window = m_dialog->windowHandle();
        if (kind < 3)
            QTest::keyClick(window, typed[which % typed.size()]);
        else if (kind < 5)
            QTest::keyClick(window, withControl[which % withControl.size()], Qt::ControlModifier);
        else if (kind < 6)
            QTest::keyClick(window, withAlt[which % withAlt.size()], Qt::AltModifier);
        else
            QTest::keyClick(window, keys[which % std::size(keys)],
                            kind < 7 ? Qt::ShiftModifier : Qt::NoModifier);
    }

    /// Clicks a cell of a table, or a position in any widget.
    void click(unsigned kind, unsigned a, unsigned b)
    {
        QTableWidget *cells = table(a);
        const auto *item = cells->item(int(b % unsigned(rowsOf(a) + 1)), a % 4 / 2);
        const QList<QWidget *> all = m_dialog->findChildren<QWidget *>();
        const QWidget *widget = all.at(int(a % unsigned(all.size())));
        QPoint place(int(b % 997) % qMax(1, widget->width()), int(b / 997) % qMax(1, widget->height()));
        if (kind % 2 && item && !cells->isRowHidden(item->row())) {
            cells->scrollToItem(item);
            widget = cells->viewport();
            place = cells->visualItemRect(item).center();
        }
        if (!widget->isVisible() || widget->window() != m_dialog.get())
            return;
        place = widget->mapTo(m_dialog.get(), place);
        const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier};
        QTest::mouseClick(m_dialog->windowHandle(), kind % 6 ? Qt::LeftButton : Qt::RightButton,
                          modifiers[a / 4 % 3], place);
        if (kind % 3 == 1 && m_dialog->isVisible())
            QTest::mouseDClick(m_dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    }

    /// Turns the wheel, and drops rows without a source, as from another program.
    void sendToTable(unsigned a, unsigned b)
    {
        QWidget *target = table(a)->viewport();
        QWidget *focus = a % 3 ? QApplication::focusWidget() : nullptr;
        QWheelEvent wheel(QPointF(3, 3), QPointF(3, 3), QPoint(), QPoint(0, b % 2 ? 120 : -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(focus ? focus : target, &wheel);
        QMimeData rows;
        rows.setData("application/x-zudunmaf-rows", QByteArray());
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &rows, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &rows, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        QCoreApplication::sendEvent(target, &drop);
    }

    /// Calls what a host may call at any time, and the hooks late, twice or with an item of another class.
    void callHost(unsigned what, unsigned number)
    {
        const auto rows = m_dialog->getTopListItems(false);
        const int row = int(number % unsigned(rows.size() + 2)) - 1;
        QTableWidgetItem foreign;
        QTableWidgetItem *item = number % 8 ? rows.value(row) : &foreign;
        switch (what) {
        case 0:
            return m_dialog->setDisplayUnits(int(number % unsigned(gen::units().size() + 3)) - 1);
        case 1:
            return m_dialog->buildInitialLists();
        case 2:
            return m_dialog->setTopViewRowsVisiblity(row, number % 3);
        case 3:
            return void(item && tvx::addChosen(*m_dialog, *item));
        case 4:
            return m_dialog->setTopViewCurrentItem(rows.value(row));
        case 5:
            return void(m_dialog->close());
        case 6:
            return number % 3 ? m_dialog->addButtonClickedCB(item) : m_dialog->removeButtonClickedCB(item);
        case 7:
            return m_second ? m_second.swap(m_dialog) : void();
        default:
            m_dialog->filterAttributeList();
            m_filtered = true;
        }
    }

    /// Presses keys in an open list or menu, and closes what is still open.
    void workPopup()
    {
        if (QWidget *popup = QApplication::activePopupWidget()) {
            QTest::keyClick(popup, m_popupChoice % 2 ? Qt::Key_Down : Qt::Key_End);
            if (QApplication::activePopupWidget() == popup)
                QTest::keyClick(popup, m_popupChoice % 3 ? Qt::Key_Return : Qt::Key_Escape);
        }
        while (QWidget *left = QApplication::activePopupWidget())
            left->close();
    }

    QTableWidget *table(unsigned number) const
    {
        return m_dialog->findChild<QTableWidget *>(number % 2 ? "chosenList" : "topView");
    }
    int rowsOf(unsigned number) const { return table(number)->rowCount(); }

    /// Returns true if a range is in order, or a whole number within its limits.
    static bool isSound(const DmlAttrLWI &item)
    {
        const auto &definition = *static_cast<const DmlAttrDef *>(item.dmlAttribute().value<void *>());
        const QVariant value = item.data(DmlAttrValueRole);
        if (value.userType() == QMetaType::Int)
            return value.toInt() >= definition.intMin && value.toInt() <= definition.intMax;
        return value.toPointF().x() <= value.toPointF().y();
    }

    /// The chosen items are those of the rows, in their order, and a pass hides chosen attributes in "Assign Attributes".
    QString faultOfChosen(int row) const
    {
        const QTableWidgetItem *item = table(1)->item(row, 1);
        if (m_dialog->getChosenList().value(row) != item)
            return QString("chosen item %1 is the one of another row").arg(row);

        const QString name = item->data(DmlAttrNameRole).toString();
        const QTableWidgetItem *available = m_dialog->findItemByAttrName(name);
        const bool isFilter = dynamic_cast<const AttributesFilterDialog *>(m_dialog.get());
        if (!isFilter && m_filtered && available && !table(0)->isRowHidden(available->row()))
            return name + " is chosen and still visible";
        return QString();
    }

    ValueWatch m_values;
    std::unique_ptr<TvxAttributesSelectionDialog> m_dialog, m_second, m_closed;
    bool m_filtered = false;
    QTimer m_popupTimer;
    unsigned m_popupChoice = 0;
};

/// Prints each event before it is sent, so that the output of a process that crashed ends with the fault. Each line also has
/// the number of allocated bytes and open files.
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_HASH_SEED", "0");
    const QApplication application(argc, argv);
    QApplication::setKeyboardInputInterval(SecondsPerEvent * 1000);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        // The offscreen platform's own limitation.
        if (type != QtDebugMsg && type != QtInfoMsg && !text.startsWith("This plugin does not support "))
            s_warning = text;
    });
    Monkey monkey;
    for (unsigned kind, a, b; std::cin >> kind >> a >> b;) {
        std::cout << kind << ' ' << a << ' ' << b << ' ' << mallinfo2().uordblks << ' '
                  << QDir("/proc/self/fd").count() << std::endl;
        alarm(SecondsPerEvent);
        monkey.perform(kind, a, b);
        if (!monkey.fault().isEmpty()) {
            std::cerr << qPrintable(monkey.fault()) << std::endl;
            return 1;
        }
    }
}
