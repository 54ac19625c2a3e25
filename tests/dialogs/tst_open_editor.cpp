#include "dialog_test.h"

#include "commit_watch.h"
#include "gdm/gdm_qt.h"
#include "tvx/tvx_control.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QListWidget>
#include <QPointer>
#include <QProxyStyle>
#include <QStyledItemDelegate>

using namespace Zudunmaf;

class CheckBoxDelegate : public CommitWatch
{
public:
    using CommitWatch::CommitWatch;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return new QCheckBox(parent);
    }
};

/// A cell editor: how it opens, which entries it refuses, and what happens to it when the user or the host does something
/// else.
class OpenEditorTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void opensByEveryWay_data() { addWays({"F2", "Enter", "name", "value", "menu", "host"}); }
    void opensByEveryWay()
    {
        dialog->editCurrentItem(); // without a current row
        QVERIFY(!editor());
        choose({"width", "note"});
        click(chosenList, "width", Value);
        press({Qt::Key_Down, Qt::Key_Up, Qt::Key_X, Qt::Key_7, Qt::Key_Space});
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
        QVERIFY(chosenList->hasFocus());
        QVERIFY(dialog->isVisible());
        QCOMPARE(events.count("commit"), 1);
    }

    /// Leaving an unchanged editor applies neither its three decimals nor its limits to the value.
    void untouchedValuesKeepTheirBits_data() { addWays({"Enter", "elsewhere"}); }
    void untouchedValuesKeepTheirBits()
    {
        loadDictionary(R"(
            {"name": "coating", "type": "float", "entities": "all", "default": 12.3, "min": 5, "max": 100, "units": "um"},
            {"name": "gap", "type": "float", "entities": "all", "default": 0.0004, "min": 0, "max": 1, "units": "mm"},
            {"name": "drill", "type": "float", "entities": "all", "default": 0.3, "min": 0, "max": 6, "units": "mm"},
            {"name": "layers", "type": "integer", "entities": "all", "default": 4, "min": 1, "max": 64},
            {"name": "finish", "type": "option", "entities": "all", "options": ["matt", "gloss"]})");
        const int inch = 0;
        dialog->setDisplayUnits(inch);
        addChosen("layers", 500);
        choose({"coating", "gap", "drill", "finish"});
        const QList<QByteArray> before = records();
        for (const QString &attribute : visibleNames(chosenList)) {
            click(chosenList, attribute);
            press(Qt::Key_F2);
            QVERIFY(editor());
            if (way() == "Enter")
                press(Qt::Key_Return);
            else
                click(filterText);
        }
        // In the filter dialog, Enter sets a condition that was not set: the whole range, or the first entry.
        if (!inFilter() || way() == "elsewhere")
            QCOMPARE(records(), before);
        else
            QCOMPARE(results().join(';'),
                     "1 <= layers <= 64;5.000 <= coating <= 100.000;0.000 <= gap <= 1.000;"
                     "0.000 <= drill <= 6.000;finish = matt");
    }

    void valueBeyondTheLimitsIsReplacedByEntering()
    {
        if (inFilter())
            QSKIP("a range is within its limits");
        addChosen("width", 500);
        enter("width", "100");
        QCOMPARE(results(), QStringList("100"));
    }

    void refusedBoundStaysWhileTheOtherIsEdited()
    {
        if (!inFilter())
            QSKIP("the editor of a value has one box");
        choose({LongName});
        press(Qt::Key_F2);
        type("-\t");
        QVERIFY(dialog->findChild<QLabel *>("editorNote")->isVisible());
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        type("3000000000\t7");
        const auto boxes = editor()->findChildren<QAbstractSpinBox *>();
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(boxes[0]->hasFocus());
        QCOMPARE(boxes[0]->text(), QString("3000000000"));
        QCOMPARE(boxes[1]->accessibleDescription(), QString("integer"));
        press({Qt::Key_Tab, Qt::Key_Return});
        QVERIFY(editor());
        QVERIFY(boxes[0]->hasFocus());
        type("3\t");
        press(Qt::Key_Return);
        QCOMPARE(results(), QStringList("3 <= %1 <= 7").replaceInStrings("%1", LongName));
        QCOMPARE(events.count("commit"), 1);
    }

    void noteWaitsWhileANumberCanGrow()
    {
        loadDictionary(R"(
            {"name": "ring", "type": "float", "entities": "all", "default": 0.3, "min": 0.05, "max": 6.5, "units": "mm"},
            {"name": "any", "type": "float", "entities": "all", "default": 0, "min": -3.4028234e38, "max": 3.4028234e38},
            {"name": "huge", "type": "float", "entities": "all", "default": 0, "min": 0, "max": 1},
            {"name": "turn", "type": "float", "entities": "all", "default": -0.3, "min": -6.5, "max": -0.2},
            {"name": "pins", "type": "integer", "entities": "all", "default": 610, "min": 600, "max": 650})");
        const auto definition = dialog->findItemByAttrName("huge")->data(DmlAttrDefRole);
        auto *huge = static_cast<DmlAttrDef *>(definition.value<void *>());
        huge->floatMin = huge->floatMax = 1e39; // beyond single precision
        const QString lowRing = "At least 0.05 mm", lowPins = "At least 600";
        const QString ofAny = "A number from -3.40282e+38 to 3.40282e+38";
        const QMap<QString, QList<QStringList>> notes = {
            {"ring", {{"0", ""}, {"0.0", ""}, {".01", lowRing}, {"0.049", lowRing}, {"-0", lowRing}}},
            {"turn", {{"-0", ""}, {"-0.1", "At most -0.2"}, {"0", "At most -0.2"}, {"-7", "At least -6.5"}}},
            {"any", {{"1", ""}, {"x", ofAny}, {"nan", ofAny}}},
            {"huge", {{"1", pick("At least inf", "")}}},
            {"pins",
             {{"6", ""}, {"64", ""}, {"5", lowPins}, {"66", lowPins}, {"0", lowPins}, {"-6", lowPins}}}};
        for (const QString &attribute : notes.keys()) {
            choose({attribute});
            click(chosenList, attribute);
            press(Qt::Key_F2);
            for (const QStringList &typed : notes[attribute]) {
                press(Qt::Key_A, Qt::ControlModifier);
                type(typed[0]);
                const auto *note = dialog->findChild<QLabel *>("editorNote");
                QCOMPARE(note->isVisible() ? note->text() : QString(), typed[1]);
            }
            press(Qt::Key_Escape);
        }
    }

    void noteIsBesideTheEditor_data() { addWays({"left to right", "right to left"}); }
    void noteIsBesideTheEditor()
    {
        const bool isMirrored = way() == "right to left";
        dialog->setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
        topView->selectAll();
        click(addButton);
        for (const char *attribute : {"width", "pad_39"}) {
            click(chosenList, attribute);
            press(Qt::Key_F2);
            type("999");
            dialog->resize(dialog->width() + 50, dialog->height());
            QCoreApplication::processEvents();
            const QWidget *box = QApplication::focusWidget();
            const QRect entry(box->mapTo(chosenList->viewport(), QPoint()), box->size());
            const QRect note = dialog->findChild<QLabel *>("editorNote")->geometry();
            QVERIFY(chosenList->viewport()->rect().contains(note));
            QVERIFY(!note.intersects(entry));
            QCOMPARE(isMirrored ? note.right() : note.left(), isMirrored ? entry.right() : entry.left());
            press(Qt::Key_Escape);
        }
    }

    void unfinishedEntryIsRefusedByEnter()
    {
        const int inch = 0;
        dialog->setDisplayUnits(inch);
        choose({"depth", "note"});
        press(Qt::Key_F2);
        type("-");
        const auto *note = dialog->findChild<QLabel *>("editorNote");
        QVERIFY(!note->isVisible());
        press(Qt::Key_Return);
        QVERIFY(editor());
        QVERIFY(note->isVisible());
        const QString refusal = pick("A number from -100 to 2000 mm", "A number from -3.937 to 78.74 inch");
        QCOMPARE(note->text(), refusal);
        click(chosenList, "note");
        QVERIFY(!note->isVisible());
        QVERIFY(description->text().contains(refusal));
        press(Qt::Key_Up);
        QVERIFY(!description->text().contains(refusal));
    }

    void minimizedWindowKeepsARefusedEntry()
    {
        choose({"width"});
        press(Qt::Key_F2);
        auto *box = qobject_cast<QAbstractSpinBox *>(QApplication::focusWidget());
        type("150");
        QHideEvent hidden;
        QShowEvent shown;
        QCoreApplication::sendEvent(box, &hidden);
        QCoreApplication::sendEvent(box, &shown);
        QCOMPARE(box->text(), QString("150"));
    }

    void hostReactsToACommit_data() { addWays({"units", "reject"}); }
    void hostReactsToACommit()
    {
        choose({"width"});
        atCommit = [this] {
            if (way() == "units")
                dialog->setDisplayUnits(1);
            else
                dialog->reject();
        };
        enter("width", "55");
        QVERIFY(!editor());
        QCOMPARE(events.count("commit"), 1);
        QCOMPARE(results(), QStringList(pick("55 <= width <= 100", "55")));
    }

    void hostChangesTheItemOfAnOpenEditor()
    {
        if (inFilter())
            QSKIP("a condition is changed in its record");
        choose({"depth"});
        auto &item = dynamic_cast<DmlAttrLWI &>(*dialog->getChosenList().first());
        press(Qt::Key_F2);
        item.setAttrValue(12.34567);
        item.setData(Qt::StatusTipRole, "new");
        click(filterText);
        QCOMPARE(item.attrValue().toDouble(), 12.34567);
        click(chosenList, "depth");
        press(Qt::Key_F2);
        type("55");
        item.setData(Qt::StatusTipRole, "newer");
        press(Qt::Key_Return);
        QCOMPARE(item.attrValue().toDouble(), 55.0);
    }

    void editorOfAForeignDelegate()
    {
        int commits = 0;
        const auto count = [&commits](QWidget *, const QModelIndex &) { ++commits; };
        dialog->setItemDelegate(new CheckBoxDelegate(new QStyledItemDelegate(dialog.get()), count));
        choose({"width"});
        for (int changed : {0, 1}) {
            click(chosenList, "width");
            press(Qt::Key_F2);
            if (changed)
                press(Qt::Key_Space);
            click(filterText);
            QVERIFY(!editor());
            QCOMPARE(commits, changed);
        }
    }

    /// Each way is keys for pressKeys(), a blank and the result. The attribute has no default.
    void textWithChoicesTakesAnyText_data()
    {
        addWays({"^ ", "v White", "WHITE WHITE", "w w", "wv White", "wvv^^ w", "Wvvv wide", "wi<click> wide",
                 "< "});
    }
    void textWithChoicesTakesAnyText()
    {
        if (inFilter())
            QSKIP("a condition on a text has no choices");
        loadDictionary(
            R"({"name": "marking", "type": "text", "entities": "all", "choices": ["White", "yellow", "wide"]})");
        choose({"marking"});
        press(Qt::Key_F2);
        const QString keys = way().section(' ', 0, 0);
        pressKeys(keys.section("<click>", 0, 0));
        const QPointer<QListWidget> list(dialog->findChild<QListWidget *>("textChoices"));
        if (keys.contains("<click>")) {
            QVERIFY(list->isVisible());
            QCOMPARE(list->count(), 1);
            dialog->resize(dialog->width() + 50, dialog->height());
            QCoreApplication::processEvents();
            QCOMPARE(list->x(), editor()->x());
            clickAt(list->viewport(), list->visualItemRect(list->item(0)).center());
        }
        press(Qt::Key_Return);
        QCOMPARE(results(), QStringList(way().section(' ', 1)));
        QVERIFY(!list || !list->isVisible());
        press(Qt::Key_F2);
        pressKeys("=wi");
        QCOMPARE(dialog->findChild<QListWidget *>("textChoices")->count(), 1); // once, stored or not
    }

    void popupOfAnOption()
    {
        QApplication::setStyle(new QProxyStyle("Windows"));
        choose({"grade"});
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            press({Qt::Key_F2, Qt::Key_F4});
            const auto metric = QStyle::PM_MenuHMargin;
            QCOMPARE(editor()->style()->pixelMetric(metric), QApplication::style()->pixelMetric(metric));
            QTest::keyClick(QApplication::activePopupWidget()->findChild<QAbstractItemView *>(), key);
            QCoreApplication::processEvents();
            press(Qt::Key_Down); // picks nothing
            QCOMPARE(editor() != nullptr, key == Qt::Key_Escape);
            QCOMPARE(results(), QStringList(pick("grade = low", "low"))); // the entry that was shown already
        }
        QApplication::setStyle("Fusion");
    }

    void focusGoesFromEditorToTable()
    {
        choose({"note", "width", "depth", "finish"});
        for (const char *attribute : {"note", "width", "depth", "finish"}) {
            for (int key : {Qt::Key_Return, Qt::Key_Escape}) {
                click(chosenList, attribute);
                press(Qt::Key_F2);
                QList<QWidget *> visited;
                const auto watch = connect(qApp, &QApplication::focusChanged, this,
                                           [&](QWidget *, QWidget *now) { visited << now; });
                press(key);
                disconnect(watch);
                QCOMPARE(visited, QList<QWidget *>{chosenList});
            }
        }
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
        press(Qt::Key_F2);
        for (int key : {Qt::Key_4, Qt::Key_Comma, Qt::Key_2})
            press(key, Qt::KeypadModifier);
        press(Qt::Key_Return);
        QCOMPARE(resultOf("depth"), pick("4.200 <= depth <= 2000.000", "4.200"));
    }

private:
    /// Adds a row of this attribute, in "Assign Attributes" with this value.
    void addChosen(const QString &attribute, const QVariant &value)
    {
        const std::unique_ptr<QTableWidgetItem> item(dialog->findItemByAttrName(attribute)->clone());
        if (!inFilter())
            dynamic_cast<DmlAttrLWI &>(*item).setAttrValue(value);
        QVERIFY(tvx::addChosen(*dialog, *item));
    }
};

QTEST_MAIN(OpenEditorTest)
#include "tst_open_editor.moc"
