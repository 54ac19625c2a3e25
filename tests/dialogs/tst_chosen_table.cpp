#include "dialog_test.h"

#include <QClipboard>
#include <QScrollBar>

/// The lower half of the dialog: removing rows, the context menu, and what must not change by itself.
class ChosenTableTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void removeByEveryWay_data() { addRows({"button", "mnemonic", "Delete"}); }
    void removeByEveryWay()
    {
        QVERIFY(open(kind()));
        choose({"note", "width", "depth", "finish", "plated"});
        const auto remove = [&] {
            if (way() == "button")
                click(removeButton);
            else if (way() == "Delete")
                press(Qt::Key_Delete);
            else
                pressMnemonic(removeButton->text());
        };
        click(chosenList, "width");
        click(chosenList, "finish", Value, Qt::ControlModifier);
        events.clear();
        remove();
        QCOMPARE(events, QStringList({"-width", "-finish"}));
        QCOMPARE(visibleNames(chosenList), QStringList({"note", "depth", "plated"}));
        for (const char *next : {"plated", "depth", "note", ""}) {
            QCOMPARE(currentName(chosenList), QString(next));
            QCOMPARE(selectedNames(chosenList).value(0), QString(next));
            QVERIFY(chosenList->hasFocus() && dialog->isVisible());
            QCOMPARE(removeButton->isEnabled(), *next != '\0');
            QCOMPARE(clearButton->isEnabled(), *next != '\0');
            remove();
        }
        QCOMPARE(visibleNames(topView).size(), kind() == Filter ? 48 : 47);
    }

    void buttonsFollowTheSelection()
    {
        QVERIFY(open(Assign));
        QVERIFY(addButton->isEnabled() && !removeButton->isEnabled() && !undoButton->isEnabled());
        setFilter("width");
        press(Qt::Key_Return);
        QVERIFY(!addButton->isEnabled() && removeButton->isEnabled());
        setFilter("nothing has this");
        dialog->setDisplayUnits(1);
        QVERIFY(!addButton->isEnabled() && removeButton->isEnabled());
        chosenList->clearSelection();
        filterText->clear();
        QVERIFY(addButton->isEnabled() && !removeButton->isEnabled());
    }

    void nothingChangesUnasked_data() { addRows(); }
    void nothingChangesUnasked()
    {
        QVERIFY(open(kind()));
        const QStringList attributes = {"note", "finish", "width", "depth", "colour"};
        choose(attributes);
        enter("width", pick("5\t9", "5"));
        const QList<QByteArray> before = records();
        events.clear();
        for (const QString &attribute : attributes) {
            click(chosenList, attribute);
            press(Qt::Key_F2);
            QVERIFY2(editor(), qPrintable(attribute));
            turnWheelOver(editor());
            for (QWidget *part : editor()->findChildren<QWidget *>())
                turnWheelOver(part);
            type("8");
            press(Qt::Key_Escape);
            QVERIFY(!editor() && dialog->isVisible() && chosenList->hasFocus());
            QCOMPARE(currentName(chosenList), attribute);
        }
        const int entity = entityList->currentIndex();
        for (QWidget *under : std::initializer_list<QWidget *>{chosenList->viewport(), topView->viewport(),
                                                               entityList, groupList})
            turnWheelOver(under);
        QCOMPARE(entityList->currentIndex(), entity);
        QCOMPARE(groupList->currentIndex(), 0);
        for (int key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_End})
            press(key);
        setFilter("pad");
        press(Qt::Key_Escape);
        dialog->resize(dialog->size() + QSize(60, 40));
        QCoreApplication::processEvents();
        QCOMPARE(records(), before);
        QVERIFY(!events.contains("commit"));
    }

    void screenFollowsCommitAndMenu_data() { addRows(); }
    void screenFollowsCommitAndMenu()
    {
        QVERIFY(open(kind()));
        choose({"finish"});
        const auto cell = [this] {
            // Without the frame around the current row.
            const QRect area = cellRect(chosenList, "finish", Value).adjusted(2, 2, -2, -2);
            return screenshot(chosenList->viewport(), area);
        };
        const QImage atFirst = cell();
        for (int key : {Qt::Key_F2, Qt::Key_Down, Qt::Key_Return})
            press(key);
        QCOMPARE(resultOf("finish"), pick("finish = gloss", "gloss"));
        QCOMPARE(preview->text(), pick("Result: finish = gloss", ""));
        QVERIFY(cell() != atFirst);
        for (int key : {Qt::Key_Menu, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
            press(key);
        QCOMPARE(resultOf("finish"), pick("finish", "matt"));
        QCOMPARE(preview->text(), pick("Result: finish", ""));
        QCOMPARE(cell(), atFirst);
    }

    void contextMenuByKey_data() { addRows({"Menu", "Shift+F10", "of the platform"}); }
    void contextMenuByKey()
    {
        const auto ask = [this] {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1),
                                    chosenList->mapToGlobal(QPoint(1, 1)));
            if (way() == "Menu")
                press(Qt::Key_Menu);
            else if (way() == "Shift+F10")
                press(Qt::Key_F10, Qt::ShiftModifier);
            else
                QCoreApplication::sendEvent(chosenList, &event);
        };
        QVERIFY(open(kind()));
        chosenList->setFocus();
        ask();
        QVERIFY(!openMenu());
        setFilter("pad");
        topView->selectAll();
        press(Qt::Key_Return);
        chosenList->setFocus();
        press(Qt::Key_End);
        chosenList->verticalScrollBar()->setValue(0);
        ask();
        QVERIFY(openMenu());
        const QRect row = chosenList->visualItemRect(chosenList->currentItem()).adjusted(0, -2, 9999, 2);
        QVERIFY(chosenList->viewport()->rect().contains(QPoint(9, row.center().y())));
        // A menu without room below opens upwards.
        const QRect menu = openMenu()->geometry();
        QVERIFY(row.contains(chosenList->viewport()->mapFromGlobal(menu.topLeft())) ||
                row.contains(chosenList->viewport()->mapFromGlobal(menu.bottomLeft())));
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QVERIFY(editor());
        type(pick("3\t4", "3"));
        press(Qt::Key_Return);
        QCOMPARE(resultOf("pad_39"), pick("3 <= pad_39 <= 4", "3"));
    }

    void contextMenuByMouse()
    {
        QVERIFY(open(Filter));
        dialog->resize(dialog->width(), 700);
        choose({"note", "width", "depth"});
        enter("note", "a");
        enter("width", "5\t9");
        enter("depth", "1\t2");
        const auto itemsAt = [this](const char *attribute) {
            click(chosenList, attribute, Value, Qt::NoModifier, Qt::RightButton);
            QStringList names;
            for (const QTableWidgetItem *item : dialog->getItemsForContextMenuCallback())
                names << (item->column() == Value ? nameAt(chosenList, item->row()) : "of a wrong column");
            return names;
        };
        click(chosenList, "note");
        click(chosenList, "width", Name, Qt::ControlModifier);
        QCOMPARE(itemsAt("width"), QStringList({"note", "width"}));
        QVERIFY(openMenu());
        press(Qt::Key_Escape);
        QVERIFY(!openMenu() && dialog->isVisible());
        QCOMPARE(itemsAt("depth"), QStringList("depth"));
        press(Qt::Key_Escape);
        click(chosenList, "note", Name, Qt::ControlModifier);
        QCOMPARE(itemsAt("note"), QStringList({"note", "depth"}));
        openMenu()->setActiveAction(openMenu()->actions().last());
        press(Qt::Key_Return);
        QCOMPARE(results(), QStringList({"note", "5 <= width <= 9", "depth"}));
    }

    void linesAreCopied_data() { addRows(); }
    void linesAreCopied()
    {
        QVERIFY(open(kind()));
        choose({"note", "width", "finish"});
        enter("width", pick("5\t9", "5"));
        click(chosenList, "finish", Name, Qt::ShiftModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 pick("5 <= width <= 9\nfinish", "width\t5\nfinish\tmatt"));
    }

    void descriptionTellsOfTheCurrentRow_data() { addRows(); }
    void descriptionTellsOfTheCurrentRow()
    {
        QVERIFY(open(kind()));
        QVERIFY(description->textInteractionFlags() & Qt::TextSelectableByMouse);
        click(topView, "width");
        QVERIFY(description->text().contains("Width of it") && description->text().contains("integer"));
        choose({"depth", "note"});
        QVERIFY(description->text().contains("depth"));
        press(Qt::Key_F2);
        QVERIFY2(description->text().contains("-100.000 to 2000.000"), qPrintable(description->text()));
        press(Qt::Key_Escape);
        QVERIFY(!description->text().contains("Allowed"));
        press(Qt::Key_Down);
        QVERIFY(description->text().contains("Note"));
    }
};

DIALOG_TEST_MAIN(ChosenTableTest)
#include "tst_chosen_table.moc"
