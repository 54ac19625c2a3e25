#include "dialog_test.h"

#include "gen/gen_control.h"

#include <QAccessible>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSplitter>
#include <QTemporaryDir>
#include <QToolTip>

using namespace Zudunmaf;

/// The dialog as a whole: order, sizes, names, keys, pictures and language.
class DialogFrameTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void tabFollowsTheEye()
    {
        QCOMPARE(QApplication::focusWidget(), filterText);
        choose({"width"});
        press(Qt::Key_F, Qt::ControlModifier);
        QList<QWidget *> stops;
        do {
            stops << QApplication::focusWidget();
            press(Qt::Key_Tab);
            QVERIFY(stops.size() < 20);
        } while (QApplication::focusWidget() != filterText);
        const QList<QWidget *> expected = {filterText, topView,  addButton,    removeButton, clearButton,
                                           chosenList, okButton, cancelButton, entityList,   groupList};
        QCOMPARE(stops, expected);
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), groupList);
    }

    void enterEndsFromOkAlone()
    {
        choose({"plated", "width"});
        for (QWidget *place : std::initializer_list<QWidget *>{filterText, topView, entityList, groupList,
                                                               removeButton, chosenList}) {
            place->setFocus();
            press(Qt::Key_Return);
            press(Qt::Key_Enter, Qt::KeypadModifier);
            if (QApplication::activePopupWidget() || editor())
                press(Qt::Key_Escape);
            QVERIFY2(dialog->isVisible() && !events.contains("accepted"), qPrintable(place->objectName()));
        }
        okButton->setFocus();
        press(Qt::Key_Return);
        QCOMPARE(events.count("accepted"), 1);
    }

    void heldEnterAndSpaceDoNoMore()
    {
        choose({"note", "width"});
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        for (QWidget *place : std::initializer_list<QWidget *>{filterText, topView, chosenList})
            QCoreApplication::sendEvent(place, &held);
        QVERIFY(chosenList->rowCount() == 2 && !editor());
        for (QPushButton *button : {removeButton, undoButton}) {
            button->setFocus();
            press({Qt::Key_Space, Qt::Key_Space, Qt::Key_Space});
            QVERIFY(chosenList->hasFocus() && chosenList->rowCount() == (button == undoButton ? 2 : 0));
        }
    }

    void sizes()
    {
        QVERIFY(dialog->width() <= 1366 && dialog->height() <= 768 - 40);
        auto *splitter = dialog->findChild<QSplitter *>();
        splitter->setSizes({0, 10000});
        QVERIFY(splitter->sizes().first() > 0);
        splitter->setSizes({10000, 0});
        QVERIFY(splitter->sizes().last() > 0);
        dialog->resize(640, 480);
        QCoreApplication::processEvents();
        QCOMPARE(dialog->size(), QSize(640, 480));
        for (const QTableWidget *table : {topView, chosenList})
            QVERIFY(table->viewport()->height() >= 4 * table->verticalHeader()->defaultSectionSize());
    }

    void columnsAndRows_data() { addWays({"1", "2"}); }
    void columnsAndRows()
    {
        const QFont plain = QApplication::font();
        QFont font = plain;
        font.setPointSizeF(plain.pointSizeF() * way().toInt());
        QApplication::setFont(font);
        QVERIFY(open());
        QApplication::setFont(plain);
        choose({LongName, "width"});
        QCOMPARE(topView->columnWidth(Name), chosenList->columnWidth(Name));
        QVERIFY(topView->columnWidth(Name) <= topView->viewport()->width() * 62 / 100);
        for (const QTableWidget *table : {topView, chosenList}) {
            QVERIFY(table->rowHeight(0) > table->fontMetrics().height());
            QVERIFY(!table->horizontalScrollBar()->isVisible());
        }
        QCOMPARE(topView->rowHeight(0), chosenList->rowHeight(0));
        press(Qt::Key_F2);
        QVERIFY(editor()->width() >= editor()->minimumSizeHint().width());
        press(Qt::Key_Escape);

        dialog->resize(640, 480);
        QCoreApplication::processEvents();
        topView->scrollToItem(topView->item(rowOf(topView, LongName), Name));
        const QTableWidgetItem *cell =
            inFilter() ? topView->item(rowOf(topView, LongName), Name) : chosenList->item(0, Name);
        const QPoint place = cell->tableWidget()->visualItemRect(cell).center();
        QHelpEvent help(QEvent::ToolTip, place, cell->tableWidget()->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(cell->tableWidget()->viewport(), &help);
        QVERIFY2(QToolTip::text().contains(LongName), qPrintable(QToolTip::text()));
        QToolTip::hideText();
        setFilter("pad");
        dialog->setFont(QFont(font.family(), 40));
        filterText->clear();
        QCOMPARE(topView->rowHeight(rowOf(topView, "note")), topView->rowHeight(rowOf(topView, "pad_00")));
    }

    void everythingHasAName()
    {
        choose({"width", "note", "finish", "depth"});
        for (QWidget *widget : dialog->findChildren<QWidget *>()) {
            const auto *read = QAccessible::queryAccessibleInterface(widget);
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus))
                QVERIFY2(!read->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
        }
        for (const char *attribute : {"width", "note", "finish", "depth"}) {
            click(chosenList, attribute);
            press(Qt::Key_F2);
            QVERIFY(editor());
            QStringList names;
            auto parts = editor()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
            parts << editor();
            for (const QWidget *part : parts) {
                if (!(part->focusPolicy() & Qt::TabFocus) || part->focusProxy())
                    continue;
                // A combo box is read aloud by its entry here, and by its own name elsewhere.
                names << part->accessibleName();
                QVERIFY(names.last().contains(attribute));
            }
            QVERIFY(!names.isEmpty());
            QCOMPARE(names.removeDuplicates(), 0);
            press(Qt::Key_Escape);
        }
    }

    void lettersAndLanguages()
    {
        const QStringList english = texts();
        for (const char *language : {"", "de"}) {
            gen::setLanguage(language);
            QVERIFY(open());
            QStringList letters;
            for (const QString &text : markedTexts())
                letters << QKeySequence::mnemonic(text).toString(QKeySequence::PortableText).right(1);
            QVERIFY2(!letters.contains(QString()), qPrintable(markedTexts().join(' ')));
            QCOMPARE(int(letters.size()), 11);
            QVERIFY2(letters.removeDuplicates() == 0, qPrintable(markedTexts().join(' ')));
        }
        // Words that both languages write alike, and what the dictionary says.
        const QStringList same = {"Name", "Symbol", "OK", "&OK", "&Filter:"};
        for (const QString &text : texts())
            QVERIFY2(!english.contains(text) || same.contains(text), qPrintable(text));
    }

    void pictures()
    {
        QTemporaryDir directory;
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        QVERIFY(picture.save(directory.filePath("tool.png")));
        QFile broken(directory.filePath("broken.png"));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
        broken.close();
        QDir::setSearchPaths("icons", {directory.path()});
        const QHash<QString, bool> found = {{"Add.ico", true},   {"Delete.ico", true},  {"tool.png", true},
                                            {"none.ico", false}, {"broken.png", false}, {"", false}};
        for (const QString &name : found.keys()) {
            QCOMPARE(dialog->setButtonPixmap(TvxAttributesSelectionDialog::Buttons_Remove, name),
                     found[name]);
            QVERIFY(!removeButton->icon().isNull() && !removeButton->text().isEmpty());
        }
        QDir::setSearchPaths("icons", {});
    }

    void pictureIsSeenOnEveryPalette()
    {
        for (int back : {30, 240}) {
            dialog->setPalette(QPalette(QColor(back, back, back)));
            const QColor middle = addButton->icon().pixmap(32, 32).toImage().pixelColor(16, 16);
            QVERIFY2(middle.alpha() > 200 && qAbs(middle.lightness() - back) > 120,
                     qPrintable(middle.name()));
        }
    }

private:
    /// The texts of the visible controls that are to have a key of their own.
    QStringList markedTexts() const
    {
        QStringList texts;
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->buddy())
                texts << label->text();
        }
        for (const QPushButton *button : dialog->findChildren<QPushButton *>())
            texts << button->text();
        return texts;
    }

    QStringList texts() const
    {
        QStringList texts = {filterText->placeholderText(), addButton->toolTip(),    undoButton->toolTip(),
                             topView->accessibleName(),     entityList->itemText(0), groupList->itemText(0)};
        texts << markedTexts();
        for (int column : {Name, Value})
            texts << chosenList->horizontalHeaderItem(column)->text();
        for (const QAction *action : dialog->findChild<QMenu *>()->actions())
            texts << action->text();
        return texts;
    }
};

QTEST_MAIN(DialogFrameTest)
#include "tst_dialog_frame.moc"
