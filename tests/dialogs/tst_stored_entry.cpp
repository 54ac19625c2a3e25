#include "dialog_test.h"

#include <QClipboard>
#include <QListWidget>

namespace
{

/// One kind of editor, and what a user does in it. In keys, "v" is Down, "^" is Up, "=" is Ctrl+A and "<" is Delete.
struct Kind {
    const char *name;
    QString attribute;
    QString setFirst; ///< keys of an edit before, which sets the condition
    QString stored;   ///< what the host reads before the edit
    QString keys;
    QString result;   ///< what the host reads once the keys are stored
    QString keysBack; ///< keys that change the content and change it back
    QString opened;   ///< what the host reads once the content at opening is stored
    QString pasted;
    QString resultOfPaste;
    QString keysBeyond; ///< an entry that the limits refuse
    QString refusal;    ///< what the user is told about it
};

/// The editors of conditions, and those of values.
const QVector<Kind> &kinds(bool inFilter)
{
    static const QVector<Kind> conditions = {
        {"text", "note", "", "note", "MATT", "note = MATT", "a=<", "note", "x y", "note = x y", "", ""},
        {"option", "finish", "", "finish", "v", "finish = gloss", "v^", "finish = matt", "", "", "", ""},
        {"set option", "finish", "v", "finish = gloss", "^", "finish = matt", "^v", "finish = gloss", "", "",
         "", ""},
        {"integer range", "width", "", "width", "5\t9", "5 <= width <= 9", "5=1", "1 <= width <= 100", "55",
         "55 <= width <= 100", "5\t0", "At least 1"},
        {"set integer range", "width", "3\t9", "3 <= width <= 9", "9\t5", "5 <= width <= 9", "5=3",
         "3 <= width <= 9", "1", "1 <= width <= 9", "12.5", "A whole number from 1 to 100"},
        {"set float range", "depth", "-1\t2", "-1.000 <= depth <= 2.000", "1,5", "1.500 <= depth <= 2.000",
         "5=-1", "-1.000 <= depth <= 2.000", "0,25", "0.250 <= depth <= 2.000", "3000",
         "At most 2000.000 mm"},
    };
    static const QVector<Kind> values = {
        {"text", "note", "", "none", "MATT", "MATT", "a=none", "none", "x y", "x y", "", ""},
        {"text with choices", "colour", "", "blue", "GRE", "GRE", "re=blue", "blue", "Red", "Red", "", ""},
        {"option", "finish", "", "matt", "v", "gloss", "v^", "matt", "", "", "", ""},
        {"option without a value", "grade", "", "", "v", "high", "v^", "low", "", "", "", ""},
        {"integer", "width", "", "7", "55", "55", "5=7", "7", "99", "99", "1e2",
         "A whole number from 1 to 100"},
        {"float", "depth", "", "0.500", "1,5", "1.500", "5=.5", "0.500", "12,5", "12.500", "1.2345",
         "At most 3 decimals"},
    };
    return inFilter ? conditions : values;
}

} // namespace

/// What is stored of an open editor: each kind of editor, left in each way, after each thing that a user does in it.
class StoredEntryTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void isWhatTheUserEntered_data()
    {
        QTest::addColumn<int>("kindIndex");
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("deed");
        const auto addRow = [](int index, const QString &way, const char *deed) {
            QTest::addRow("%s or %s, %s, %s", kinds(true)[index].name, kinds(false)[index].name,
                          qPrintable(way), deed)
                << index << way << deed;
        };
        for (int index = 0; index < kinds(true).size(); ++index) {
            for (const QString &way : m_ways.keys()) {
                for (const char *deed : {"nothing", "change", "change and back", "paste", "beyond"})
                    addRow(index, way, deed);
            }
            for (const QString &way : m_otherWays.keys())
                addRow(index, way, "change");
        }
    }
    void isWhatTheUserEntered()
    {
        QFETCH(int, kindIndex);
        QFETCH(QString, deed);
        const Kind &kind = kinds(inFilter())[kindIndex];
        const Way left = m_ways.value(way(), m_otherWays.value(way()));
        if (way() == "entity" && !inFilter())
            QSKIP("features are the only entity");
        if ((deed == "paste" && kind.pasted.isEmpty()) || (deed == "beyond" && kind.keysBeyond.isEmpty()))
            QSKIP("not in an editor of this kind");
        openEditorOf(kind);
        const QList<QByteArray> before = records();
        perform(deed, kind);
        if (deed == "beyond")
            verifyRefusalIsTold(kind);
        if (QTest::currentTestFailed())
            return;
        events.clear();
        left.leave();
        if (QTest::currentTestFailed())
            return;
        QCoreApplication::processEvents();
        verifyWhatIsOpen(kind, left, deed);
        const QString result = resultOf(kind, left, deed);
        const QString commit = QString("commit " + left.next).replace("%1", kind.attribute).trimmed();
        QCOMPARE(int(events.count("commit")), result == kind.stored ? 0 : 1);
        if (result != kind.stored)
            QCOMPARE(events.mid(0, 2).join(' '), commit);
        if (way() == "remove" || way() == "clear all")
            click(undoButton);
        QCOMPARE(DialogTest::resultOf(kind.attribute), result);
        if (result == kind.stored)
            QCOMPARE(records()[1], before[1]);
    }

