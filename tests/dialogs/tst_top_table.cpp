#include "dialog_test.h"

#include <QScrollBar>

/// The upper half of the dialog: finding attributes and taking them over.
class TopTableTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void filterFieldWalksTheTable()
    {
        QVERIFY(open(Filter));
        type("d*_?2");
        QCOMPARE(visibleNames(topView), QStringList({"pad_02", "pad_12", "pad_22", "pad_32"}));
        const int keys[] = {Qt::Key_Down,     Qt::Key_Down, Qt::Key_Up,
                            Qt::Key_PageDown, Qt::Key_Down, Qt::Key_PageUp};
        const char *rows[] = {"pad_12", "pad_22", "pad_12", "pad_32", "pad_32", "pad_02"};
        for (int step = 0; step < 6; ++step) {
            press(keys[step]);
            QCOMPARE(currentName(topView), QString(rows[step]));
            QCOMPARE(selectedNames(topView), QStringList(rows[step]));
        }
        QCOMPARE(filterText->text(), QString("d*_?2"));
        QVERIFY(filterText->hasFocus());
    }

    void filterFieldIsFoundAndCleared_data() { addRows(); }
    void filterFieldIsFoundAndCleared()
    {
        QVERIFY(open(kind()));
        setFilter("pad");
        for (QWidget *from : std::initializer_list<QWidget *>{chosenList, topView, groupList, addButton}) {
            from->setFocus();
            press(Qt::Key_F, Qt::ControlModifier);
            QVERIFY(filterText->hasFocus());
            QCOMPARE(filterText->selectedText(), QString("pad"));
        }
        QVERIFY(filterText->isClearButtonEnabled() && filterText->placeholderText().contains("* and ?"));
        press(Qt::Key_Escape);
        QVERIFY(filterText->text().isEmpty() && dialog->isVisible());
        press(Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(events.last(), QString("rejected"));
    }

    void addByEveryWay_data() { addRows({"button", "mnemonic", "Enter", "filter", "double-click", "Space"}); }
    void addByEveryWay()
    {
        QVERIFY(open(kind()));
        click(topView, "width");
        if (way() == "button")
            click(addButton);
        else if (way() == "mnemonic")
            QVERIFY(pressMnemonic(addButton->text()));
        else if (way() == "double-click")
            doubleClick(topView, "width", Value);
        else if (way() == "filter")
            press(Qt::Key_F, Qt::ControlModifier);
        else if (way() == "Space")
            addButton->setFocus();
        if (way() == "Enter" || way() == "filter" || way() == "Space")
            press(way() == "Space" ? Qt::Key_Space : Qt::Key_Return);
        QCOMPARE(events, QStringList("+width"));
        QCOMPARE(visibleNames(chosenList), QStringList("width"));
        QCOMPARE(chosenList->item(0, Name)->text(), QString("width"));
        QVERIFY(chosenList->item(0, Name) != chosenList->item(0, Value));
        QVERIFY(dialog->isVisible() && !editor());
    }

    void addTakesVisibleRowsInTheirOrder_data() { addRows(); }
    void addTakesVisibleRowsInTheirOrder()
    {
        QVERIFY(open(kind()));
        setFilter("_?2");
        topView->setFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        events.clear();
        press(Qt::Key_Return);
        QCOMPARE(events, QStringList({"+pad_02", "+pad_12", "+pad_22", "+pad_32"}));
        QCOMPARE(selectedNames(chosenList), QStringList({"pad_02", "pad_12", "pad_22", "pad_32"}));
        QCOMPARE(visibleNames(topView).size(), kind() == Filter ? 4 : 0);
        QCOMPARE(addButton->isEnabled(), kind() == Filter);
        setFilter("_?[58]");
        click(topView, "pad_28");
        click(topView, "pad_15", Name, Qt::ShiftModifier);
        events.clear();
        press(Qt::Key_Return);
        QCOMPARE(events, QStringList({"+pad_15", "+pad_18", "+pad_25", "+pad_28"}));
    }

    void afterAdding_data() { addRows(); }
    void afterAdding()
    {
        QVERIFY(open(kind()));
        click(topView, "pad_20");
        const int scrolled = topView->verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        press(Qt::Key_Return);
        QVERIFY(topView->hasFocus());
        QCOMPARE(currentName(topView), pick("pad_20", "plated"));
        QCOMPARE(topView->verticalScrollBar()->value(), kind() == Filter ? scrolled : 0);
        setFilter("pad_1");
        topView->selectAll();
        press(Qt::Key_Return);
        setFilter("pad_30");
        press(Qt::Key_Return);
        QCOMPARE(selectedNames(chosenList), QStringList("pad_30"));
        QVERIFY(chosenList->viewport()->rect().contains(cellRect(chosenList, "pad_30", Name)));
    }

    void rowsOnOfferAreNotEdited()
    {
        QVERIFY(open(Filter));
        click(topView, "note");
        for (int key : {Qt::Key_F2, Qt::Key_X, Qt::Key_Space})
            press(key);
        doubleClick(topView, "note", Value);
        QVERIFY(topView->findChildren<QLineEdit *>().isEmpty());
        QCOMPARE(results(), QStringList("note"));
    }

    void countsFollowEachChange_data() { addRows(); }
    void countsFollowEachChange()
    {
        QVERIFY(open(kind()));
        const int total = kind() == Filter ? 48 : 47;
        const auto says = [&](int shown, int chosen) {
            return offeredLabel->text().endsWith(QString(" %1 of %2").arg(shown).arg(total)) &&
                   chosenLabel->text().endsWith(QString(" %1").arg(chosen));
        };
        QVERIFY(says(total, 0));
        setFilter("pad_1");
        QVERIFY(says(10, 0));
        press(Qt::Key_Return);
        QVERIFY(says(kind() == Filter ? 10 : 9, 1));
        click(removeButton);
        QVERIFY(says(10, 0));
        click(undoButton);
        QVERIFY(says(kind() == Filter ? 10 : 9, 1));
        click(clearButton);
        setFilter("nothing has this");
        QVERIFY(says(0, 0));
    }

    void emptyTablesSayWhy()
    {
        QList<QImage> pictures;
        const auto keep = [&](const QTableWidget *table) {
            const QImage picture = screenshot(table->viewport(), table->viewport()->rect());
            QImage blank(picture.size(), picture.format());
            blank.fill(picture.pixelColor(0, 0));
            const bool isNew = picture != blank && !pictures.contains(picture);
            pictures << picture;
            return isNew;
        };
        QVERIFY(open(Assign));
        QVERIFY(keep(chosenList));
        topView->selectAll();
        click(addButton);
        QVERIFY2(keep(topView), "nothing is left");
        setFilter("x");
        QVERIFY2(keep(topView), "nothing matches");
        QVERIFY(open(Assign, -2));
        QVERIFY2(keep(topView), "no dictionary");
    }

    void matchesAreMarked_data() { addRows({"AD_11", "p*?1", "pad_[12]1", "**"}); }
    void matchesAreMarked()
    {
        QVERIFY(open(kind()));
        QPalette palette = topView->palette();
        palette.setColor(QPalette::Highlight, Qt::red);
        topView->setPalette(palette);
        const auto reds = [&](int column) {
            topView->scrollToItem(topView->item(rowOf(topView, "pad_11"), Name));
            topView->clearSelection();
            const QImage cell = screenshot(topView->viewport(), cellRect(topView, "pad_11", column));
            int count = 0;
            for (int i = 0; i < cell.width() * cell.height(); ++i) {
                const QRgb pixel = cell.pixel(i % cell.width(), i / cell.width());
                count += qRed(pixel) > qBlue(pixel) + 40;
            }
            return count;
        };
        QCOMPARE(reds(Name), 0);
        setFilter(way());
        QCOMPARE(reds(Name) > 40, way() != "**");
        QCOMPARE(reds(Value), 0);
        filterText->clear();
        QCOMPARE(reds(Name), 0);
    }

    void headersSort_data() { addRows(); }
    void headersSort()
    {
        QVERIFY(open(kind()));
        const QStringList walk = visibleNames(topView);
        QStringList sorted = walk;
        std::sort(sorted.begin(), sorted.end());
        click(topView, "width");
        clickHeader(topView, Name);
        QCOMPARE(visibleNames(topView), sorted);
        QCOMPARE(currentName(topView), QString("width"));
        QCOMPARE(selectedNames(topView), QStringList("width"));
        for (int row = 0; row < topView->rowCount(); ++row)
            QCOMPARE(topView->item(row, Name)->text(), nameAt(topView, row));
        setFilter("t");
        clickHeader(topView, Name);
        QStringList found = sorted.filter("t");
        std::reverse(found.begin(), found.end());
        QCOMPARE(visibleNames(topView), found);
        choose({"note"});
        QCOMPARE(visibleNames(chosenList), QStringList("note"));
        QCOMPARE(visibleNames(topView).contains("note"), kind() == Filter);
        filterText->clear();
        click(clearButton);
        clickHeader(topView, Name);
        QCOMPARE(visibleNames(topView), walk);
        // By value, in "assign" 0, 1, 2, 0 ...: rows of equal text stay in their order.
        clickHeader(topView, Value);
        QStringList pads = walk.filter("pad_");
        const auto value = [](const QString &pad) { return kind() == Filter ? 0 : pad.mid(4).toInt() % 3; };
        std::stable_sort(pads.begin(), pads.end(), [&](auto &a, auto &b) { return value(a) < value(b); });
        QCOMPARE(visibleNames(topView).filter("pad_"), pads);
        choose({"pad_02", "pad_01", "note"});
        clickHeader(chosenList, Name);
        QCOMPARE(visibleNames(chosenList), QStringList({"note", "pad_01", "pad_02"}));
        enter("pad_02", "7");
        QVERIFY(resultOf("pad_02").contains('7') && !resultOf("pad_01").contains('7'));
    }
};

DIALOG_TEST_MAIN(TopTableTest)
#include "tst_top_table.moc"
