#include "contract_test.h"
#include "generated.h"
#include "json_table.h"

#include <algorithm>
#include <limits>
#include <tuple>

using namespace Zudunmaf;

/// Reading, saving and restoring what the user chose, and reading it from lines.
class ConditionsTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Over generated dictionaries: record, condition, document, condition, record, line and condition again.
    void roundTrips()
    {
        int readCount = 0;
        for (int round = 0; round < 150; ++round) {
            makeDictionary();
            const bool byPrompt = round % 2;
            const RowSet available = rowsOf<AttrFilterLWI>(byPrompt);
            RowSet added;
            QList<AttrCondition> conditions, again;
            for (const auto &row : available) {
                fill(static_cast<AttrFilterLWI &>(*row));
                conditions << conditionOf(static_cast<AttrFilterLWI &>(*row));
            }
            const QStringList lines = linesOf(available);
            QVERIFY(conditionsFromJson(conditionsToJson(conditions), &again));
            QVERIFY(again == conditions);
            for (const RestoreResult &result : restored(again, available, &added))
                QVERIFY2(result.status == RestoreDone, qPrintable(result.reason));
            QCOMPARE(linesOf(added), lines);
            for (std::size_t i = 0; i < available.size(); ++i) {
                if (conditions[int(i)].isSet)
                    QCOMPARE(bytes(*added[i]), bytes(*available[i]));
            }
            const auto results = conditionsFromLines(lines, 3, byPrompt ? LabelsByPrompt : LabelsByName);
            QStringList readLines;
            again.clear();
            for (int i = 0; i < lines.size(); ++i) {
                if (results[i].status == LineRead) {
                    QCOMPARE(results[i].condition.name, conditions[i].name);
                    again << results[i].condition;
                    readLines << lines[i];
                }
            }
            restored(again, available, &added);
            QCOMPARE(linesOf(added), readLines);
            readCount += int(readLines.size());
        }
        // Of 1500; the others are ambiguous.
        QVERIFY2(readCount > 1200, qPrintable(QString::number(readCount)));
    }

    void textCutInsideOfACharacter()
    {
        for (int bytesBefore = 0; bytesBefore < 4; ++bytesBefore) {
            const QByteArray cut = (QByteArray(bytesBefore, 'x') + QByteArray("😀").repeated(60)).left(199);
            AttrFilterLWI item;
            set(item, text("note", ""), cut);
            const QString whole = QString(bytesBefore, 'x') + QString("😀").repeated((199 - bytesBefore) / 4);
            QCOMPARE(conditionOf(item).text, whole);
        }
    }

    void firstOfEqualOptionsIsRestored()
    {
        static const char *const equal[] = {"red", "blue", "red"};
        DmlAttrDef &colour = option("colour", 0);
        colour.optionList = equal;
        host().dictionary << &colour;
        const RowSet rows = rowsOf<AttrFilterLWI>(false);
        RowSet added;
        auto &item = static_cast<AttrFilterLWI &>(*rows[0]);
        set(item, colour, bytesOf(2));
        restored({conditionOf(item)}, rows, &added);
        QCOMPARE(record(*added[0]).option, 0);
    }

    /// The test of the schema reads the same table.
    void documentsAreReadAndWritten()
    {
        const QJsonArray documents = jsonTable("documents.json")["good"].toArray();
        for (const QJsonValue document : documents) {
            DocumentProblem problem;
            const QByteArray written = readAndWritten(document.toObject(), &problem);
            QVERIFY2(problem.reason.isEmpty(), qPrintable(problem.reason));
            QCOMPARE(QJsonDocument::fromJson(written).object(), document.toObject());
        }
    }

    void refusedDocuments()
    {
        const QJsonArray documents = jsonTable("documents.json")["bad"].toArray();
        for (const QJsonValue row : documents) {
            DocumentProblem problem;
            QCOMPARE(readAndWritten(row["document"].toObject(), &problem), QByteArray());
            QCOMPARE(problem.place, row["place"].toString());
            QVERIFY(!problem.reason.isEmpty());
            QVERIFY2(problem.reason == row["reason"].toString(problem.reason), qPrintable(problem.reason));
        }
        const QJsonArray texts = jsonTable("documents.json")["badTexts"].toArray();
        for (const QJsonValue row : texts) {
            const QByteArray json = row["text"].toString().toUtf8();
            DocumentProblem problem;
            QList<AttrCondition> kept{AttrCondition()};
            QVERIFY(!conditionsFromJson(json, &kept, &problem));
            QVERIFY(!conditionsFromJson(json, &kept));
            QCOMPARE(problem.place, row["place"].toString());
            QVERIFY(!problem.reason.isEmpty());
            QCOMPARE(kept.size(), 1);
        }
    }

    /// Conditions and values of a dictionary that has changed since they were saved.
    void changedDictionary_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QJsonObject>("saved");
        QTest::addColumn<QString>("becomes");
        QTest::addColumn<QString>("shown"); // in the chosen table, where the number is another one than saved
        const QJsonObject table = jsonTable("restored.json");
        for (const QString &kind : table.keys()) {
            for (const QJsonValue row : table[kind].toArray())
                QTest::newRow(qPrintable(kind + ": " + row["case"].toString()))
                    << kind << row["saved"].toObject() << row["becomes"].toString()
                    << row["shown"].toString();
        }
    }
    void changedDictionary()
    {
        QFETCH(QString, kind);
        QFETCH(QJsonObject, saved);
        QFETCH(QString, shown);
        host().dictionary = eachType();
        host().dictionary << &real("huge", -1e300, 1e300, 0) << &integer("other", 0, 9, 11);
        host().dictionary << &real("narrowed", 871.4845, 871.4855, 900);
        const QByteArray json = QJsonDocument({{"version", 1}, {kind, QJsonArray{saved}}}).toJson();
        RowSet added;
        RestoreResult result;
        if (kind == "conditions") {
            AttributesFilterDialog dialog(3);
            makeAvailable(rowsOf<AttrFilterLWI>(false));
            host().dictionary << &integer("gone", 0, 9, 0);
            QList<AttrCondition> conditions;
            QVERIFY(conditionsFromJson(json, &conditions));
            result = dialog.restoreConditions(conditions, addTo(&added)).constFirst();
        } else {
            FeatureAttributesDialog dialog(3);
            makeAvailable(rowsOf<FeatureAttrLWI>(false));
            QList<AttrAssignment> values;
            QVERIFY(assignmentsFromJson(json, &values));
            result = dialog.restoreAssignments(values, addTo(&added)).constFirst();
            if (result.status == RestoreDone && shown.isEmpty())
                QVERIFY(assignmentOf(static_cast<FeatureAttrLWI &>(*added[0])) == values[0]);
        }
        const QStringList statuses{"restored",    "no such attribute", "not available", "type changed",
                                   "option gone", "out of range",      "unknown units"};
        QTEST(statuses.value(result.status), "becomes");
        QCOMPARE(result.reason.isEmpty(), result.status == RestoreDone);
        QCOMPARE(int(added.size()), int(result.status == RestoreDone));
        if (!shown.isEmpty())
            QCOMPARE(kind == "conditions" ? added[0]->toString() : added[0]->valueAsString(), shown);
    }

    void chosenConditions()
    {
        host().dictionary = eachType();
        AttributesFilterDialog dialog(3);
        const AttrCondition width = conditionsFromLines({"6 <= width <= 8"}, 3, LabelsByName)[0].condition;
        QCOMPARE(dialog.restoreConditions({width}, refuse).first().status, RestoreNotAdded);
        dialog.restoreConditions({width, width}, addToBase);
        QVERIFY(dialog.conditions() == QList<AttrCondition>({width, width}));
        AttrCondition wider = width;
        wider.high = 9;
        QVERIFY(wider != width);
        appendRow(host().chosen, *rowsOf<FeatureAttrLWI>(false)[3]);    // has no line
        appendRow(host().chosen, *rowsOf<AttrFilterLWI>(false).back()); // has an unknown type
        QCOMPARE(dialog.getFiltersAsStringList(), QStringList({"6 <= width <= 8", "6 <= width <= 8", ""}));
    }

    void chosenValues()
    {
        host().dictionary = eachType();
        FeatureAttributesDialog dialog(3);
        AttrAssignment seven;
        seven.name = "width";
        seven.type = DmlAttrInteger;
        seven.value = 7;
        int calls = 0;
        const AddToChosen refuseFirst = [&calls](const QTableWidgetItem &item) {
            return ++calls > 1 && addToBase(item);
        };
        const auto results = dialog.restoreAssignments({seven, seven, seven}, refuseFirst);
        QCOMPARE(results[0].status, RestoreNotAdded);
        QCOMPARE(results[1].status, RestoreDone);
        QCOMPARE(results[2].status, RestoreDuplicate);
        QCOMPARE(dialog.restoreAssignments({seven}, addToBase).first().status, RestoreDuplicate);
        QVERIFY(dialog.assignments() == QList<AttrAssignment>({seven}));
        // A dictionary that cannot be walked is reported once.
        host().failAt = host().fallible + 1;
        seven.name = "never";
        QCOMPARE(dialog.restoreAssignments({seven, seven}, addToBase)[1].status, RestoreNoDictionary);
        QCOMPARE(int(host().reports.size()), 1);
    }

    void lines()
    {
        DmlAttrDef &narrow = real("narrow", 0.0006, 0.0014, 0), &quirk = integer("a%1b", 0, 9, 0);
        host().dictionary = eachType();
        host().dictionary << &text("a", "") << &option("a = b", 0) << &narrow << &quirk
                          << &integer("%3", 0, 9, 0) << &integer("%2", 0, 9, 0) << &integer("b%0", 0, 9, 0);
        const QJsonObject table = jsonTable("lines.json");
        const QStringList statuses{"read", "unknown", "ambiguous", "option gone", "out of range"};
        QCOMPARE(int(table.size()), int(statuses.size()));
        for (int status = 0; status < int(statuses.size()); ++status) {
            const QStringList lines = textsOf(table[statuses[status]]);
            const QList<LineResult> results = conditionsFromLines(lines, 3, LabelsByName);
            for (int i = 0; i < int(lines.size()); ++i) {
                QVERIFY2(results[i].status == status, qPrintable(lines[i] + ": " + results[i].reason));
                QCOMPARE(results[i].reason.isEmpty(), status == LineRead);
            }
        }
        QCOMPARE(conditionsFromLines({"0.001 <= narrow <= 0.001"}, 3, LabelsByName)[0].condition.low, 0.001);
        // By prompt, two attributes have the same label.
        host().dictionary = {&narrow, &quirk};
        QCOMPARE(conditionsFromLines({"Prompt"}, 3, LabelsByPrompt)[0].status, LineAmbiguous);
        host().dictionary = {&quirk};
        QCOMPARE(conditionsFromLines({"1 <= Prompt <= 2"}, 3, LabelsByPrompt)[0].condition.name,
                 QString("a%1b"));
        *quirk.prompt = '\0';
        QCOMPARE(conditionsFromLines({"1 <=  <= 2"}, 3, LabelsByPrompt)[0].status, LineRead);
        host().failAt = host().fallible + 1;
        QCOMPARE(conditionsFromLines({"Prompt"}, 3, LabelsByPrompt)[0].status, LineNoDictionary);
        QCOMPARE(int(host().reports.size()), 1);
    }

