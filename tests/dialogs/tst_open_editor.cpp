#include "dialog_test.h"

#include <QAbstractSpinBox>

#include <functional>

/// One cell editor: how it opens, what it takes, and what becomes of it when the user does something else.
class OpenEditorTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void opensByEveryWay_data() { addRows({"F2", "Enter", "name", "value", "menu", "host"}); }
    void opensByEveryWay()
    {
        QVERIFY(open(kind()));
        dialog->editCurrentItem();
        QVERIFY(!editor());
        choose({"note", "width"});
        click(chosenList, "width", Value);
        for (int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_X, Qt::Key_7, Qt::Key_Space})
            press(key);
        QVERIFY(!editor());
        click(chosenList, "width");
        if (way() == "F2")
            press(Qt::Key_F2);
        else if (way() == "Enter")
            press(Qt::Key_Return);
        else if (way() == "host")
            dialog->editCurrentItem();
        else if (way() != "menu")
            doubleClick(chosenList, "width", way() == "name" ? Name : Value);
        else
            for (int key : {Qt::Key_Menu, Qt::Key_Down, Qt::Key_Return})
                press(key);
        QVERIFY(editor());
        QVERIFY(cellRect(chosenList, "width", Value).contains(editor()->geometry().center()));
        type("42");
        press(Qt::Key_Return);
        QCOMPARE(resultOf("width"), pick("42 <= width <= 100", "42"));
        QVERIFY(chosenList->hasFocus() && dialog->isVisible());
        QCOMPARE(events.count("commit"), 1);
    }

    void booleansHaveNone()
    {
        QVERIFY(open(Filter));
        choose({"plated"});
        press(Qt::Key_F2);
        press(Qt::Key_Return);
        doubleClick(chosenList, "plated", Value);
        dialog->editCurrentItem();
        QVERIFY(!editor() && dialog->isVisible());
    }

    void rangeByKeyboard_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("line");
        QTest::newRow("int") << "width"
                             << "5\t9"
                             << "5 <= width <= 9";
        QTest::newRow("int, turned round") << "width"
                                           << "9\t5"
                                           << "5 <= width <= 9";
        QTest::newRow("float") << "depth"
                               << "-1.5\t2.25"
                               << "-1.500 <= depth <= 2.250";
        QTest::newRow("float, turned round") << "depth"
                                             << "9\t5"
                                             << "5.000 <= depth <= 9.000";
    }
    void rangeByKeyboard()
    {
        QFETCH(QString, attribute);
        QFETCH(QString, keys);
        QFETCH(QString, line);
        QVERIFY(open(Filter));
        choose({"note", attribute, "finish"});
        enter(attribute, keys);
        QCOMPARE(resultOf(attribute), line);
        press(Qt::Key_F2);
        const QPointer<QWidget> from = QApplication::focusWidget();
        press(Qt::Key_Tab);
        QVERIFY(from && !from->hasFocus() && editor()->isAncestorOf(QApplication::focusWidget()));
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(from && from->hasFocus());
        type("1");
        press(Qt::Key_Escape);
        QCOMPARE(resultOf(attribute), line);
        QVERIFY(!editor() && chosenList->hasFocus() && dialog->isVisible());
        QCOMPARE(currentName(chosenList), attribute);
        QCOMPARE(events.count("commit"), 1);
    }

    void deleteInsideDeletesText()
    {
        QVERIFY(open(Assign));
        choose({"note"});
        for (int key : {Qt::Key_F2, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Return})
            press(key);
        QCOMPARE(results(), QStringList("one"));
    }

    void meetsAnotherAction_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QStringList>("edit");
        QTest::addColumn<QString>("action");
        // Attribute, keys and result; "v" is the Down key.
        const QStringList edits[] = {{"note", "abc", "note = abc"},
                                     {"finish", "v", "finish = gloss"},
                                     {"width", "5\t9", "5 <= width <= 9"},
                                     {"depth", "1\t2", "1.000 <= depth <= 2.000"},
                                     {"note", "abc", "abc"},
                                     {"finish", "v", "gloss"},
                                     {"colour", "teal", "teal"},
                                     {"width", "5", "5"},
                                     {"depth", "1.5", "1.500"}};
        for (int i = 0; i < 9; ++i) {
            for (const char *action :
                 {"OK", "Alt+OK", "add", "Alt+add", "double-click", "remove", "clear all", "entity", "group",
                  "filter", "Ctrl+F", "units", "menu", "sort", "row", "Cancel", "Escape", "close"}) {
                if (i < 4 || qstrcmp(action, "entity") != 0)
                    QTest::addRow("%s %s, %s", i < 4 ? "filter" : "assign", qPrintable(edits[i][0]), action)
                        << int(i < 4 ? Filter : Assign) << edits[i] << action;
            }
        }
    }
    /// What was entered is stored once and before the action; or it is dropped, by what drops everything.
    void meetsAnotherAction()
    {
        QFETCH(QStringList, edit);
        QFETCH(QString, action);
        QVERIFY(open(kind()));
        choose({"plated", edit[0]});
        click(topView, "pad_01");
        click(chosenList, edit[0]);
        const QString before = resultOf(edit[0]);
        press(Qt::Key_F2);
        QVERIFY(editor());
        if (edit[0] == "colour")
            press(Qt::Key_A, Qt::ControlModifier);
        if (edit[1] == "v")
            press(Qt::Key_Down);
        else
            type(edit[1]);
        events.clear();
        act(action);
        if (QTest::currentTestFailed())
            return;
        if (action == "Cancel" || action == "Escape" || action == "close") {
            QCOMPARE(events, action == "Escape" ? QStringList() : QStringList("rejected"));
            QCOMPARE(resultOf(edit[0]), before);
            return;
        }
        QCOMPARE(events.count("commit"), 1);
        QCOMPARE(events.first(), QString("commit"));
        const QHash<QString, QString> next = {
            {"OK", "accepted"}, {"Alt+OK", "accepted"},   {"add", "+pad_01"},         {"Alt+add", "+pad_01"},
            {"entity", "pass"}, {"group", "pass"},        {"filter", "pass"},         {"menu", "menu"},
            {"remove", "-%1"},  {"clear all", "-plated"}, {"double-click", "+pad_02"}};
        QCOMPARE(events.value(1), QString(next.value(action)).replace("%1", edit[0]));
        QVERIFY(!editor());
        if (action == "remove" || action == "clear all")
            click(undoButton);
        QCOMPARE(resultOf(edit[0]), edit[2]);
    }

    void bothDecimalSigns_data() { addRows({"C", "de_DE", "fr_FR"}); }
    void bothDecimalSigns()
    {
        QLocale::setDefault(QLocale(way()));
        QVERIFY(open(kind()));
        choose({"depth"});
        for (const char *keys : {"12.5", "13,5", "1,000", "1999"}) {
            enter("depth", keys);
            const QString number = QString::number(QString(keys).replace(',', '.').toDouble(), 'f', 3);
            QCOMPARE(resultOf("depth"), pick("%1 <= depth <= 2000.000", "%1").replace("%1", number));
        }
        QCOMPARE(chosenList->item(0, Value)->text(), pick("1999.000 to 2000.000", "1999.000"));
        press(Qt::Key_F2);
        for (const QAbstractSpinBox *box : editor()->findChildren<QAbstractSpinBox *>())
            QVERIFY(box->text() == "1999.000" || box->text() == "2000.000");
        for (int key : {Qt::Key_4, Qt::Key_Comma, Qt::Key_2})
            press(key, Qt::KeypadModifier);
        press(Qt::Key_Return);
        QCOMPARE(resultOf("depth"), pick("4.200 <= depth <= 2000.000", "4.200"));
    }

