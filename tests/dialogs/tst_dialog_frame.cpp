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
    void tabFollowsTheEye_data() { addRows(); }
    void tabFollowsTheEye()
    {
        QVERIFY(open(kind()));
        QCOMPARE(QApplication::focusWidget(), filterText);
        choose({"width"});
        press(Qt::Key_F, Qt::ControlModifier);
        QList<QWidget *> stops;
        do {
            stops << QApplication::focusWidget();
            press(Qt::Key_Tab);
            QVERIFY(stops.size() < 20);
        } while (QApplication::focusWidget() != filterText);
        const QList<QWidget *> expected = {filterText,   topView,     addButton,
                                           removeButton, clearButton, chosenList};
        QCOMPARE(stops.mid(0, 6), expected);
        QCOMPARE(stops.value(6), standardButton(QDialogButtonBox::Ok));
        QCOMPARE(stops.value(7), standardButton(QDialogButtonBox::Cancel));
        QCOMPARE(stops.mid(8), QList<QWidget *>({entityList, groupList}));
        for (int i = stops.size() - 1; i >= 0; --i) {
            press(Qt::Key_Backtab, Qt::ShiftModifier);
            QCOMPARE(QApplication::focusWidget(), stops[i]);
        }
        // From top to bottom, and in a row from left to right.
        stops.prepend(stops.takeLast());
        stops.prepend(stops.takeLast());
        for (int i = 1; i < stops.size(); ++i) {
            const QPoint step =
                stops[i]->mapTo(dialog.get(), QPoint()) - stops[i - 1]->mapTo(dialog.get(), QPoint());
            QVERIFY(step.y() > 4 || (step.y() > -stops[i]->height() && step.x() > 0));
        }
    }

    void enterNeverEnds_data() { addRows(); }
    void enterNeverEnds()
    {
        QVERIFY(open(kind()));
        choose({"plated", "width"});
        click(chosenList, "width");
        press(Qt::Key_F2);
        press(Qt::Key_Return);
        QVERIFY(!editor());
        for (QWidget *place : std::initializer_list<QWidget *>{filterText, topView, entityList, groupList,
                                                               removeButton, chosenList}) {
            place->setFocus();
            press(Qt::Key_Return);
            press(Qt::Key_Enter, Qt::KeypadModifier);
            if (QApplication::activePopupWidget() || editor())
                press(Qt::Key_Escape);
            QVERIFY2(dialog->isVisible() && !events.contains("accepted"), qPrintable(place->objectName()));
        }
    }

    void okEndsOnce_data() { addRows({"click", "mnemonic", "Space", "Enter"}); }
    void okEndsOnce()
    {
        QVERIFY(open(kind()));
        QPushButton *ok = standardButton(QDialogButtonBox::Ok);
        if (way() == "click") {
            click(ok);
        } else if (way() == "mnemonic") {
            QVERIFY2(pressMnemonic(ok->text()), qPrintable(ok->text()));
        } else {
            ok->setFocus();
            press(way() == "Space" ? Qt::Key_Space : Qt::Key_Return);
        }
        QCOMPARE(events, QStringList("accepted"));
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
    }

    void sizes_data() { addRows(); }
    void sizes()
    {
        QVERIFY(open(kind()));
        QVERIFY(dialog->width() <= 1366 && dialog->height() <= 768 - 40);
        QVERIFY(!topView->horizontalScrollBar()->isVisible() &&
                !chosenList->horizontalScrollBar()->isVisible());
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

    void columnsAndRows_data() { addRows({"1", "2"}); }
    void columnsAndRows()
    {
        const QFont plain = QApplication::font();
        QFont font = plain;
        font.setPointSizeF(plain.pointSizeF() * way().toInt());
        QApplication::setFont(font);
        QVERIFY(open(kind()));
        QApplication::setFont(plain);
        choose({LongName, "width"});
        QCOMPARE(topView->columnWidth(Name), chosenList->columnWidth(Name));
        QVERIFY(topView->columnWidth(Name) <= topView->viewport()->width() * 62 / 100);
        for (const QTableWidget *table : {topView, chosenList}) {
            QVERIFY(table->verticalHeader()->isHidden());
            QVERIFY(table->verticalHeader()->sectionResizeMode(0) == QHeaderView::Fixed);
            QVERIFY(table->rowHeight(0) > table->fontMetrics().height());
            QVERIFY(!table->horizontalScrollBar()->isVisible());
        }
        QCOMPARE(topView->rowHeight(0), chosenList->rowHeight(0));
        press(Qt::Key_F2);
        QVERIFY(editor()->width() >= editor()->minimumSizeHint().width());
        press(Qt::Key_Escape);

        dialog->resize(640, 480);
        QCoreApplication::processEvents();
        topView->scrollToItem(topView->item(6, Name));
        const QTableWidgetItem *cell = kind() == Filter ? topView->item(6, Name) : chosenList->item(0, Name);
        const QPoint place = cell->tableWidget()->visualItemRect(cell).center();
        QHelpEvent help(QEvent::ToolTip, place, cell->tableWidget()->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(cell->tableWidget()->viewport(), &help);
        QVERIFY2(QToolTip::text().contains(LongName), qPrintable(QToolTip::text()));
        QToolTip::hideText();
    }

    void everythingHasAName_data() { addRows(); }
    void everythingHasAName()
    {
        QVERIFY(open(kind()));
        choose({"width", "note", "finish", "depth"});
        enter("width", pick("5\t9", "5"));
        QHash<QObject *, QAccessibleInterface *> tree;
        collect(QAccessible::queryAccessibleInterface(dialog.get()), &tree);
        for (QWidget *widget : dialog->findChildren<QWidget *>()) {
            if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
                continue;
            QVERIFY2(tree.contains(widget) && !tree[widget]->text(QAccessible::Name).isEmpty(),
                     qPrintable(widget->objectName()));
        }
        for (const QPushButton *button : {addButton, removeButton, undoButton, clearButton})
            QVERIFY(!button->text().isEmpty() && !button->toolTip().isEmpty());
        const QHash<QWidget *, int> roles = {
            {filterText, QAccessible::EditableText}, {entityList, QAccessible::ComboBox},
            {groupList, QAccessible::ComboBox},      {topView, QAccessible::Table},
            {chosenList, QAccessible::Table},        {addButton, QAccessible::PushButton}};
        for (QWidget *widget : roles.keys())
            QCOMPARE(int(tree[widget]->role()), roles[widget]);
        auto *cells = tree[chosenList]->tableInterface();
        QCOMPARE(cells->rowCount(), 4);
        QCOMPARE(cells->cellAt(0, Name)->text(QAccessible::Name), QStringLiteral("width"));
        QCOMPARE(cells->cellAt(0, Value)->text(QAccessible::Name), pick("5 to 9", "5"));
        QCOMPARE(int(cells->cellAt(0, Value)->role()), int(QAccessible::Cell));
        for (const char *attribute : {"width", "note", "finish", "depth"}) {
            click(chosenList, attribute);
            press(Qt::Key_F2);
            QVERIFY(editor());
            QStringList names;
            QList<QWidget *> parts = editor()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
            parts << editor();
            for (QWidget *part : parts) {
                if (!(part->focusPolicy() & Qt::TabFocus) || part->focusProxy())
                    continue;
                const auto *seen = QAccessible::queryAccessibleInterface(part);
                const QList<int> expected = {QAccessible::SpinBox, QAccessible::EditableText,
                                             QAccessible::ComboBox};
                QVERIFY(expected.contains(seen->role()) && !seen->text(QAccessible::Name).isEmpty());
                // A combo box is read aloud by its entry here, and by its own name elsewhere.
                names << part->accessibleName();
                QVERIFY(names.last().contains(attribute));
            }
            QVERIFY(!names.isEmpty());
            QCOMPARE(names.removeDuplicates(), 0);
            press(Qt::Key_Escape);
        }
    }

    void lettersAndLanguages_data() { addRows({"", "de"}); }
    void lettersAndLanguages()
    {
        QVERIFY(open(kind()));
        const QStringList english = texts();
        dialog.reset();
        gen::setLanguage(way());
        QVERIFY(open(kind()));
        QString letters;
        for (const QString &text : markedTexts()) {
            const QString letter = QKeySequence::mnemonic(text).toString(QKeySequence::PortableText).right(1);
            QVERIFY2(!letter.isEmpty(), qPrintable(text));
            QVERIFY2(!letters.contains(letter), qPrintable(text + " among " + letters));
            letters += letter;
        }
        QCOMPARE(int(letters.size()), 11);
        if (way().isEmpty())
            return;
        // Words that both languages write alike, and what the dictionary says.
        const QStringList same = {"Name", "Symbol", "OK", "&OK", "&Filter:"};
        for (const QString &text : texts())
            QVERIFY2(!english.contains(text) || same.contains(text), qPrintable(text));
    }

    void pictures_data() { addRows(); }
    void pictures()
    {
        QVERIFY(open(kind()));
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
        QVERIFY(open(Assign));
        for (const QColor &back : {QColor(30, 30, 30), QColor(240, 240, 240)}) {
            QPalette palette(back, back);
            dialog->setPalette(palette);
            const QImage drawn = addButton->icon().pixmap(32, 32).toImage();
            int contrast = 0;
            for (int i = 0; i < drawn.width() * drawn.height(); ++i) {
                const QColor pixel = drawn.pixelColor(i % drawn.width(), i / drawn.width());
                if (pixel.alpha() > 200)
                    contrast = qMax(contrast, qAbs(qGray(pixel.rgb()) - qGray(back.rgb())));
            }
            QVERIFY2(contrast > 120, qPrintable(back.name()));
        }
    }

private:
    static void collect(QAccessibleInterface *node, QHash<QObject *, QAccessibleInterface *> *tree)
    {
        if (!node)
            return;
        if (node->object())
            tree->insert(node->object(), node);
        for (int i = 0; i < node->childCount(); ++i)
            collect(node->child(i), tree);
    }

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

DIALOG_TEST_MAIN(DialogFrameTest)
#include "tst_dialog_frame.moc"