private:
    typedef std::vector<std::unique_ptr<DmlAttrLWI>> RowSet;

    template <class Item>
    RowSet rowsOf(bool byPrompt)
    {
        RowSet rows;
        for (const DmlAttrDef *definition : host().dictionary) {
            rows.emplace_back(new Item);
            rows.back()->setDisplayPrompt(byPrompt);
            rows.back()->setDisplayValue(true);
            rows.back()->setDmlAttribute(pointer(definition));
        }
        return rows;
    }

    static QStringList linesOf(const RowSet &rows)
    {
        QStringList lines;
        for (const auto &row : rows)
            lines << row->toString();
        return lines;
    }

    static AddToChosen addTo(RowSet *added)
    {
        return [added](const QTableWidgetItem &item) {
            added->emplace_back(static_cast<DmlAttrLWI *>(item.clone()));
            return true;
        };
    }

    static bool refuse(const QTableWidgetItem &) { return false; }
    static bool addToBase(const QTableWidgetItem &item) { return appendRow(host().chosen, item) != nullptr; }

    /// Reads the document and writes what was read; empty if it is refused.
    static QByteArray readAndWritten(const QJsonObject &document, DocumentProblem *problem)
    {
        const QByteArray json = QJsonDocument(document).toJson();
        QList<AttrCondition> conditions;
        QList<AttrAssignment> values;
        if (document.contains("assignments"))
            return assignmentsFromJson(json, &values, problem) ? assignmentsToJson(values) : QByteArray();
        return conditionsFromJson(json, &conditions, problem) ? conditionsToJson(conditions) : QByteArray();
    }

    static void makeAvailable(const RowSet &rows)
    {
        host().top->setRowCount(0);
        for (const auto &row : rows)
            appendRow(host().top, *row);
    }

    static QList<RestoreResult> restored(const QList<AttrCondition> &conditions, const RowSet &available,
                                         RowSet *added)
    {
        AttributesFilterDialog dialog(3);
        makeAvailable(available);
        added->clear();
        return dialog.restoreConditions(conditions, addTo(added));
    }

    void makeDictionary()
    {
        host().dictionary.clear();
        for (int i = 0; i < 10; ++i) {
            const int type = m_generated.below(5);
            const QByteArray name = m_generated.text(4).toUtf8() + QByteArray::number(i);
            DmlAttrDef &made = definition(type, name, m_generated.text(3).toUtf8());
            if (type == DmlAttrInteger) {
                made.intMin = std::numeric_limits<int>::min();
                made.intMax = std::numeric_limits<int>::max();
            } else if (type == DmlAttrFloat) {
                made.floatMin = -std::numeric_limits<double>::infinity();
                made.floatMax = std::numeric_limits<double>::infinity();
                made.unitsClass = m_generated.below(5) - 1;
            }
            host().dictionary << &made;
        }
    }

    void fill(AttrFilterLWI &item)
    {
        record(item).isSet = m_generated.below(5) != 0;
        switch (item.getDmlAttrType()) {
        case DmlAttrText:
            qstrncpy(record(item).text, m_generated.text(12).toUtf8(), 200);
            break;
        case DmlAttrOption:
            record(item).option = m_generated.below(3);
            break;
        case DmlAttrInteger:
            std::tie(record(item).intLow, record(item).intHigh) =
                std::minmax({m_generated.integer(), m_generated.integer()});
            break;
        case DmlAttrFloat:
            std::tie(record(item).floatLow, record(item).floatHigh) =
                std::minmax({m_generated.number(), m_generated.number()});
            break;
        default:
            break;
        }
    }

    void set(AttrFilterLWI &item, const DmlAttrDef &definition, const QByteArray &payload)
    {
        item.setDisplayValue(true);
        item.setDmlAttribute(pointer(&definition));
        record(item).isSet = 1;
        std::memcpy(record(item).text, payload.constData(), std::size_t(payload.size()));
    }

    Generated m_generated;
};

QTEST_MAIN(ConditionsTest)
#include "tst_conditions.moc"
