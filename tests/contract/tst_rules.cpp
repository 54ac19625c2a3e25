#include "contract_test.h"
#include "json_table.h"

#include "gdm/dialogs/fill_rule.h"
#include "gdm/dialogs/group_names.h"
#include "gdm/dialogs/visibility_rule.h"

using namespace Zudunmaf;

/// Which attributes a fill lists, which rows are visible, and which groups are listed.
class RulesTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    /// "filled" are the attributes that get a row, "visible" those whose row is shown. A fill ignores the group's case,
    /// leaves out obsolete attributes, and the host matches the text: here the whole text, case-sensitively.
    void fillAndVisibility_data()
    {
        QTest::addColumn<QJsonObject>("criteria");
        const QJsonArray rows = jsonTable("rules.json")["criteria"].toArray();
        for (const QJsonValue row : rows)
            QTest::newRow(qPrintable(row["case"].toString())) << row.toObject();
    }
    void fillAndVisibility()
    {
        QFETCH(QJsonObject, criteria);
        const int entities = criteria["entities"].toInt(-1);
        const QString group = criteria["group"].toString("All");
        const QString text = criteria["text"].toString();
        const bool byPrompt = criteria["byPrompt"].toBool();
        const bool showObsolete = criteria["showObsolete"].toBool();
        const FillRule fill(entities, group, group == "All", text, byPrompt, showObsolete);
        const VisibilityRule visibility(entities, group, "All", text, byPrompt);
        QStringList filled, visible;
        const QJsonArray attributes = jsonTable("rules.json")["attributes"].toArray();
        for (const QJsonValue row : attributes) {
            const DmlAttrDef &attribute =
                definition(9, row["name"].toString().toUtf8(), row["prompt"].toString().toUtf8(),
                           row["group"].toString().toUtf8(), unsigned(row["entities"].toInt()));
            if (fill.accepts(attribute))
                filled << attribute.name;
            if (visibility.shows(attribute))
                visible << attribute.name;
        }
        QCOMPARE(filled.join(' '), criteria["filled"].toString());
        QCOMPARE(visible.join(' '), criteria["visible"].toString());
    }

    void fillPassesSixtyFourBytesOfTheText()
    {
        const FillRule fill(-1, "All", true, QString("ü").repeated(50), false, false);
        QVERIFY(!fill.accepts(definition(9, "width")));
        QCOMPARE(host().called("match"), QStringList("match width " + QString("ü").repeated(32)));
    }

    void groupNames()
    {
        GroupNames names("all");
        // The last two are invalid UTF-8 and decode to the same text.
        for (const char *group : {"Board", "board", "", "Board", "all", "\xff", "\xfe"})
            names.add(definition(9, "a", "A", group));
        QCOMPARE(names.list(), QStringList({"all", "Board", "board", "", QString(QChar(0xFFFD))}));
    }
};

QTEST_MAIN(RulesTest)
#include "tst_rules.moc"