private:
    void act(const QString &action)
    {
        QPushButton *ok = standardButton(QDialogButtonBox::Ok);
        const auto change = [this](QComboBox *list, int key) {
            list->setFocus(Qt::ShortcutFocusReason);
            press(key);
        };
        const auto typeFilter = [this] {
            clickAt(filterText, QPoint(30, filterText->height() / 2));
            type("a");
        };
        const QHash<QString, std::function<void()>> actions = {
            {"OK", [&] { click(ok); }},
            {"Alt+OK", [&] { QVERIFY(pressMnemonic(ok->text())); }},
            {"add", [&] { click(addButton); }},
            {"Alt+add", [&] { QVERIFY(pressMnemonic(addButton->text())); }},
            {"double-click", [&] { doubleClick(topView, "pad_02"); }},
            {"remove", [&] { click(removeButton); }},
            {"clear all", [&] { click(clearButton); }},
            {"entity", [&] { change(entityList, Qt::Key_Up); }},
            {"group", [&] { change(groupList, Qt::Key_Down); }},
            {"filter", typeFilter},
            {"Ctrl+F", [&] { press(Qt::Key_F, Qt::ControlModifier); }},
            {"units", [&] { dialog->setDisplayUnits(-1); }},
            {"menu", [&] { click(chosenList, "plated", Value, Qt::NoModifier, Qt::RightButton); }},
            {"sort", [&] { clickHeader(chosenList, Name); }},
            {"row", [&] { click(chosenList, "plated"); }},
            {"Cancel", [&] { click(standardButton(QDialogButtonBox::Cancel)); }},
            {"Escape", [&] { press(Qt::Key_Escape); }},
            {"close", [&] { dialog->close(); }}};
        actions[action]();
    }
};

DIALOG_TEST_MAIN(OpenEditorTest)
#include "tst_open_editor.moc"
