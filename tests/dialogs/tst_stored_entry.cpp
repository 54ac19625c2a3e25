#include "dialog_test.h"
#include "json_table.h"

#include <QClipboard>

/// What is stored when the user leaves an editor: by editor, by way of leaving it, and by what the user did in it.
class StoredEntryTest : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Each editor with each edit is left in three ways, one for each reason to commit: a key in the editor, the loss of
    /// the focus, and a call of the host. For the other ways, a change and what must not be stored are enough.
    void isWhatTheUserEntered_data()
    {
        QTest::addColumn<QJsonObject>("editors");
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("edit");
        const QJsonArray table = jsonTable("editors.json")["editors"].toArray();
        for (const QJsonValue editors : table) {
            const QJsonObject value = editors["value"].toObject();
            for (const QString &way : m_ways.keys()) {
                QStringList edits{"change", value.contains("beyond a limit") ? "beyond a limit" : "nothing"};
                if (way == "Enter" || way == "elsewhere" || way == "accept()")
                    edits = QStringList{"nothing", "change", "change and back", "paste", "beyond a limit"};
                for (const QString &edit : edits) {
                    if (edit != "nothing" && !value.contains(edit) &&
                        !editors["condition"].toObject().contains(edit))
                        continue;
                    QTest::addRow("%s or %s, %s, %s", qPrintable(editors["condition"]["editor"].toString()),
                                  qPrintable(value["editor"].toString()), qPrintable(way), qPrintable(edit))
                        << editors.toObject() << way << edit;
                }
            }
        }
    }
    void isWhatTheUserEntered()
    {
        QFETCH(QJsonObject, editors);
        QFETCH(QString, edit);
        const QJsonObject kind = editors[inFilter() ? "condition" : "value"].toObject();
        const QString attribute = kind["attribute"].toString(), stored = kind["stored"].toString();
        const Way &left = m_ways[way()];
        if (way() == "entity" && !inFilter())
            QSKIP("features are the only entity");
        if (edit != "nothing" && !kind.contains(edit))
            QSKIP("not in an editor of this kind");
        openEditor(attribute, kind["set"].toString());
        QCOMPARE(resultOf(attribute), stored);
        const QByteArray record = records()[rowOf(chosenList, attribute)];
        perform(kind[edit].toObject());
        const QString refusal = kind[edit]["message"].toString();
        if (!refusal.isEmpty())
            verifyMessage(refusal);
        else if (inFilter())
            QCOMPARE(preview->text(), "Result: " + resultOfEnter(kind, edit));
        events.clear();
        left.leave();
        QCoreApplication::processEvents();
        if (QTest::currentTestFailed())
            return;
        verifyWhatIsOpen(left.end, refusal);

        const QString expected = expectedResult(kind, edit, left.end);
        const bool isCommitted = expected != stored;
        QCOMPARE(int(events.count("commit")), int(isCommitted));
        if (isCommitted)
            QCOMPARE(events.mid(0, 2).join(' '),
                     QString("commit " + left.next).replace("%1", attribute).trimmed());
        if (way() == "remove" || way() == "clear all")
            click(undoButton);
        QCOMPARE(resultOf(attribute), expected);
        if (!isCommitted)
            QCOMPARE(records()[rowOf(chosenList, attribute)], record);
    }

