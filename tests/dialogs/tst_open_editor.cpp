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
};

QTEST_MAIN(OpenEditorTest)
#include "tst_open_editor.moc"
