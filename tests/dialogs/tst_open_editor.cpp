#include "dialog_test.h"

#include <QAbstractSpinBox>

/// One cell editor: how it opens, what it takes, and what becomes of it when the user does something else.
class OpenEditorTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void opensByEveryWay_data() { addWays({"F2", "Enter", "name", "value", "menu", "host"}); }
    void opensByEveryWay()
    {
        dialog->editCurrentItem();
        QVERIFY(!editor());
        choose({"note", "width"});
        click(chosenList, "width", Value);
        press({Qt::Key_Up, Qt::Key_Down, Qt::Key_X, Qt::Key_7, Qt::Key_Space});
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
            press({Qt::Key_Menu, Qt::Key_Down, Qt::Key_Return});
        QVERIFY(editor());
        QVERIFY(cellRect(chosenList, "width", Value).contains(editor()->geometry().center()));
        type("42");
        press(Qt::Key_Return);
        QCOMPARE(resultOf("width"), pick("42 <= width <= 100", "42"));
        QVERIFY(chosenList->hasFocus() && dialog->isVisible());
        QCOMPARE(events.count("commit"), 1);
    }

    void rangeByKeyboard()
    {
        if (!inFilter())
            QSKIP("values have one box");
        choose({"note", "width", "depth"});
        enter("width", "9\t5");
        enter("depth", "2.25\t-1.5");
        const QStringList lines = {"note", "5 <= width <= 9", "-1.500 <= depth <= 2.250"};
        QCOMPARE(results(), lines);
        for (const char *attribute : {"width", "depth"}) {
            click(chosenList, attribute);
            press(Qt::Key_F2);
            const QPointer<QWidget> from = QApplication::focusWidget();
            press(Qt::Key_Tab);
            QVERIFY(from && !from->hasFocus() && editor()->isAncestorOf(QApplication::focusWidget()));
            press(Qt::Key_Backtab, Qt::ShiftModifier);
            QVERIFY(from && from->hasFocus());
            type("1");
            press(Qt::Key_Escape);
            QVERIFY(!editor() && chosenList->hasFocus() && dialog->isVisible());
            QCOMPARE(currentName(chosenList), QString(attribute));
        }
        QCOMPARE(results(), lines);
        QCOMPARE(events.count("commit"), 2);
    }

    void deleteInsideDeletesText()
    {
        choose({"note"});
        enter("note", "abc");
        press({Qt::Key_F2, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Return});
        QCOMPARE(results(), QStringList(pick("note = bc", "bc")));
    }

    void meetsAnotherAction_data()
    {
        QTest::addColumn<QStringList>("edit");
        QTest::addColumn<QString>("action");
        // Attribute, keys and result in the filter dialog and in the other; "v" is the Down key.
        const QStringList edits[] = {{"note", "abc", "note = abc", "abc", "abc"},
                                     {"finish", "v", "finish = gloss", "v", "gloss"},
                                     {"colour", "teal", "colour = teal", "teal", "teal"},
                                     {"width", "5\t9", "5 <= width <= 9", "5", "5"},
                                     {"depth", "1\t2", "1.000 <= depth <= 2.000", "1.5", "1.500"}};
        for (const QStringList &edit : edits) {
            for (const QString &action : m_actions.keys())
                QTest::addRow("%s, %s", qPrintable(edit[0]), qPrintable(action)) << edit << action;
        }
    }
    /// What was entered is stored once and before the action; or it is dropped, by what drops everything.
    void meetsAnotherAction()
    {
        QFETCH(QStringList, edit);
        QFETCH(QString, action);
        if (action == "entity" && !inFilter())
            QSKIP("features are the only entity");
        const QString keys = edit[inFilter() ? 1 : 3];
        const QString result = edit[inFilter() ? 2 : 4];
        choose({"plated", edit[0]});
        click(topView, "pad_01");
        click(chosenList, edit[0]);
        const QString before = resultOf(edit[0]);
        press(Qt::Key_F2);
        QVERIFY(editor());
        if (edit[0] == "colour")
            press(Qt::Key_A, Qt::ControlModifier);
        if (keys == "v")
            press(Qt::Key_Down);
        else
            type(keys);
        events.clear();
        m_actions[action].run();
        if (QTest::currentTestFailed())
            return;
        if (action == "Cancel" || action == "Escape" || action == "close") {
            QCOMPARE(events, action == "Escape" ? QStringList() : QStringList("rejected"));
            QCOMPARE(resultOf(edit[0]), before);
            return;
        }
        QCOMPARE(events.count("commit"), 1);
        QCOMPARE(events.first(), QString("commit"));
        QCOMPARE(events.value(1), QString(m_actions[action].next).replace("%1", edit[0]));
        QVERIFY(!editor());
        QCOMPARE(dialog->isVisible(), !action.endsWith("OK"));
        if (action == "remove" || action == "clear all")
            click(undoButton);
        QCOMPARE(resultOf(edit[0]), result);
    }

    void bothDecimalSigns_data() { addWays({"C", "de_DE", "fr_FR"}); }
    void bothDecimalSigns()
    {
        QLocale::setDefault(QLocale(way()));
        QVERIFY(open());
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
    /// What the user does, and what happens next to the commit.
    struct Action {
        QString next;
        std::function<void()> run;
    };

    void pressOn(QComboBox *list, int key) const
    {
        list->setFocus(Qt::ShortcutFocusReason);
        press(key);
    }
    void typeIntoFilter() const
    {
        clickAt(filterText, QPoint(30, filterText->height() / 2));
        type("a");
    }

    const QMap<QString, Action> m_actions = {
        {"OK", {"accepted", [this] { click(okButton); }}},
        {"Alt+OK", {"accepted", [this] { QVERIFY(pushButton(*okButton)); }}},
        {"add", {"+pad_01", [this] { click(addButton); }}},
        {"Alt+add", {"+pad_01", [this] { QVERIFY(pushButton(*addButton)); }}},
        {"double-click", {"+pad_02", [this] { doubleClick(topView, "pad_02"); }}},
        {"remove", {"-%1", [this] { click(removeButton); }}},
        {"clear all", {"-plated", [this] { click(clearButton); }}},
        {"entity", {"pass", [this] { pressOn(entityList, Qt::Key_Up); }}},
        {"group", {"pass", [this] { pressOn(groupList, Qt::Key_Down); }}},
        {"filter", {"pass", [this] { typeIntoFilter(); }}},
        {"Ctrl+F", {"", [this] { press(Qt::Key_F, Qt::ControlModifier); }}},
        {"units", {"", [this] { dialog->setDisplayUnits(-1); }}},
        {"menu", {"menu", [this] { click(chosenList, "plated", Value, Qt::NoModifier, Qt::RightButton); }}},
        {"sort", {"", [this] { clickHeader(chosenList, Name); }}},
        {"row", {"", [this] { click(chosenList, "plated"); }}},
        {"host's OK", {"accepted", [this] { dialog->accept(); }}},
        {"Cancel", {"", [this] { click(cancelButton); }}},
        {"Escape", {"", [this] { press(Qt::Key_Escape); }}},
        {"close", {"", [this] { dialog->close(); }}}};
};

QTEST_MAIN(OpenEditorTest)
#include "tst_open_editor.moc"
