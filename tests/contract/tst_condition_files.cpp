#include "contract_test.h"
#include "generated.h"
#include "json_table.h"

#include <limits>

using namespace Zudunmaf;

/// Documents: every number and text comes back, and what is no document is refused with its place.
class ConditionFilesTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    void numbersKeepTheirBits()
    {
        Generated generated;
        QList<AttrCondition> conditions, again;
        for (int i = 0; i < 20000; ++i) {
            AttrCondition made;
            made.type = i % 2 ? DmlAttrFloat : DmlAttrInteger;
            made.isSet = true;
            made.name = generated.text(3);
            made.low = generated.number();
            made.high = generated.number();
            if (i % 2) {
                made.units = generated.integer();
                made.unitsText = generated.text(2);
            }
            conditions << made;
        }
        conditions[1].low = -std::numeric_limits<double>::infinity();
        conditions[1].high = std::numeric_limits<double>::infinity();
        conditions[3].low = std::numeric_limits<double>::quiet_NaN();
        QVERIFY(conditionsFromJson(conditionsToJson(conditions), &again));
        for (int i = 0; i < conditions.size(); ++i)
            QVERIFY2(again[i] == conditions[i], qPrintable(QString::number(conditions[i].low, 'g', 17)));
    }

    void textsAreKept()
    {
        QList<AttrAssignment> assignments, again;
        for (const QString &text :
             {QString(), QString(""), QString(QChar(0)), QString("\x01\n\"\\/\u2028😀 = ")}) {
            AttrAssignment made;
            made.name = text;
            made.type = assignments.size() % 2 ? DmlAttrText : DmlAttrOption;
            made.value = text;
            assignments << made;
        }
        AttrAssignment odd;
        odd.type = 9;
        assignments << odd;
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
    }

    void refusedTexts()
    {
        const QList<QPair<QByteArray, QString>> cases{
            {"", ""},
            {"[]", ""},
            {"{\"version\": 1, \"conditions\": []", ""},
            {"{\"version\": 1, \"version\": 1, \"conditions\": []}", "version"},
            {"{\"version\": 1, \"conditions\": [{}, {\"a\": [{\"b\": 1}, {\"b,\\\"\": 1, \"b,\\u0022\": "
             "1}]}]}",
             "conditions[1].a[1].b,\""},
            {"{\"version\": 1, \"conditions\": [{\"name\": \"a\\\\\", \"name\": \"b\"}]}",
             "conditions[0].name"},
        };
        for (const auto &one : cases) {
            DocumentProblem problem;
            QList<AttrCondition> kept{AttrCondition()};
            QVERIFY(!conditionsFromJson(one.first, &kept, &problem) && !conditionsFromJson(one.first, &kept));
            QCOMPARE(problem.place, one.second);
            QVERIFY(!problem.reason.isEmpty());
            QCOMPARE(int(kept.size()), 1);
        }
    }

private:
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
};

QTEST_MAIN(ConditionFilesTest)
#include "tst_condition_files.moc"
