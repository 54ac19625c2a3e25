#include "dialog_test.h"

#include "gdm/items/dml_attr_lwi.h"
#include "gen/gen_control.h"
#include "tvx/tvx_control.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSizeGrip>
#include <QSplitter>
#include <QTemporaryDir>
#include <QToolTip>

using namespace Zudunmaf;

/// The dialog as a whole: tab order, sizes, accessible names, shortcuts, icons and languages.
class DialogFrameTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void tabFollowsTheLayout()
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
        const QList<QWidget *> expected = {filterText,   topView,     addButton,  removeButton,
                                           undoButton,   clearButton, chosenList, okButton,
                                           cancelButton, entityList,  groupList};
        QCOMPARE(stops, expected);
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), groupList);
        groupList->setCurrentText("Holes");
        setFilter("note");
        for (const char *name : {"topView", "widenButton", "removeButton"}) {
            press(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
        }
    }

    void enterAcceptsOnlyOnOk()
    {
        choose({"plated", "width"});
        for (QWidget *place : std::initializer_list<QWidget *>{filterText, topView, entityList, groupList,
                                                               removeButton, chosenList}) {
            place->setFocus();
            press(Qt::Key_Return);
            press(Qt::Key_Enter, Qt::KeypadModifier);
            if (QApplication::activePopupWidget() || editor())
                press(Qt::Key_Escape);
            QVERIFY2(dialog->isVisible(), qPrintable(place->objectName()));
        }
        okButton->setFocus();
        press(Qt::Key_Return);
        QCOMPARE(events.count("accepted"), 1);
    }

    void editorReturnsToWhereItWasOpened_data() { addWays({"filter text", "available table", "F2"}); }
    void editorReturnsToWhereItWasOpened()
    {
        QWidget *origin = way() == "available table" ? static_cast<QWidget *>(topView) : filterText;
        choose({"plated", "width"});
        setFilter("e");
        click(topView, "grade");
        click(topView, "depth", 0, Qt::ShiftModifier);
        origin->setFocus();
        if (way() == "F2") {
            press(Qt::Key_F2);
            QVERIFY(!editor()); // a boolean
            chosenList->selectRow(1);
            press(Qt::Key_F2);
        } else {
            press(Qt::Key_Return, Qt::ControlModifier);
        }
        const QString edited = way() == "F2" ? "width" : "depth";
        QVERIFY(editor());
        QCOMPARE(currentName(chosenList), edited);
        type("99999");
        press(Qt::Key_Return);
        QVERIFY(editor());
        type("55");
        press(Qt::Key_Return);
        QVERIFY(!editor());
        QVERIFY(origin->hasFocus());
        QCOMPARE(filterText->selectedText(), QString(origin == filterText ? "e" : ""));
        QVERIFY(resultOf(edited).contains("55"));
        press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!resultOf(edited).contains("55"));
        click(chosenList, edited);
        press({Qt::Key_F2, Qt::Key_Return});
        QVERIFY(chosenList->hasFocus());
    }

    void pickingAnOptionEndsTheEdit_data() { addWays({"double-click", "key"}); }
    void pickingAnOptionEndsTheEdit()
    {
        choose({"finish"});
        if (way() == "key")
            press({Qt::Key_F2, Qt::Key_F4});
        else
            doubleClick(chosenList, "finish", 1);
        QCoreApplication::processEvents();
        QVERIFY(QApplication::activePopupWidget());
        auto *list = QApplication::activePopupWidget()->findChild<QAbstractItemView *>();
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(list, key);
        QTRY_VERIFY(!editor());
        QCOMPARE(resultOf("finish"), pick("finish = gloss", "gloss"));
        QVERIFY(chosenList->hasFocus());
        press({Qt::Key_F2, Qt::Key_Up});
        QVERIFY(editor()); // an arrow key picks nothing
    }

    void openEditorKeepsTheColumnsInLine()
    {
        dialog->resize(400, 480);
        choose({LongName});
        const int width = chosenList->columnWidth(Name);
        press(Qt::Key_F2);
        QCOMPARE(topView->columnWidth(Name), chosenList->columnWidth(Name));
        press(Qt::Key_Escape);
        QCOMPARE(topView->columnWidth(Name), width);
    }

    void escapeWarnsBeforeItDiscards()
    {
        const QString warning = "Escape again discards the changes of the chosen attributes.";
        create();
        QVERIFY(tvx::addChosen(*dialog, *dialog->findItemByAttrName("width")));
        QVERIFY(show());
        click(chosenList, "width");
        const std::unique_ptr<QTableWidgetItem> note(dialog->findItemByAttrName("note")->clone());
        dynamic_cast<DmlAttrLWI &>(*note).setDisplayValue(false); // as createNewItem() makes it
        QVERIFY(tvx::addChosen(*dialog, *note));
        press({Qt::Key_F2, Qt::Key_Escape, Qt::Key_Escape});
        QVERIFY(!dialog->isVisible()); // the user has changed nothing
        QVERIFY(open());
        choose({"width"});
        enter("width", "5");
        press(Qt::Key_F2);
        type("6");
        press(Qt::Key_Escape);
        QVERIFY(!description->text().contains(warning));
        for (const auto &takeBack : std::initializer_list<std::function<void()>>{
                 [this] { press(Qt::Key_Down); }, [this] { click(topView, "note"); },
                 [this] {
                     dialog->hide();
                     dialog->show();
                 },
                 [this] {
                     press({Qt::Key_F2, Qt::Key_Escape});
                 }}) {
            press(Qt::Key_Escape);
            QVERIFY(description->text().contains(warning));
            takeBack();
            QVERIFY(!description->text().contains(warning));
        }
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
        press(Qt::Key_Escape);
        QCoreApplication::sendEvent(topView, &held);
        QVERIFY(dialog->isVisible());
        press(Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    }

    void hostMayKeepTheDialogOpen()
    {
        choose({"note"});
        press(Qt::Key_F2);
        refusesToClose = true;
        click(cancelButton);
        QVERIFY(!dialog->close());
        QVERIFY(editor());
        refusesToClose = false;
        click(cancelButton);
        QVERIFY(!dialog->isVisible()); // without a warning
        dialog->show();
        press(Qt::Key_Escape);
        QVERIFY(!dialog->isVisible()); // nothing has changed since
    }

    void autoRepeatDoesNothing()
    {
        QKeyEvent heldEscape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(filterText, &heldEscape);
        QVERIFY(dialog->isVisible());
        choose({"note", "width"});
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        for (QWidget *place : std::initializer_list<QWidget *>{filterText, topView, chosenList})
            QCoreApplication::sendEvent(place, &held);
        QCOMPARE(chosenList->rowCount(), 2);
        QVERIFY(!editor());
        for (QPushButton *button : {removeButton, undoButton}) {
            button->setFocus();
            press({Qt::Key_Space, Qt::Key_Space, Qt::Key_Space, Qt::Key_Space, Qt::Key_Space});
            QVERIFY(chosenList->hasFocus());
            QCOMPARE(chosenList->rowCount(), 0);
        }
    }

    void sizes()
    {
        QVERIFY(dialog->width() <= 1366);
        QVERIFY(dialog->height() <= 768 - 40);
        const int widest = chosenList->columnWidth(Name);
        groupList->setCurrentText("Holes");
        dialog->setDisplayUnits(1);
        for (const QTableWidget *table : {topView, chosenList})
            QCOMPARE(table->columnWidth(Name), widest);
        auto *splitter = dialog->findChild<QSplitter *>();
        for (const QList<int> &sizes : {QList<int>{0, 10000}, QList<int>{10000, 0}}) {
            splitter->setSizes(sizes);
            QVERIFY(!splitter->sizes().contains(0));
        }
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
        press(Qt::Key_F2);
        QVERIFY(editor()->width() >= editor()->minimumSizeHint().width());
        setFilter("pad");
        for (const QTableWidget *table : {topView, chosenList}) {
            table->horizontalHeader()->resizeSection(Name, table->columnWidth(Name) - 9);
            QCOMPARE(topView->columnWidth(Name), chosenList->columnWidth(Name));
        }
        dialog->setFont(QFont(font.family(), 40));
        filterText->clear();
        QCOMPARE(topView->rowHeight(rowOf(topView, "note")), topView->rowHeight(rowOf(topView, "pad_00")));
        QCOMPARE(topView->rowHeight(0), chosenList->rowHeight(0));
    }

    void longNameIsElidedAndInTheToolTip()
    {
        dialog->resize(640, 480);
        choose({LongName, "depth"});
        QTableWidget *table = inFilter() ? topView : chosenList;
        const int row = rowOf(table, LongName);
        table->scrollToItem(table->item(row, Name));
        table->clearSelection();
        table->setCurrentItem(nullptr);
        // The place above the dots of an ellipsis is blank, and that of a letter is not.
        const QRect cell = cellRect(table, LongName, Name);
        const QFontMetrics metrics = table->fontMetrics();
        const QString elided = metrics.elidedText(LongName, Qt::ElideMiddle, cell.width() - 6);
        const QString begin = elided.section(QChar(0x2026), 0, 0);
        QVERIFY(begin.size() < elided.size() - 1);
        QRect area(cell.left() + 4 + metrics.horizontalAdvance(begin), cell.top() + 2,
                   metrics.horizontalAdvance(QChar(0x2026)) - 2, metrics.ascent() / 2);
        const QImage dots = table->viewport()->grab(area).toImage();
        QImage blank(dots.size(), dots.format());
        blank.fill(dots.pixelColor(0, 0));
        QCOMPARE(dots, blank);
        const auto pointAt = [table](const QPoint &place) {
            QHelpEvent help(QEvent::ToolTip, place, table->viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(table->viewport(), &help);
        };
        pointAt(cellRect(table, "depth", Name).center());
        QVERIFY2(!QToolTip::text().startsWith("depth\n"), qPrintable(QToolTip::text()));
        pointAt(cell.center());
        QVERIFY2(QToolTip::text().contains(LongName), qPrintable(QToolTip::text()));
        QToolTip::hideText();
        setFilter("name_of_sixty");
        if (inFilter())
            QVERIFY(table->viewport()->grab(area).toImage() != dots); // a match in what was left out
    }

    void widgetsOfALayoutDoNotOverlap()
    {
        QList<QWidget *> parents = dialog->findChildren<QWidget *>();
        parents << dialog.get();
        for (const QWidget *parent : parents) {
            QRegion used;
            for (const QWidget *child :
                 parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
                if (!parent->layout() || !child->isVisible() || qobject_cast<const QSizeGrip *>(child))
                    continue;
                QVERIFY2(!used.intersects(child->geometry()), qPrintable(child->objectName()));
                used += child->geometry();
            }
        }
    }

    void everyFocusWidgetHasAnAccessibleName()
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
                // The accessible name of a combo box is its entry on this platform.
                names << part->accessibleName();
                QVERIFY(names.last().contains(attribute));
            }
            QVERIFY(!names.isEmpty());
            QCOMPARE(names.removeDuplicates(), 0);
            press(Qt::Key_Escape);
        }
    }

    void mnemonicsAreUniqueInEachLanguage()
    {
        const QStringList english = texts();
        for (const char *language : {"", "de"}) {
            gen::setLanguage(language);
            QVERIFY(open());
            QStringList letters;
            for (const QString &text : markedTexts())
                letters << QKeySequence::mnemonic(text).toString(QKeySequence::PortableText).right(1);
            QVERIFY2(!letters.contains(QString()), qPrintable(markedTexts().join(' ')));
            QCOMPARE(int(letters.size()), 12);
            QVERIFY2(letters.removeDuplicates() == 0, qPrintable(markedTexts().join(' ')));
        }
        // Words that are equal in both languages, and labels of the dictionary.
        const QStringList same = {"Name", "Symbol", "OK", "&OK", "&Filter:"};
        for (const QString &text : texts())
            QVERIFY2(!english.contains(text) || same.contains(text), qPrintable(text));
    }

    void iconsComeFromResourcesOrSearchPath()
    {
        QTemporaryDir directory;
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        QVERIFY(picture.save(directory.filePath("tool.png")));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), directory.filePath("program.png")));
        QDir::setSearchPaths("icons", {directory.path()});
        const QHash<QString, bool> found = {{"Add.ico", true},   {"Delete.ico", true},   {"tool.png", true},
                                            {"none.ico", false}, {"program.png", false}, {"", false}};
        for (const QString &name : found.keys()) {
            QCOMPARE(dialog->setButtonPixmap(TvxAttributesSelectionDialog::Buttons_Remove, name),
                     found[name]);
            QVERIFY(!removeButton->icon().isNull());
            const QColor middle = removeButton->icon().pixmap(16).toImage().pixelColor(8, 8);
            QCOMPARE(middle == QColor(Qt::blue), name == "tool.png");
            QVERIFY(!removeButton->text().isEmpty());
        }
        QDir::setSearchPaths("icons", {});
    }

private:
    /// The texts of the controls that have a mnemonic.
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
