#include "dialog_test.h"

#include "gen/gen_control.h"

#include <QAccessible>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <cmath>

using namespace Zudunmaf;

/// What the dialog says of attributes: hints in cells, for eye and screen reader, and the description.
class HintsTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsSayWhatTheyTake_data()
    {
        QTest::addColumn<QStringList>("available");
        QTest::addColumn<QStringList>("chosen");
        const auto row = [](const char *name, const QStringList &available, const QStringList &chosen) {
            QTest::newRow(name) << available << chosen;
        };
        row("plated", {"yes or no", "yes or no"}, {"carried", "yes"});
        row("note", {"text", "none | text"}, {"any | text", "none | text"});
        row("colour", {"text, such as red, green", "blue | text, such as red, green"},
            {"any | text, such as red, green", "blue | text, such as red, green"});
        row("grade", {"low, high", "low, high"}, {"any | low, high", "low, high"});
        row("width", {"1 to 100", "7 | 1 to 100"}, {"any | 1 to 100", "7 | 1 to 100"});
        row("depth", {"-100 to 2000 mm", "0.500 | -100 to 2000 mm"},
            {"any | -100 to 2000 mm", "0.500 | -100 to 2000 mm"});
        row(LongName, {"integer", "0 | integer"}, {"any | integer", "0 | integer"});
    }
    void cellsSayWhatTheyTake()
    {
        QFETCH(QStringList, available);
        QFETCH(QStringList, chosen);
        const QString name = QTest::currentDataTag();
        const int dialogIndex = inFilter() ? 0 : 1;
        topView->scrollToItem(topView->item(rowOf(topView, name), Value));
        const QRect cell = cellRect(topView, name, Value);
        QCOMPARE(contrastIn(topView->viewport(), endOf(cell)) > 3, available[dialogIndex].contains(" | "));
        click(topView, name);
        QCOMPARE(spoken(topView, name), available[dialogIndex]);
        press(Qt::Key_Return);
        QCOMPARE(spoken(chosenList, name), chosen[dialogIndex]);
    }

    void entriesAreNotHiddenByHints()
    {
        choose({"width", "depth"});
        enter("width", pick("5\t9", "5"));
        QCOMPARE(spoken(chosenList, "width"), pick("5 to 9 | 1 to 100", "5 | 1 to 100"));
        const auto *name = cellAt(chosenList, "width", Name);
        QCOMPARE(name->text(QAccessible::Description), pick("5 to 9, 1 to 100", "5, 1 to 100"));
        // The units of a value are those of its cell, which is filled again only in the available table.
        dialog->setDisplayUnits(0);
        click(topView, pick("depth", "note"));
        QCOMPARE(spoken(chosenList, "depth"), pick("any | -100 to 2000 mm", "0.500 | -100 to 2000 mm"));
        click(chosenList, "depth");
        press(Qt::Key_Delete);
        click(topView, "depth");
        QCOMPARE(spoken(topView, "depth"), pick("-100 to 2000 mm", "0.020 inch | -3.937 to 78.74 inch"));
        QVERIFY(description->text().contains(pick("-100 to 2000 mm", "-3.937 to 78.74 inch")));
        QVERIFY(description->text().endsWith(pick("default 0.5 mm", "default 0.02 inch")));
    }

    void hintsAreReadable_data()
    {
        addWays({"light", "dark", "light selected", "dark selected", "disabled"});
    }
    void hintsAreReadable()
    {
        const bool isDark = way().startsWith("dark");
        QPalette palette = topView->palette();
        palette.setColor(QPalette::Base, isDark ? QColor(30, 30, 30) : QColor(Qt::white));
        palette.setColor(QPalette::AlternateBase, isDark ? QColor(45, 45, 45) : QColor(240, 240, 240));
        palette.setColor(QPalette::Text, isDark ? Qt::white : Qt::black);
        palette.setColor(QPalette::Disabled, QPalette::Text, Qt::gray);
        palette.setColor(QPalette::Highlight, QColor(0, 60, 120));
        palette.setColor(QPalette::HighlightedText, Qt::white);
        topView->setPalette(palette);
        QFont font = topView->font();
        font.setPointSize(28);
        topView->setFont(font);
        topView->setCurrentItem(nullptr);
        if (way().endsWith("selected"))
            click(topView, "plated");
        topView->setFocusPolicy(Qt::NoFocus);
        dialog->setEnabled(way() != "disabled");
        const double hint = contrastIn(topView->viewport(), cellRect(topView, "plated", Value));
        const double name = contrastIn(topView->viewport(), cellRect(topView, "plated", Name));
        const bool isRight = way() == "disabled" ? hint == name : hint >= 4.5 && hint < 0.8 * name;
        QVERIFY2(isRight, qPrintable(QString("%1 %2").arg(hint).arg(name)));
    }

    void currentRowIsDescribedInTwoLines()
    {
        click(topView, "width");
        QCOMPARE(description->text(),
                 QString("Width of it  \u00b7  width\ninteger  \u00b7  1 to 100  \u00b7  default 7"));
        QCOMPARE(description->toolTip(), description->text());
        const QString secondLine = description->text().section('\n', 1);
        const int width = description->fontMetrics().horizontalAdvance(secondLine);
        const QRect end(width - 20, description->fontMetrics().lineSpacing(), 24,
                        description->fontMetrics().height());
        QVERIFY(contrastIn(description, end) > 3);
        click(topView, "grade");
        QCOMPARE(description->text(), QString("grade  \u00b7  Board\noption  \u00b7  low, high"));
        choose({"depth"});
        press(Qt::Key_F2);
        QCOMPARE(description->text(),
                 QString("depth\nAllowed: -100 to 2000 mm  \u00b7  float  \u00b7  default 0.5 mm"));
    }

    void editorsAreDescribed()
    {
        choose({"depth", "note", "grade"});
        press(Qt::Key_F2);
        QCOMPARE(QApplication::focusWidget()->accessibleDescription(), QString("-100 to 2000 mm"));
        type("3000");
        QCOMPARE(QApplication::focusWidget()->accessibleDescription(), QString("At most 2000 mm"));
        press({Qt::Key_Escape, Qt::Key_Down, Qt::Key_F2});
        QCOMPARE(QApplication::focusWidget()->accessibleDescription(), QString("text"));
        press({Qt::Key_Escape, Qt::Key_Down, Qt::Key_F2});
        QCOMPARE(QApplication::focusWidget()->accessibleDescription(), QString("grade: low, high"));
    }

    void chosenConditionsAreMarked()
    {
        if (!inFilter())
            QSKIP("a chosen value has no available row");
        choose({"width", "plated", "width", "plated"});
        QCOMPARE(visibleNames(chosenList), QStringList({"width", "plated"}));
        QCOMPARE(selectedNames(chosenList), QStringList("width"));
        QCOMPARE(spoken(topView, "width"), QString("1 to 100 | chosen, conditions: 1"));
        enter("width", "5\t9");
        clickHeader(chosenList, Name);
        choose({"width", "depth", "width"});
        QCOMPARE(visibleNames(chosenList), QStringList({"depth", "plated", "width", "width"}));
        QCOMPARE(spoken(topView, "width"), QString("1 to 100 | chosen, conditions: 2"));
        const QRect mark = endOf(cellRect(topView, "width", Value));
        QVERIFY(contrastIn(topView->viewport(), mark) > 3);
        topView->clearSelection();
        click(clearButton);
        QCOMPARE(spoken(topView, "width"), QString("1 to 100"));
        QCOMPARE(contrastIn(topView->viewport(), mark), 1.0);
    }

    void searchWithoutResultLeadsOn_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("afterEnter");
        QTest::addColumn<QString>("afterButton");
        const auto row = [](const char *name, const char *group, const QString &text, const QString &reason,
                            const char *afterEnter, const char *afterButton) {
            QTest::newRow(name) << QString(group) << text << reason << QString(afterEnter)
                                << QString(afterButton);
        };
        const QString enter = " Press Enter to show the first.";
        const QString byDescription = "By description: width (Width of it)." + enter;
        const QString elsewhere = "No match here. Other entities or groups have %1." + enter;
        row("other label", "All Groups", "width of", byDescription, "width", "width");
        row("other label of another group", "Holes", "width of", byDescription, "width", "width");
        row("another group", "Holes", "note", elsewhere.arg("1: note"), "note", "note");
        row("several of another group", "Board", "pad_?1", elsewhere.arg("4: pad_01, pad_11, pad_21, 1 more"),
            "pad_01", "pad_01 pad_11 pad_21 pad_31");
        row("none", "All Groups", "%1 [" + QString(40, 'w'),
            "No attribute matches \"%1 [" + QString(26, 'w') + "\u2026\".", "", "");
    }
    void searchWithoutResultLeadsOn()
    {
        QFETCH(QString, group);
        QFETCH(QString, text);
        QFETCH(QString, reason);
        QFETCH(QString, afterEnter);
        QFETCH(QString, afterButton);
        auto *button = topView->findChild<QPushButton *>("widenButton");
        for (const bool usesButton : {false, true}) {
            QVERIFY(!button->isVisible());
            groupList->setCurrentText(group);
            setFilter(text);
            QCOMPARE(topView->accessibleDescription(), reason);
            QCOMPARE(button->isVisible(), reason.contains("Enter"));
            if (!usesButton) {
                press(Qt::Key_Return);
                QVERIFY(filterText->hasSelectedText());
            } else if (button->isVisible())
                QVERIFY(pushButton(*button));
            QCOMPARE(visibleNames(topView).join(' '), usesButton ? afterButton : afterEnter);
            QVERIFY(filterText->hasFocus());
            QVERIFY(results().isEmpty());
            groupList->setCurrentIndex(0);
            filterText->clear();
        }
    }

    void matchesByNameLeadToPrompts()
    {
        gen::setConfigurationFile(ZUDUNMAF_TEST_TABLES "/by_prompt.ini");
        loadDictionary(R"(
            {"name": "xyz", "prompt": "Note", "group": "Texts", "type": "text", "entities": "all"},
            {"name": "f", "prompt": "Footnote", "group": "Board", "type": "text", "entities": "all"},
            {"name": "width", "prompt": "", "group": "Board", "type": "text", "entities": "all"})");
        groupList->setCurrentText("Board");
        setFilter("wid");
        QCOMPARE(topView->accessibleDescription(), QString("By name: width."));
        setFilter("xyz");
        press(Qt::Key_Return);
        QCOMPARE(currentName(topView), QString("xyz"));
    }

    void tipsArePlainText()
    {
        loadDictionary(R"({"name": "note", "prompt": "<b>Note</b>", "type": "text", "entities": "all"})");
        const QPoint place = cellRect(topView, "note", Name).center();
        QHelpEvent help(QEvent::ToolTip, place, topView->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(topView->viewport(), &help);
        const QString tip = QToolTip::text();
        QVERIFY2(tip.contains("&lt;b") || !Qt::mightBeRichText(tip), qPrintable(tip));
    }

    void firstMatchMayHaveSpecialCharacters()
    {
        loadDictionary(R"(
            {"name": "axis", "group": "Tools", "type": "boolean", "entities": "all", "default": true},
            {"name": "via[1]*", "group": "Holes", "type": "option", "entities": "all",
             "options": ["a", "b", "c", "d", "e", "f"]})");
        groupList->setCurrentText("Tools");
        setFilter("via");
        press(Qt::Key_Return);
        QCOMPARE(visibleNames(topView), QStringList("via[1]*"));
        QCOMPARE(spoken(topView, "via[1]*"), QString("a, b, c, 3 more"));
    }

    void chosenAttributesAreMissed()
    {
        choose({"note", "pad_07", "pad_17"});
        setFilter("note");
        QCOMPARE(topView->accessibleDescription(), pick("", "note is chosen already."));
        setFilter("pad_?7");
        topView->selectAll();
        click(addButton);
        QCOMPARE(topView->accessibleDescription(), pick("", "4 matching attributes are chosen already."));
        // The rows that this fill leaves out are unknown.
        setFilter("nothing has this");
        groupList->setCurrentText("Pads");
        dialog->setDisplayUnits(1);
        QVERIFY(topView->accessibleDescription().startsWith("No attributes to choose here."));
        click(topView->findChild<QPushButton *>("widenButton"));
        QCOMPARE(topView->accessibleDescription(), QString("No attribute matches \"nothing has this\"."));
    }

private:
    static const QAccessibleInterface *cellAt(QTableWidget *table, const QString &attribute, int column)
    {
        table->scrollToItem(table->item(rowOf(table, attribute), Name));
        QAccessible::setActive(true); // the dialog behaves as with a screen reader
        table->grab();
        auto *cells = QAccessible::queryAccessibleInterface(table)->tableInterface();
        return cells->cellAt(rowOf(table, attribute), column);
    }

    /// The text and the description of a value cell.
    static QString spoken(QTableWidget *table, const QString &attribute)
    {
        const auto *cell = cellAt(table, attribute, Value);
        QStringList texts = {cell->text(QAccessible::Name), cell->text(QAccessible::Description)};
        texts.removeAll(QString());
        return texts.join(" | ");
    }

    /// The part of a cell where the second of two texts ends.
    static QRect endOf(const QRect &cell) { return {cell.right() - 40, cell.top(), 40, cell.height()}; }

    /// The greatest contrast between a pixel of the area and its upper left corner, as WCAG 2 defines it.
    static double contrastIn(QWidget *widget, const QRect &area)
    {
        const auto luminance = [](const QColor &colour) {
            const auto linear = [](double part) {
                return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
            };
            return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
                   0.0722 * linear(colour.blueF()) + 0.05;
        };
        const QImage image = widget->grab(area.adjusted(2, 2, -2, -2)).toImage();
        const double back = luminance(image.pixelColor(0, 0));
        double greatest = 1;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const double front = luminance(image.pixelColor(x, y));
                greatest = std::max({greatest, front / back, back / front});
            }
        }
        return greatest;
    }
};

QTEST_MAIN(HintsTest)
#include "tst_hints.moc"
