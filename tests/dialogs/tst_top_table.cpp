#include "dialog_test.h"

#include "dml/dml_control.h"
#include "gdm/host/dml_dictionary.h"
#include "gen/gen_control.h"

#include <QAbstractEventDispatcher>
#include <QScrollBar>

#include <dlfcn.h>

using namespace Zudunmaf;

static int walksUntilFailure = -1;

/// The service of the stand-in, whose chosen call fails.
int dml__atr_next(int did, int one, unsigned int entityMask, int *cursor, DmlAttrDef **definition)
{
    static const auto next = reinterpret_cast<decltype(&dml__atr_next)>(dlsym(RTLD_NEXT, "dml__atr_next"));
    return walksUntilFailure-- == 0 ? 1 : next(did, one, entityMask, cursor, definition);
}

class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }

    int count = 0;
};

/// The upper half of the dialog: finding attributes and adding them.
class TopTableTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsInTheFilterMoveTheCurrentRow()
    {
        type("d*_?2");
        QCOMPARE(visibleNames(topView), QStringList({"pad_02", "pad_12", "pad_22", "pad_32"}));
        const QPair<int, const char *> steps[] = {{Qt::Key_Down, "pad_12"}, {Qt::Key_Down, "pad_22"},
                                                  {Qt::Key_Up, "pad_12"},   {Qt::Key_PageDown, "pad_32"},
                                                  {Qt::Key_Down, "pad_32"}, {Qt::Key_PageUp, "pad_02"}};
        for (const auto &step : steps) {
            press(step.first);
            QCOMPARE(currentName(topView), QString(step.second));
            QCOMPARE(selectedNames(topView), QStringList(step.second));
        }
        QCOMPARE(filterText->text(), QString("d*_?2"));
        events.clear();
        press(Qt::Key_Return);
        QCOMPARE(events, QStringList("+pad_02"));
        QVERIFY(filterText->hasFocus());
    }

    void filterIsFocusedAndCleared()
    {
        setFilter("pad");
        for (QWidget *from : std::initializer_list<QWidget *>{chosenList, topView, groupList, addButton}) {
            from->setFocus();
            press(Qt::Key_F, Qt::ControlModifier);
            QVERIFY(filterText->hasFocus());
            QCOMPARE(filterText->selectedText(), QString("pad"));
        }
        QVERIFY(filterText->isClearButtonEnabled());
        press(Qt::Key_Escape);
        QCOMPARE(filterText->text(), QString());
        QVERIFY(dialog->isVisible());
        press(Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(events.last(), QString("rejected"));
    }

    void visibleSelectedRowsAreAddedInOrder()
    {
        setFilter("_?2");
        topView->setFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        events.clear();
        press(Qt::Key_Return);
        QCOMPARE(events, QStringList({"+pad_02", "+pad_12", "+pad_22", "+pad_32"}));
        QCOMPARE(selectedNames(chosenList), QStringList({"pad_02", "pad_12", "pad_22", "pad_32"}));
        QCOMPARE(visibleNames(topView).size(), inFilter() ? 4 : 0);
        QCOMPARE(addButton->isEnabled(), inFilter());
        setFilter("_?[58]");
        click(topView, "pad_28");
        click(topView, "pad_15", Name, Qt::ShiftModifier);
        events.clear();
        press(Qt::Key_Return);
        QCOMPARE(events, QStringList({"+pad_15", "+pad_18", "+pad_25", "+pad_28"}));
    }

    void currentRowAfterAdding()
    {
        click(topView, "pad_20");
        const int scrolled = topView->verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        press(Qt::Key_Return);
        QVERIFY(topView->hasFocus());
        QCOMPARE(currentName(topView), pick("pad_20", "plated"));
        QCOMPARE(topView->verticalScrollBar()->value(), inFilter() ? scrolled : 0);
        setFilter("pad_1");
        topView->selectAll();
        press(Qt::Key_Return);
        setFilter("pad_30");
        press(Qt::Key_Return);
        QCOMPARE(selectedNames(chosenList), QStringList("pad_30"));
        QVERIFY(chosenList->viewport()->rect().contains(cellRect(chosenList, "pad_30", Name)));
    }

    void availableRowsAreNotEdited()
    {
        click(topView, "note");
        press({Qt::Key_F2, Qt::Key_X, Qt::Key_Space});
        doubleClick(topView, "note", Value);
        const QPoint place = cellRect(topView, "width", Name).center();
        QTest::mouseClick(topView->viewport(), Qt::RightButton, {}, place);
        QTest::mouseDClick(topView->viewport(), Qt::RightButton, {}, place);
        QVERIFY(topView->findChildren<QLineEdit *>().isEmpty());
        QCOMPARE(results(), QStringList(pick("note", "none")));
    }

    void countsAndButtonsAreUpToDate()
    {
        const int total = inFilter() ? 49 : 48;
        const auto verifyCounts = [&](int visible, int chosen) {
            QCOMPARE(availableLabel->text().section(' ', -3), QString("%1 of %2").arg(visible).arg(total));
            QCOMPARE(chosenLabel->text().section(' ', -1), QString::number(chosen));
            QCOMPARE(int(dialog->getTopListItems(true).size()), visible);
            QCOMPARE(removeButton->isEnabled(), chosen > 0);
            QCOMPARE(clearButton->isEnabled(), chosen > 0);
        };
        verifyCounts(total, 0);
        QVERIFY(addButton->isEnabled());
        QVERIFY(!undoButton->isEnabled());
        topView->clearSelection();
        QVERIFY(!addButton->isEnabled());
        dialog->setTopViewRowsVisiblity(0, false);
        QTRY_VERIFY(availableLabel->text().contains(QString::number(total - 1)));
        setFilter("pad_1");
        press(Qt::Key_Return);
        verifyCounts(inFilter() ? 10 : 9, 1);
        click(removeButton);
        verifyCounts(10, 0);
        click(undoButton);
        verifyCounts(inFilter() ? 10 : 9, 1);
        setFilter("nothing has this");
        verifyCounts(0, 1);
        dialog->setDisplayUnits(1);
        QVERIFY(!addButton->isEnabled());
        QVERIFY(removeButton->isEnabled());
        chosenList->clearSelection();
        QVERIFY(!removeButton->isEnabled());
    }

    void disabledRowsAreNeitherAddedNorRemoved()
    {
        choose({"pad_30"});
        dialog->findItemByAttrName("pad_31")->setFlags(Qt::NoItemFlags);
        setFilter("pad_31");
        QVERIFY(!addButton->isEnabled());
        press(Qt::Key_Return);
        QCOMPARE(chosenList->rowCount(), 1);
        dialog->getChosenList()[0]->setFlags(Qt::NoItemFlags);
        click(clearButton);
        QCOMPARE(chosenList->rowCount(), 1);
    }

    void emptyTablesGiveTheReason()
    {
        QStringList reasons = {chosenList->accessibleDescription()};
        setFilter("nothing has this");
        reasons << topView->accessibleDescription();
        const QImage painted = topView->viewport()->grab().toImage();
        QImage blank(painted.size(), painted.format());
        blank.fill(painted.pixelColor(0, 0));
        QVERIFY(painted != blank);
        QVERIFY(open(-2));
        reasons << topView->accessibleDescription();
        if (!inFilter()) {
            QVERIFY(open());
            topView->selectAll();
            click(addButton);
            reasons << topView->accessibleDescription();
        }
        QVERIFY(!reasons.contains(QString()));
        QCOMPARE(reasons.removeDuplicates(), 0);
    }

    void currentRowIsSetBeforeTheFilterReturns()
    {
        setFilter("pad_2");
        QCOMPARE(currentAfterPass, QString("pad_20"));
        setFilter("nothing has this");
        QCOMPARE(currentAfterPass, QString());
    }

    void failedFillIsRepeated_data() { addWays({"configuration", "dictionary"}); }
    void failedFillIsRepeated()
    {
        gen::setConfigurationFile(way() == "configuration" ? "missing.ini" : "");
        QVERIFY(open(way() == "configuration" ? 0 : 7));
        QCOMPARE(topView->rowCount(), 0);
        QCOMPARE(topView->accessibleDescription(),
                 QString("The attributes could not be read, or there is no such dictionary."));
        type("x");
        QCOMPARE(topView->rowCount(), 0);
        gen::setConfigurationFile("");
        QVERIFY(dml::loadJson(R"({"dictionaries": [{"id": 7, "attributes": [{"name": "axis", "group": "Tools",
                "type": "boolean", "entities": "all", "default": true}]}]})",
                              "here"));
        entityList->setCurrentIndex(0);
        press(Qt::Key_Backspace);
        QCOMPARE(entityList->currentIndex(), 0);
        QCOMPARE(visibleNames(topView).first(), QString(way() == "configuration" ? "plated" : "axis"));
        QVERIFY(groupList->findText(way() == "configuration" ? "Holes" : "Tools") > 0);
    }

    void keysScrollAfterAChangeOfUnits()
    {
        click(topView, "width");
        dialog->setDisplayUnits(1);
        press(Qt::Key_End);
        QVERIFY(topView->viewport()->rect().contains(topView->visualItemRect(topView->currentItem())));
    }

    void failedWalkForTheGroupsIsRepeated()
    {
        walksUntilFailure = 0;
        QVERIFY(open());
        QCOMPARE(groupList->count(), 0);
        setFilter("width");
        QCOMPARE(visibleNames(topView), QStringList("width"));
        QVERIFY(groupList->findText("Holes") > 0);
    }

    void matchesAreHighlighted_data() { addWays({"AD_11", "p*?1", "pad_[12]1", "**"}); }
    void matchesAreHighlighted()
    {
        QPalette palette = topView->palette();
        palette.setColor(QPalette::Highlight, Qt::red);
        topView->setPalette(palette);
        const auto isRed = [&](int column) {
            topView->scrollToItem(topView->item(rowOf(topView, "pad_11"), Name));
            topView->clearSelection();
            QRect area = cellRect(topView, "pad_11", column);
            area.setWidth(80);
            const QImage mean = topView->viewport()->grab(area).toImage().scaled(1, 1, Qt::IgnoreAspectRatio,
                                                                                 Qt::SmoothTransformation);
            return mean.pixelColor(0, 0).red() > mean.pixelColor(0, 0).blue() + 5;
        };
        QVERIFY(!isRed(Name));
        setFilter(way());
        QCOMPARE(isRed(Name), way() != "**");
        QVERIFY(!isRed(Value));
        filterText->clear();
        QVERIFY(!isRed(Name));
    }

    /// All texts match more rows than fit, so that the scroll bar stays.
    void eachKeyPaintsTheRowsOnce()
    {
        PaintCounter paints;
        topView->viewport()->installEventFilter(&paints);
        for (const char *text : {"p", "pa", "pad", ""}) {
            while (QCoreApplication::eventDispatcher()->processEvents(QEventLoop::AllEvents)) {
            }
            paints.count = 0;
            filterText->setText(text);
            while (QCoreApplication::eventDispatcher()->processEvents(QEventLoop::AllEvents)) {
            }
            QCOMPARE(paints.count, 1);
        }
    }

    void typingSelectsARow_data() { addWays({"pl plated", "pad_2 pad_20", "ppp pad_01"}); }
    void typingSelectsARow()
    {
        QApplication::setKeyboardInputInterval(60000); // however slowly the keys come
        topView->setFocus();
        topView->setCurrentItem(nullptr);
        type(way().section(' ', 0, 0));
        QCOMPARE(currentName(topView), way().section(' ', 1));
    }

    void headerOfAvailableTableSorts()
    {
        const QStringList unsorted = visibleNames(topView);
        QStringList sorted = unsorted;
        std::sort(sorted.begin(), sorted.end());
        click(topView, "width");
        clickHeader(topView, Name);
        QCOMPARE(visibleNames(topView), sorted);
        dialog->setDisplayUnits(1);
        QCOMPARE(visibleNames(topView), sorted);
        QCOMPARE(selectedNames(topView), QStringList("width"));
        for (int row = 0; row < topView->rowCount(); ++row)
            QCOMPARE(topView->item(row, Name)->text(), nameAt(topView, row));
        setFilter("t");
        clickHeader(topView, Name);
        QStringList descending = sorted.filter("t");
        std::reverse(descending.begin(), descending.end());
        QCOMPARE(visibleNames(topView), descending);
        filterText->clear();
        clickHeader(topView, Name);
        QCOMPARE(visibleNames(topView), unsorted);
        // Equal values keep their order: the pads have 0, 1, 2, 0 ..., and the filter dialog shows no values.
        clickHeader(topView, Value);
        const QStringList pads = visibleNames(topView).filter("pad_");
        QCOMPARE(pads.mid(0, 2), QStringList({"pad_00", pick("pad_01", "pad_03")}));
    }
};

QTEST_MAIN(TopTableTest)
#include "tst_top_table.moc"
