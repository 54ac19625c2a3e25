#include "contract_test.h"
#include "generated.h"
#include "json_table.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

using namespace Zudunmaf;

namespace
{

AttrCondition condition(const char *name, int type, double low, double high, const QString &word = "mm",
                        int units = 2)
{
    AttrCondition made;
    made.name = name;
    made.type = type;
    made.isSet = true;
    made.low = low;
    made.high = high;
    made.units = units;
    (type == DmlAttrFloat ? made.unitsText : made.text) = word;
    return made;
}

/// Conditions of a dictionary that has changed since, and what becomes of each.
QList<QPair<AttrCondition, RestoreStatus>> changedConditions()
{
    return {
        {condition("width", DmlAttrInteger, 5, 9), RestoreDone},
        {condition("width", DmlAttrInteger, 5, 10), RestoreOutOfRange},
        {condition("width", DmlAttrInteger, 4, 9), RestoreOutOfRange},
        {condition("width", DmlAttrInteger, 7, 6), RestoreOutOfRange},
        {condition("width", DmlAttrInteger, 5.5, 6), RestoreOutOfRange},
        {condition("width", DmlAttrText, 5, 9), RestoreTypeChanged},
        {condition("colour", DmlAttrOption, 0, 0, "deep green"), RestoreDone},
        {condition("colour", DmlAttrOption, 0, 0, "green"), RestoreOptionGone},
        {condition("colour", DmlAttrOption, 0, 0, ""), RestoreDone},
        {condition("note", DmlAttrText, 0, 0, QString(199, 'x')), RestoreDone},
        {condition("note", DmlAttrText, 0, 0, QString(200, 'x')), RestoreOutOfRange},
        {condition("note", DmlAttrText, 0, 0, QString(QChar(0))), RestoreOutOfRange},
        {condition("gone", DmlAttrInteger, 1, 2), RestoreNotAvailable},
        {condition("never", DmlAttrInteger, 1, 2), RestoreNoSuchAttribute},
        {condition("depth", DmlAttrFloat, -38.1, 2.5), RestoreDone},
        {condition("depth", DmlAttrFloat, -1.5, 0.1, "inch", 1), RestoreDone},
        {condition("depth", DmlAttrFloat, -1.5, double(0.1f), "inch", 1), RestoreDone},
        {condition("depth", DmlAttrFloat, -1.5, 0.1, "inch", 99), RestoreDone}, // the text counts
        {condition("huge", DmlAttrFloat, -INFINITY, INFINITY),
         RestoreDone}, // as its untouched editor stores it
        {condition("depth", DmlAttrFloat, -38.1, 2.6), RestoreOutOfRange},
        {condition("depth", DmlAttrFloat, -1.5, 0.101, "inch", 1), RestoreOutOfRange},
        {condition("depth", DmlAttrFloat, std::nan(""), 0, "inch", 1), RestoreOutOfRange},
        {condition("depth", DmlAttrFloat, -1, 0, "furlong", 5), RestoreUnknownUnits},
        {condition("depth", DmlAttrFloat, -1, 0, "cubit", 1), RestoreUnknownUnits}, // the host answers 77
        {condition("depth", DmlAttrFloat, -1, 0, "", -1), RestoreUnknownUnits},
    };
}

} // namespace