private:
    /// What a way out does to the editor and the dialog.
    enum End {
        Stores,
        StoresUnlessRefused, ///< with a refused entry, editor and dialog stay open
        Accepts,
        AcceptsUnlessRefused,
        Drops,
        Rejects
    };
    struct Way {
        End end;
        QString next; ///< what happens next to the commit; %1 is the attribute
        std::function<void()> leave;
    };

    /// What the host reads after the edit.
    static QString resultOf(const Kind &kind, const Way &way, const QString &deed)
    {
        if (way.end == Drops || way.end == Rejects || deed == "beyond")
            return kind.stored;
        if (deed == "change")
            return kind.result;
        if (deed == "paste")
            return kind.resultOfPaste;
        // Only Enter stores an unchanged editor, and only for a condition that was not set.
        const bool storesOpened = deed == "change and back" || (DialogTest::way() == "Enter" && inFilter());
        return storesOpened ? kind.opened : kind.stored;
    }

    void openEditorOf(const Kind &kind) const
    {
        // Nothing here depends on what is painted, and painting would take half of the time.
        dialog->setUpdatesEnabled(false);
        choose({"plated", kind.attribute});
        click(chosenList, kind.attribute);
        if (!kind.setFirst.isEmpty()) {
            press(Qt::Key_F2);
            pressKeys(kind.setFirst);
            press(Qt::Key_Return);
        }
        click(topView, "pad_01");
        click(chosenList, kind.attribute);
        press(Qt::Key_F2);
        QVERIFY(editor());
        QCOMPARE(DialogTest::resultOf(kind.attribute), kind.stored);
    }

    void perform(const QString &deed, const Kind &kind) const
    {
        if (deed == "change")
            pressKeys(kind.keys);
        else if (deed == "change and back")
            pressKeys(kind.keysBack);
        else if (deed == "beyond")
            pressKeys(kind.keysBeyond);
        else if (deed == "paste") {
            QGuiApplication::clipboard()->setText(kind.pasted);
            press(Qt::Key_V, Qt::ControlModifier);
        }
    }

    void pressKeys(const QString &keys) const
    {
        for (const QChar key : keys) {
            if (key == '=')
                press(Qt::Key_A, Qt::ControlModifier);
            else if (key == '<')
                press(Qt::Key_Delete);
            else if (key == 'v' || key == '^')
                press(key == 'v' ? Qt::Key_Down : Qt::Key_Up);
            else
                type(key);
        }
    }

    void verifyRefusalIsTold(const Kind &kind) const
    {
        QCOMPARE(preview->text(), QString());
        const auto *note = dialog->findChild<QLabel *>("editorNote");
        QVERIFY(note);
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), kind.refusal);
        QCOMPARE(qApp->focusWidget()->accessibleDescription(), kind.refusal);
    }

    void verifyWhatIsOpen(const Kind &kind, const Way &way, const QString &deed) const
    {
        const bool staysOpen =
            deed == "beyond" && (way.end == StoresUnlessRefused || way.end == AcceptsUnlessRefused);
        const bool closes = way.end == Accepts || way.end == AcceptsUnlessRefused || way.end == Rejects;
        QCOMPARE(editor() != nullptr, staysOpen);
        QCOMPARE(dialog->isVisible(), staysOpen || !closes);
        if (staysOpen)
            QVERIFY(qApp->focusWidget()->findChild<QLineEdit *>()->hasSelectedText());
        else if (deed == "beyond" && way.end == Stores)
            QVERIFY2(description->text().contains(kind.refusal), qPrintable(description->text()));
    }

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
    /// The first one closes the list of choices, if it is open.
    void pressEscape() const
    {
        const auto *choices = dialog->findChild<QListWidget *>("textChoices");
        const bool offers = choices && choices->isVisible();
        press(Qt::Key_Escape);
        QCOMPARE(editor() != nullptr, offers);
        if (offers)
            press(Qt::Key_Escape);
    }
    void pressTab() const
    {
        for (int widgets = 0; editor() && widgets < 2; ++widgets)
            press(Qt::Key_Tab);
    }

    const QMap<QString, Way> m_ways = {
        {"Enter", {StoresUnlessRefused, "", [this] { press(Qt::Key_Return); }}},
        {"Tab", {Stores, "", [this] { pressTab(); }}},
        {"elsewhere", {Stores, "", [this] { click(filterText); }}},
        {"OK", {AcceptsUnlessRefused, "accepted", [this] { click(okButton); }}},
        {"Alt+OK", {AcceptsUnlessRefused, "accepted", [this] { QVERIFY(pushButton(*okButton)); }}},
        {"add", {Stores, "+pad_01", [this] { click(addButton); }}},
        {"remove", {Stores, "-%1", [this] { click(removeButton); }}},
        {"filter key", {Stores, "pass", [this] { typeIntoFilter(); }}},
        {"entity", {Stores, "pass", [this] { pressOn(entityList, Qt::Key_Up); }}},
        {"group", {Stores, "pass", [this] { pressOn(groupList, Qt::Key_Down); }}},
        {"units", {Stores, "", [this] { dialog->setDisplayUnits(-1); }}},
        {"accept()", {Accepts, "accepted", [this] { dialog->accept(); }}},
        {"reject()", {Rejects, "", [this] { dialog->reject(); }}},
        {"hide()", {Rejects, "", [this] { dialog->hide(); }}},
        {"Escape", {Drops, "", [this] { pressEscape(); }}},
        {"close button", {Rejects, "", [this] { dialog->close(); }}},
    };
    /// More ways, for which a change is enough.
    const QMap<QString, Way> m_otherWays = {
        {"Cancel", {Rejects, "", [this] { click(cancelButton); }}},
        {"clear all", {Stores, "-plated", [this] { click(clearButton); }}},
        {"menu",
         {Stores, "menu", [this] { click(chosenList, "plated", Value, Qt::NoModifier, Qt::RightButton); }}},
        {"sort", {Stores, "", [this] { clickHeader(chosenList, Name); }}},
        {"another row", {Stores, "", [this] { click(chosenList, "plated"); }}},
    };
};

QTEST_MAIN(StoredEntryTest)
#include "tst_stored_entry.moc"
