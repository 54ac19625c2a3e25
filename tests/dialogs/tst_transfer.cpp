#include "dialog_test.h"

#include "gdm/gdm_qt.h"
#include "tvx/tvx_control.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QRandomGenerator>
#include <QScrollBar>

#include <tuple>

using namespace Zudunmaf;

/// Moving rows between the two tables by other means than the buttons, and what a new fill does to the tables.
class TransferTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreDragged()
    {
        if (QGuiApplication::platformName() == "offscreen")
            QSKIP("a drop has no source on this platform");
        click(topView, "note");
        click(topView, "width", Name, Qt::ControlModifier);
        drag(topView, "note", chosenList);
        QCOMPARE(events, QStringList({"+note", "+width"}));
        QCOMPARE(visibleNames(chosenList), QStringList({"note", "width"}));
        QCOMPARE(visibleNames(topView).contains("note"), inFilter());
        drag(topView, "depth", topView);
        drag(chosenList, "note", chosenList);
        QCOMPARE(events.size(), 2);
        click(chosenList, "width");
        drag(chosenList, "width", topView);
        QCOMPARE(events.mid(2), QStringList("-width"));
        QVERIFY(visibleNames(topView).contains("width"));
        QCOMPARE(currentName(topView), pick("depth", "width"));

        const auto otherDialog = std::move(dialog);
        const QTableWidget *otherChosenList = chosenList;
        QVERIFY(open());
        click(topView, "depth");
        drag(topView, "depth", otherChosenList);
        QCOMPARE(otherChosenList->rowCount(), 1);
    }

    void removalIsUndone()
    {
        const QStringList names = {"note", "width", "depth", "finish"};
        choose(names);
        enter("note", "abc");
        enter("width", pick("5\t9", "5"));
        enter("depth", pick("1\t2", "1"));
        const QList<QByteArray> entered = records();
        click(chosenList, "width");
        click(chosenList, "finish", Name, Qt::ControlModifier);
        press(Qt::Key_Delete);
        click(clearButton);
        clickHeader(chosenList, Name);
        events.clear();
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(events, QStringList({"+note", "+depth"}));
        QCOMPARE(visibleNames(chosenList), QStringList({"depth", "note"}));
        press(Qt::Key_Z, Qt::ControlModifier);
        clickHeader(chosenList, Name);
        clickHeader(chosenList, Name);
        QCOMPARE(visibleNames(chosenList), names);
        QCOMPARE(records(), entered);
        QCOMPARE(selectedNames(chosenList), QStringList({"width", "finish"}));
        QCOMPARE(undoButton->toolTip(),
                 "Undo: edit depth (Ctrl+Z)\nRedo: remove 2 attributes (Ctrl+Shift+Z)");
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        clickHeader(chosenList, Name);
        press(Qt::Key_Z, Qt::ControlModifier);
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(selectedNames(chosenList), QStringList("depth")); // whose edit was taken back
    }

    /// Each undo leads to the state before the step, and each redo to that after it.
    void randomStepsAreUndoneAndRedone()
    {
        for (const char *name : {"width", "note", "finish"})
            QVERIFY(tvx::addChosen(*dialog, *dialog->findItemByAttrName(name)));
        const auto state = [this] {
            return State{visibleNames(topView), visibleNames(chosenList), records()};
        };
        QList<State> states{state()};
        int now = 0;
        const auto step = [&](bool back) {
            if (back ? now > 0 : now + 1 < states.size()) {
                press(Qt::Key_Z, back ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
                now += back ? -1 : 1;
            }
            return state() == states[now];
        };
        QRandomGenerator random(17);
        for (int action = 0; action < 300; ++action) {
            const int kind = random.bounded(8);
            if (kind > 5) {
                QVERIFY(step(kind == 6));
                continue;
            }
            changeAtRandom(kind, random);
            if (state() == states[now])
                continue;
            states.erase(states.begin() + ++now, states.end());
            states << state();
        }
        QVERIFY(states.size() > 20);
        while (now > 0)
            QVERIFY(step(true));
        QVERIFY(!undoButton->isEnabled());
        while (now + 1 < states.size())
            QVERIFY(step(false));
    }

    void secondRowOfAnAttribute()
    {
        choose({"width"});
        enter("width", "5");
        press(Qt::Key_Delete);
        choose({"width"});
        enter("width", "8");
        QCOMPARE(results().join(';'), pick("8 <= width <= 100", "8"));
        dialog->setDisplayUnits(1);
        chosenList->clearSelection();
        events.clear();
        doubleClick(topView, "width");
        QCOMPARE(events, inFilter() ? QStringList("+width") : QStringList());
        QCOMPARE(chosenList->rowCount(), inFilter() ? 2 : 1);
        QCOMPARE(selectedNames(chosenList), QStringList("width"));
        afterHook = [this] { dialog->setDisplayUnits(0); };
        events.clear();
        topView->selectAll();
        click(addButton);
        QCOMPARE(int(events.filter("+").size()), inFilter() ? 48 : 47);
    }

    void buttonEndsTheTypingThatUndoTakesBack()
    {
        for (QPushButton *button : {addButton, removeButton}) {
            type("width");
            const int rows = chosenList->rowCount();
            click(button);
            press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(chosenList->rowCount(), rows);
            press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        }
    }

    void cellsSelectedOneByOneAreOneRow()
    {
        topView->clearSelection();
        for (const int column : {Name, Value})
            topView->item(rowOf(topView, "note"), column)->setSelected(true);
        click(addButton);
        QCOMPARE(events, QStringList("+note"));
    }

    void hostAddsARowDuringAnEdit()
    {
        choose({"note"});
        press(Qt::Key_F2);
        type("x");
        QVERIFY(tvx::addChosen(*dialog, *dialog->findItemByAttrName("width")));
        QVERIFY(!editor());
        QCOMPARE(resultOf("note"), pick("note = x", "x"));
    }

    void hostAddsRows()
    {
        const std::unique_ptr<QTableWidgetItem> item(dialog->findItemByAttrName("width")->clone());
        const std::unique_ptr<DmlAttrLWI> other(inFilter() ? static_cast<DmlAttrLWI *>(new FeatureAttrLWI)
                                                           : new AttrFilterLWI);
        other->setDmlAttribute(dynamic_cast<DmlAttrLWI &>(*item).dmlAttribute());
        QVERIFY(!tvx::addChosen(*dialog, *other));
        QVERIFY(!tvx::addChosen(*dialog, QTableWidgetItem()));
        QVERIFY(tvx::addChosen(*dialog, *item));
        QCOMPARE(tvx::addChosen(*dialog, *item), inFilter());
        QCOMPARE(chosenList->rowCount(), inFilter() ? 2 : 1);
        QVERIFY(!dialog->getChosenList().contains(item.get()));
        QVERIFY(!undoButton->isEnabled());
        QCOMPARE(visibleNames(topView).contains("width"), inFilter());
        // In a sorted table, a row that a hook adds moves those that are being removed.
        clickHeader(chosenList, Name);
        afterHook = [this] {
            if (rowOf(chosenList, "depth") < 0)
                tvx::addChosen(*dialog, *dialog->findItemByAttrName("depth"));
        };
        click(clearButton);
        QCOMPARE(visibleNames(chosenList), QStringList("depth"));
    }

    void changeOfUnitsKeepsSelectionAndScrollPosition()
    {
        choose({"depth", "note"});
        enter("depth", "25.4");
        const QList<QByteArray> before = records();
        click(topView, "pad_25");
        press(Qt::Key_Up);
        const int scrolled = topView->verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        dialog->setDisplayUnits(0);
        QCOMPARE(selectedNames(topView), QStringList("pad_24"));
        QCOMPARE(currentName(topView), QString("pad_24"));
        QCOMPARE(topView->verticalScrollBar()->value(), scrolled);
        QVERIFY(topView->hasFocus());
        QCOMPARE(visibleNames(chosenList), QStringList({"depth", "note"}));
        QCOMPARE(records(), before);
    }

    void fillUnderAFilterIsRepeatedWithoutIt_data() { addWays({"text", "group", "entity"}); }
    void fillUnderAFilterIsRepeatedWithoutIt()
    {
        QStringList all = visibleNames(topView);
        choose({"pad_01"});
        const auto narrow = [&](bool narrowed) {
            if (way() == "text")
                filterText->setText(narrowed ? "pad" : "");
            else if (way() == "group")
                groupList->setCurrentText(narrowed ? "Pads" : "All Groups");
            else
                entityList->setCurrentIndex(narrowed ? 0 : entityList->count() - 1);
        };
        narrow(true);
        dialog->setDisplayUnits(1);
        QCOMPARE(topView->rowCount(), way() == "entity" ? 48 : 40);
        narrow(false);
        QCOMPARE(topView->rowCount(), int(all.size()));
        if (!inFilter() && way() != "entity")
            all.removeOne("pad_01");
        QCOMPARE(visibleNames(topView), all);
        QCOMPARE(visibleNames(chosenList), QStringList("pad_01"));
    }

private:
    /// The visible names of both tables, and the chosen records.
    using State = std::tuple<QStringList, QStringList, QList<QByteArray>>;

    void changeAtRandom(int kind, QRandomGenerator &random)
    {
        const auto oneOf = [&random](const QStringList &names) {
            return names[random.bounded(int(names.size()))];
        };
        if (kind == 0 || chosenList->rowCount() == 0) {
            click(topView, oneOf(visibleNames(topView)));
            press(Qt::Key_Return);
            return;
        }
        click(chosenList, oneOf(visibleNames(chosenList)));
        click(chosenList, oneOf(visibleNames(chosenList)), Name, Qt::ShiftModifier);
        if (kind == 1)
            press(Qt::Key_Delete);
        else if (kind == 2 && random.bounded(4) == 0)
            click(clearButton);
        else if (kind == 3)
            QTimer::singleShot(0, dialog->findChild<QMenu *>()->actions().last(), &QAction::trigger);
        else
            enter(currentName(chosenList), QString::number(random.bounded(9)));
        QCoreApplication::processEvents();
    }

    /// Drags a selected row of one table over the middle of the other and drops it there. The test sends the drop itself,
    /// with the data that the table gives to the drag, since not every platform drags with simulated events.
    void drag(QTableWidget *from, const char *attribute, const QTableWidget *to)
    {
        bool dropped = false;
        const auto drop = [&] {
            const auto *running = from->findChild<QDrag *>();
            if (dropped || !running)
                return false;
            const QPoint place = to->viewport()->rect().center();
            QDragEnterEvent enter(place, Qt::CopyAction, running->mimeData(), Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(to->viewport(), &enter);
            QDropEvent event(place, Qt::CopyAction, running->mimeData(), Qt::LeftButton, Qt::NoModifier);
            if (enter.isAccepted())
                QCoreApplication::sendEvent(to->viewport(), &event);
            return dropped = true;
        };
        // A drag may run its own event loop, which only a timer interrupts.
        QTimer timer;
        timer.callOnTimeout(this, [&] {
            if (drop())
                QDrag::cancel();
        });
        timer.start(100);
        QWidget *area = from->viewport();
        const QPoint start = cellRect(from, attribute, Name).center();
        QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, start);
        for (int step = 1; step < 4 && !dropped && !from->findChild<QDrag *>(); ++step) {
            const QPoint place = start + QPoint(0, step * QApplication::startDragDistance());
            QMouseEvent move(QEvent::MouseMove, place, area->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(area, &move);
        }
        drop();
        QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, start);
        QVERIFY(QTest::qWaitFor([&dropped] { return dropped; }));
    }
};

QTEST_MAIN(TransferTest)
#include "tst_transfer.moc"
