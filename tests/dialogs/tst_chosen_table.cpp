#include "dialog_test.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocumentFragment>

/// The lower half of the dialog: removing rows, the context menu, repainting, and the line of description.
class ChosenTableTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void removingLeavesTheNextRowCurrent()
    {
        choose({"note", "width", "depth", "finish", "plated"});
        click(chosenList, "width");
        click(chosenList, "finish", Value, Qt::ControlModifier);
        events.clear();
        press(Qt::Key_Delete);
        QCOMPARE(events, QStringList({"-width", "-finish"}));
        QCOMPARE(visibleNames(chosenList), QStringList({"note", "depth", "plated"}));
        for (const char *next : {"plated", "depth", "note", ""}) {
            QCOMPARE(currentName(chosenList), QString(next));
            QCOMPARE(selectedNames(chosenList).value(0), QString(next));
            QVERIFY(chosenList->hasFocus());
            press(Qt::Key_Delete);
        }
        QCOMPARE(visibleNames(topView).size(), inFilter() ? 49 : 48);
    }

    void wheelChangesNeitherEditorNorCriteria()
    {
        const int entity = entityList->currentIndex();
        choose({"width"});
        press(Qt::Key_F2);
        const QList<QByteArray> before = records();
        for (QWidget *widget : QList<QWidget *>{QApplication::focusWidget(), entityList, groupList})
            turnWheelOver(widget);
        QCOMPARE(entityList->currentIndex(), entity);
        QCOMPARE(groupList->currentIndex(), 0);
        click(filterText);
        QCOMPARE(records(), before);
    }

    void commitAndMenuRepaintTheRow()
    {
        choose({"finish"});
        const auto cell = [this] {
            // Without the frame around the current row.
            const QRect area = cellRect(chosenList, "finish", Value).adjusted(2, 2, -2, -2);
            const QRect inDialog(chosenList->viewport()->mapTo(dialog.get(), area.topLeft()), area.size());
            return dialog->screen()->grabWindow(dialog->winId()).toImage().copy(inDialog);
        };
        const QImage atFirst = cell();
        press({Qt::Key_F2, Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(resultOf("finish"), pick("finish = gloss", "gloss"));
        QCOMPARE(preview->text(), pick("Result: finish = gloss", ""));
        QTRY_VERIFY(cell() != atFirst);
        press({Qt::Key_Menu, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(resultOf("finish"), pick("finish", "matt"));
        QTRY_COMPARE(preview->text(), pick("Result: finish", ""));
        QTRY_COMPARE(cell(), atFirst);
    }

    void selectionIsMutedWithoutTheKeyboard()
    {
        const auto isBright = [this](QTableWidget *table, const char *attribute) {
            const QRect cell = cellRect(table, attribute, Name).adjusted(2, 2, -2, -2);
            const QColor corner = table->viewport()->grab(cell).toImage().pixelColor(cell.width() - 1, 0);
            // The style draws a gradient.
            return qAbs(corner.lightness() - table->palette().color(QPalette::Highlight).lightness()) < 20;
        };
        choose({"finish"});
        click(topView, "note");
        QVERIFY(isBright(topView, "note") && !isBright(chosenList, "finish"));
        click(chosenList, "finish");
        QVERIFY(isBright(chosenList, "finish") && !isBright(topView, "note"));
        press(Qt::Key_F2);
        QVERIFY(isBright(chosenList, "finish") && !isBright(topView, "note"));
        click(filterText);
        QVERIFY(!isBright(chosenList, "finish") && !isBright(topView, "note"));
    }

    void contextMenuByKey_data() { addWays({"Menu", "Shift+F10", "of the platform"}); }
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
        press({Qt::Key_Down, Qt::Key_Return});
        QVERIFY(editor());
        QCOMPARE(currentName(chosenList), QString("pad_39"));
    }

    void contextMenuByMouse()
    {
        dialog->resize(dialog->width(), 700);
        choose({"note", "width", "depth"});
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
        QVERIFY(!openMenu());
        QVERIFY(dialog->isVisible());
        QCOMPARE(itemsAt("depth"), QStringList("depth"));
        press(Qt::Key_Escape);
        click(chosenList, "note", Name, Qt::ControlModifier);
        QCOMPARE(itemsAt("note"), QStringList({"note", "depth"}));
        press(Qt::Key_Escape);
    }

    void tagsAreShownAsText()
    {
        choose({"note"});
        enter("note", "<b>x");
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            QVERIFY2(label->textFormat() == Qt::PlainText, qPrintable(label->objectName()));
        QCOMPARE(QTextDocumentFragment::fromHtml(preview->toolTip()).toPlainText(), preview->text());
    }

    void linesAreCopiedAsSorted()
    {
        choose({"note", "width", "finish"});
        clickHeader(chosenList, Name);
        enter("width", pick("5\t9", "5"));
        click(chosenList, "finish", Name, Qt::ShiftModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 pick("finish\nnote\n5 <= width <= 9", "finish\tmatt\nnote\tnone\nwidth\t5"));
    }

    void rowsOfEqualTextKeepTheirOrder()
    {
        choose({"depth", "width", "note", "finish"});
        for (const char *name : {"depth", "width"})
            enter(name, pick("5\t9", "5"));
        clickHeader(chosenList, Value);
        click(chosenList, "note");
        press(Qt::Key_Delete);
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(visibleNames(chosenList).join(' '),
                 pick("width depth note finish", "width depth finish note"));
    }

    void editThatBreaksTheOrderHidesTheArrow()
    {
        choose({"pad_02", "pad_01"});
        clickHeader(chosenList, Value);
        QStringList names = {pick("pad_02", "pad_01"), pick("pad_01", "pad_02")};
        enter("pad_02", "5");
        QVERIFY(chosenList->horizontalHeader()->isSortIndicatorShown());
        enter("pad_01", pick("1", "9"));
        QVERIFY(!chosenList->horizontalHeader()->isSortIndicatorShown());
        choose({"pad_03"});
        names << "pad_03";
        QCOMPARE(visibleNames(chosenList), names);
        click(chosenList, names[1]);
        press(Qt::Key_Delete);
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(visibleNames(chosenList), names);
        for (int clicks = 0; clicks < 3; ++clicks)
            clickHeader(chosenList, Name);
        QCOMPARE(visibleNames(chosenList), QStringList({"pad_02", "pad_01", "pad_03"}));
    }

    void currentRowIsDescribed()
    {
        choose({"depth", "note"});
        press({Qt::Key_F2, Qt::Key_Escape});
        QVERIFY(!description->text().contains("Allowed"));
        press(Qt::Key_Down);
        QVERIFY(description->text().contains("Note"));
        press(Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(selectedNames(chosenList), QStringList("note"));
        QVERIFY(description->text().contains("depth"));
        topView->setFocus();
        const QString before = description->text();
        press(Qt::Key_Down, Qt::ControlModifier);
        QVERIFY(description->text() != before);
    }

private:
    static QMenu *openMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

    static void turnWheelOver(QWidget *widget)
    {
        const QPoint place = widget->rect().center();
        QWheelEvent event(place, widget->mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &event);
    }
};

QTEST_MAIN(ChosenTableTest)
#include "tst_chosen_table.moc"