private:
    /// What a way out does to the editor and the dialog.
    enum End {
        Stores,
        StoresUnlessRefused, ///< a refused entry keeps editor and dialog open
        Accepts,
        AcceptsUnlessRefused,
        Drops,
        Rejects
    };
    struct Way {
        End end;
        QString next; ///< the event after the commit; %1 is the attribute
        std::function<void()> leave;
    };

    /// Only Enter stores an unchanged editor, and only for a condition that was not set.
    QString expectedResult(const QJsonObject &kind, const QString &edit, End end) const
    {
        const QString stored = kind["stored"].toString();
        if (end == Drops || end == Rejects)
            return stored;
        if (edit == "nothing" && way() == "Enter" && inFilter())
            return resultOfEnter(kind, edit);
        return kind[edit]["result"].toString(stored);
    }

    static QString resultOfEnter(const QJsonObject &kind, const QString &edit)
    {
        return kind[edit == "nothing" ? "change and back" : edit]["result"].toString();
    }

    void openEditor(const QString &attribute, const QString &keysOfAnEditBefore) const
    {
        // Painting would take half of the time, and no check depends on it.
        dialog->setUpdatesEnabled(false);
        choose({"plated", attribute});
        click(chosenList, attribute);
        if (!keysOfAnEditBefore.isEmpty()) {
            press(Qt::Key_F2);
            pressKeys(keysOfAnEditBefore);
            press(Qt::Key_Return);
        }
        click(topView, "pad_01");
        click(chosenList, attribute);
        press(Qt::Key_F2);
        QVERIFY(editor());
    }

    void perform(const QJsonObject &edit) const
    {
        pressKeys(edit["keys"].toString());
        if (!edit.contains("text"))
            return;
        QGuiApplication::clipboard()->setText(edit["text"].toString());
        press(Qt::Key_V, Qt::ControlModifier);
    }

    void verifyMessage(const QString &refusal) const
    {
        QCOMPARE(preview->text(), QString());
        const auto *note = dialog->findChild<QLabel *>("editorNote");
        QVERIFY(note);
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), refusal);
        QCOMPARE(qApp->focusWidget()->accessibleDescription(), refusal);
    }

    void verifyWhatIsOpen(End end, const QString &refusal) const
    {
        const bool waits = end == StoresUnlessRefused || end == AcceptsUnlessRefused;
        const bool staysOpen = waits && !refusal.isEmpty();
        const bool closes = end == Accepts || end == AcceptsUnlessRefused || end == Rejects;
        QCOMPARE(editor() != nullptr, staysOpen);
        QCOMPARE(dialog->isVisible(), staysOpen || !closes);
        if (staysOpen)
            QVERIFY(qApp->focusWidget()->findChild<QLineEdit *>()->hasSelectedText());
        if (staysOpen || end != Stores || refusal.isEmpty())
            return;
        const QString said = description->text() + chosenList->accessibleDescription();
        QCOMPARE(int(said.count(refusal)), way() == "filter key" ? 0 : 2);
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
    /// Tab goes to the second box of a range first, and Escape closes an open list of choices first.
    void pressUntilClosed(int key) const
    {
        for (int presses = 0; editor() && presses < 2; ++presses)
            press(key);
    }

    const QMap<QString, Way> m_ways = {
        {"Enter", {StoresUnlessRefused, "", [this] { press(Qt::Key_Return); }}},
        {"Tab", {Stores, "", [this] { pressUntilClosed(Qt::Key_Tab); }}},
        {"elsewhere", {Stores, "", [this] { click(filterText); }}},
        {"available row", {Stores, "", [this] { click(topView, "pad_02"); }}},
        {"another row", {Stores, "", [this] { click(chosenList, "plated"); }}},
        {"OK", {AcceptsUnlessRefused, "accepted", [this] { click(okButton); }}},
        {"Alt+OK", {AcceptsUnlessRefused, "accepted", [this] { QVERIFY(pushButton(*okButton)); }}},
        {"add", {Stores, "+pad_01", [this] { click(addButton); }}},
        {"remove", {Stores, "-%1", [this] { click(removeButton); }}},
        {"clear all", {Stores, "-plated", [this] { click(clearButton); }}},
        {"menu",
         {Stores, "menu", [this] { click(chosenList, "plated", Value, Qt::NoModifier, Qt::RightButton); }}},
        {"sort", {Stores, "", [this] { clickHeader(chosenList, Name); }}},
        {"filter key", {Stores, "pass", [this] { typeIntoFilter(); }}},
        {"entity", {Stores, "pass", [this] { pressOn(entityList, Qt::Key_Up); }}},
        {"group", {Stores, "pass", [this] { pressOn(groupList, Qt::Key_Down); }}},
        {"units", {Stores, "", [this] { dialog->setDisplayUnits(-1); }}},
        {"accept()", {Accepts, "accepted", [this] { dialog->accept(); }}},
        {"reject()", {Rejects, "", [this] { dialog->reject(); }}},
        {"hide()", {Rejects, "", [this] { dialog->hide(); }}},
        {"Escape", {Drops, "", [this] { pressUntilClosed(Qt::Key_Escape); }}},
        {"Cancel", {Rejects, "", [this] { click(cancelButton); }}},
        {"close button", {Rejects, "", [this] { dialog->close(); }}},
    };
};

QTEST_MAIN(StoredEntryTest)
#include "tst_stored_entry.moc"