/// What was chosen is read, saved, restored, and read back from lines.
class ConditionsTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Over generated dictionaries: record, value, document, record and line, each equal to the one before.
    void roundTrips()
    {
        int read = 0, refused = 0;
        for (int round = 0; round < 150; ++round) {
            const bool byPrompt = round % 2;
            makeDictionary();
            RowSet available = rowsOf<AttrFilterLWI>(byPrompt), added;
            QList<AttrCondition> conditions, again;
            QStringList lines;
            for (const auto &row : available) {
                fill(static_cast<AttrFilterLWI &>(*row));
                conditions << conditionOf(static_cast<AttrFilterLWI &>(*row));
                lines << row->toString();
            }
            DocumentProblem problem;
            QVERIFY2(conditionsFromJson(conditionsToJson(conditions), &again, &problem),
                     qPrintable(problem.reason));
            QVERIFY(again == conditions);
            for (const RestoreResult &result : restored(again, available, &added))
                QVERIFY2(result.status == RestoreDone, qPrintable(result.reason));
            for (std::size_t i = 0; i < available.size(); ++i) {
                QCOMPARE(added[i]->toString(), lines[int(i)]);
                if (conditions[int(i)].isSet)
                    QCOMPARE(bytes(*added[i]), bytes(*available[i]));
            }

            readBack(lines, conditions, available, byPrompt, &read, &refused);
        }
        // Labels alone collide, and those by prompt more often.
        QVERIFY2(read > 4 * refused && refused > 0, qPrintable(QString("%1 %2").arg(read).arg(refused)));
    }

    /// A text that is cut in the middle of a character, and entries with the same text.
    void lossesAreKnown()
    {
        static const char *const same[] = {"red", "blue", "red"};
        DmlAttrDef &note = text("note", ""), &colour = option("colour", 0);
        colour.optionList = same;
        for (int bytesLeft = 0; bytesLeft < 4; ++bytesLeft) {
            const QByteArray cut = (QByteArray(bytesLeft, 'x') + QByteArray("😀").repeated(60)).left(199);
            AttrFilterLWI item;
            set(item, note, cut);
            const QString whole = QString(bytesLeft, 'x') + QString("😀").repeated((199 - bytesLeft) / 4);
            QCOMPARE(restored(item)->toString(), "note = " + whole);
        }
        AttrFilterLWI item, first;
        set(item, colour, bytesOf(2));
        set(first, colour, bytesOf(0));
        QCOMPARE(bytes(*restored(item)), bytes(first));
    }

    void oddTextsAndNumbersAreKept()
    {
        QList<AttrAssignment> assignments, again;
        for (const QString &text : {QString(), QString(""), QString(QChar(0)), QString(QChar(0xD800)),
                                    QString("\x01\n\"\\/\u2028😀 = ")}) {
            AttrAssignment made;
            made.name = text;
            made.type = assignments.size() % 2 ? DmlAttrText : DmlAttrOption;
            made.value = text;
            assignments << made;
        }
        AttrAssignment odd;
        odd.type = 9;
        assignments << odd;
        for (const double number : {std::nan(""), double(INFINITY), double(-INFINITY), -0.0}) {
            odd.type = DmlAttrFloat;
            odd.value = number;
            assignments << odd;
        }
        QVERIFY(assignmentsFromJson(assignmentsToJson(assignments), &again));
        QVERIFY(again == assignments);
    }

    /// The same table is read by the test of the schema.
    void refusals()
    {
        const QJsonObject table = jsonTable("documents.json");
        for (const QJsonValue good : table["good"].toArray())
            QCOMPARE(read(good.toObject()).reason, QString());
        for (const QJsonValue bad : table["bad"].toArray()) {
            const DocumentProblem problem = read(bad["document"].toObject());
            QCOMPARE(problem.place, bad["place"].toString());
            QVERIFY(!problem.reason.isEmpty());
        }
        for (const QJsonValue bad : table["badTexts"].toArray()) {
            const QByteArray json = bad["text"].toString().toUtf8();
            DocumentProblem problem;
            QList<AttrCondition> kept{AttrCondition()};
            QVERIFY(!conditionsFromJson(json, &kept, &problem) && !conditionsFromJson(json, &kept));
            QCOMPARE(problem.place, bad["place"].toString());
            QVERIFY(!problem.reason.isEmpty() && kept.size() == 1);
        }
    }

    void changedDictionary()
    {
        text("note", "");
        DmlAttrDef &gone = integer("gone", 0, 9, 0);
        host().dictionary = {&gone};
        const QList<QPair<AttrCondition, RestoreStatus>> cases = changedConditions();
        host().dictionary << eachType() << &real("huge", -1e300, 1e300, 0);
        RowSet available = rowsOf<AttrFilterLWI>(false), added;
        available.erase(available.begin());
        QList<AttrCondition> all;
        for (const auto &one : cases)
            all << one.first;
        const QList<RestoreResult> results = restored(all, available, &added);
        for (int i = 0; i < cases.size(); ++i) {
            QVERIFY2(results[i].status == cases[i].second,
                     qPrintable(QString("%1: ").arg(i) + results[i].reason));
            QCOMPARE(results[i].reason.isEmpty(), cases[i].second == RestoreDone);
        }
        QCOMPARE(int(added.size()), int(std::count_if(cases.begin(), cases.end(), [](const auto &one) {
                     return one.second == RestoreDone;
                 })));
        AttributesFilterDialog dialog(3);
        const AddToChosen refusing = [](const QTableWidgetItem &) { return false; };
        offer(available);
        QCOMPARE(dialog.restoreConditions(all.mid(0, 1), refusing).first().status, RestoreNotAdded);
    }

    void values()
    {
        host().dictionary = eachType();
        host().dictionary << &text("bare", nullptr) << &integer("other", 0, 9, 11);
        RowSet available = rowsOf<FeatureAttrLWI>(false), added;
        QList<AttrAssignment> assignments, again;
        for (const auto &row : available) {
            row->setDisplayUnits(2);
            assignments << assignmentOf(static_cast<FeatureAttrLWI &>(*row));
        }
        assignments[4].value = 0.1; // the upper limit, which no 32-bit float is
        QVERIFY(assignmentsFromJson(assignmentsToJson(assignments), &again));
        QVERIFY(again == assignments);
        FeatureAttributesDialog dialog(3);
        offer(available);
        for (const RestoreResult &result : dialog.restoreAssignments(again, addTo(&added)))
            QVERIFY2(result.status == RestoreDone, qPrintable(result.reason));
        for (std::size_t i = 0; i < added.size(); ++i)
            QVERIFY(assignmentOf(static_cast<FeatureAttrLWI &>(*added[i])) == assignments[int(i)]);
        const QVariant bare = added[6]->attrValue();
        QVERIFY(bare.userType() == QMetaType::QString && bare.toString().isNull());
        QVERIFY(matches(AttrCondition(), assignments[6].value)); // carried, without a text

        refuseValues(&dialog, assignments, &added);
    }

    /// What stands in the chosen tables of the dialogs, through a base that the library does not know.
    void dialogs()
    {
        host().dictionary = eachType();
        AttributesFilterDialog filter(3);
        const AddToChosen add = [](const QTableWidgetItem &item) {
            return appendRow(host().chosen, item) != nullptr;
        };
        AttrCondition width;
        width.name = "width";
        width.type = DmlAttrInteger;
        width.isSet = true;
        width.low = 6;
        width.high = 8;
        AttrCondition never = width;
        never.name = "never";
        QCOMPARE(filter.restoreConditions({width, never, width}, add)[1].status, RestoreNoSuchAttribute);
        QVERIFY(filter.conditions() == QList<AttrCondition>({width, width}));
        QCOMPARE(filter.getFiltersAsStringList(), QStringList({"6 <= width <= 8", "6 <= width <= 8"}));

        FeatureAttributesDialog assign(3);
        AttrAssignment seven;
        seven.name = "width";
        seven.type = DmlAttrInteger;
        seven.value = 7;
        QCOMPARE(assign.restoreAssignments({seven, seven}, add)[1].status, RestoreDuplicate);
        QVERIFY(assign.assignments() == QList<AttrAssignment>({seven}));
        // A dictionary that cannot be walked is reported once.
        host().failAt = host().fallible + 1;
        seven.name = "never";
        QCOMPARE(assign.restoreAssignments({seven, seven}, add)[1].status, RestoreNoDictionary);
        QCOMPARE(int(host().reports.size()), 1);
    }

    void lines()
    {
        DmlAttrDef &narrow = real("narrow", 0.0006, 0.0014, 0), &quirk = integer("a%1b", 0, 9, 0);
        host().dictionary = eachType();
        host().dictionary << &text("a", "") << &option("a = b", 0) << &narrow << &quirk
                          << &integer("%3", 0, 9, 0) << &integer("%2", 0, 9, 0);
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

    static AddToChosen addTo(RowSet *added)
    {
        return [added](const QTableWidgetItem &item) {
            added->emplace_back(static_cast<DmlAttrLWI *>(item.clone()));
            return true;
        };
    }

    static DocumentProblem read(const QJsonObject &document)
    {
        DocumentProblem problem;
        QList<AttrCondition> conditions;
        QList<AttrAssignment> assignments;
        const QByteArray json = QJsonDocument(document).toJson();
        const bool isRead = document.contains("assignments")
                                ? assignmentsFromJson(json, &assignments, &problem)
                                : conditionsFromJson(json, &conditions, &problem);
        if (isRead != problem.reason.isEmpty())
            problem.reason = "the result and the problem differ";
        return problem;
    }

    /// Makes these the rows of the available table.
    static void offer(const RowSet &available)
    {
        host().top->setRowCount(0);
        for (const auto &row : available)
            appendRow(host().top, *row);
    }

    /// Values that are there already, beyond limits, of another type or in other units.
    static void refuseValues(FeatureAttributesDialog *shown, const QList<AttrAssignment> &assignments,
                             RowSet *values)
    {
        FeatureAttributesDialog &dialog = *shown;
        RowSet &added = *values;
        for (int i = 0; i < 7; ++i)
            appendRow(host().chosen, *added[std::size_t(i)]);
        AttrAssignment other = assignments[7];
        const QList<AttrAssignment> twice{assignments[3], other, other};
        // What was not added is no duplicate later.
        int calls = 0;
        const auto results =
            dialog.restoreAssignments(twice, [&](const QTableWidgetItem &) { return ++calls > 1; });
        QCOMPARE(results[0].status, RestoreDuplicate);
        QCOMPARE(results[1].status, RestoreNotAdded);
        QCOMPARE(results[2].status, RestoreDone);
        QCOMPARE(dialog.restoreAssignments(twice, addTo(&added))[2].status, RestoreDuplicate);
        other.value = 11; // the default, beyond the limits
        QCOMPARE(dialog.restoreAssignments({other}, addTo(&added))[0].status, RestoreDone);
        other.value = 10;
        QCOMPARE(dialog.restoreAssignments({other}, addTo(&added))[0].status, RestoreOutOfRange);
        other.type = DmlAttrFloat;
        QCOMPARE(dialog.restoreAssignments({other}, addTo(&added))[0].status, RestoreTypeChanged);
        host().chosen->setRowCount(0);
        AttrAssignment depth = assignments[4], colour = assignments[2];
        depth.value = 2.54;
        depth.unitsText = "mm";
        colour.value = "green";
        added.clear();
        QCOMPARE(dialog.restoreAssignments({depth, colour}, addTo(&added))[1].status, RestoreOptionGone);
        QCOMPARE(float(added[0]->attrValue().toDouble()), 0.1f);
    }

    static QList<RestoreResult> restored(const QList<AttrCondition> &conditions, const RowSet &available,
                                         RowSet *added)
    {
        AttributesFilterDialog dialog(3);
        offer(available);
        return dialog.restoreConditions(conditions, addTo(added));
    }

    /// Each line is read as the condition that gave it, or is ambiguous.
    static void readBack(const QStringList &lines, const QList<AttrCondition> &conditions,
                         const RowSet &available, bool byPrompt, int *read, int *refused)
    {
        const QList<LineResult> results =
            conditionsFromLines(lines, 3, byPrompt ? LabelsByPrompt : LabelsByName);
        for (int i = 0; i < lines.size(); ++i) {
            if (results[i].status != LineRead) {
                ++*refused;
                const QString label = byPrompt ? available[std::size_t(i)]->data(DmlAttrPromptRole).toString()
                                               : conditions[i].name;
                QVERIFY2(results[i].status == LineAmbiguous || label.contains("%L"), qPrintable(lines[i]));
                continue;
            }
            ++*read;
            RowSet added;
            const RestoreResult result = restored({results[i].condition}, available, &added).first();
            QVERIFY2(result.status == RestoreDone, qPrintable(result.reason + '|' + lines[i]));
            QCOMPARE(added[0]->toString(), lines[i]);
            QCOMPARE(results[i].condition.name, conditions[i].name);
        }
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

    std::unique_ptr<DmlAttrLWI> restored(const AttrFilterLWI &item)
    {
        RowSet available, added;
        available.emplace_back(static_cast<DmlAttrLWI *>(item.clone()));
        QList<AttrCondition> again;
        conditionsFromJson(conditionsToJson({conditionOf(item)}), &again);
        restored(again, available, &added);
        return added.empty() ? std::make_unique<AttrFilterLWI>() : std::move(added[0]);
    }

    Generated m_generated;
};

QTEST_MAIN(ConditionsTest)
#include "tst_conditions.moc"
