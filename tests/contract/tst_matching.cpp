#include "contract_test.h"
#include "generated.h"

#include <cmath>

using namespace Zudunmaf;

/// Which values satisfy a condition.
class MatchingTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Random conditions and values, against a plain reading of the condition's line.
    void asTheLineReads()
    {
        const QList<DmlAttrDef *> definitions = eachType().mid(0, 5);
        int satisfied = 0;
        for (int round = 0; round < 20000; ++round) {
            AttrFilterLWI item;
            item.setDisplayValue(true);
            item.setDmlAttribute(pointer(definitions[round % 5]));
            fill(&record(item), definitions[round % 5]->type);
            const QVariant value = randomValue();
            const bool wanted = satisfiesLine(item.toString(), value);
            QVERIFY2(matches(conditionOf(item), value) == wanted,
                     qPrintable(item.toString() + '|' + value.toString()));
            satisfied += wanted;
        }
        QVERIFY(satisfied > 5000 && satisfied < 15000);
    }

    void boundsAreIncluded()
    {
        AttrCondition width = bounds(DmlAttrInteger, 5, 9), depth = bounds(DmlAttrFloat, 0.5, 1e300);
        QVERIFY(matches(width, 5) && matches(width, 9) && matches(width, 9.0f) && matches(width, 9u));
        QVERIFY(!matches(width, 4) && !matches(width, 10) && !matches(width, 9.001));
        QVERIFY(matches(depth, 0.5) && matches(depth, 1e300) && !matches(depth, std::nextafter(0.5, 0)));
        QVERIFY(!matches(depth, std::nextafter(1e300, INFINITY)) && !matches(depth, std::nan("")));
        QVERIFY(!matches(depth, QString("0.6")) && !matches(depth, QVariant()));
        // What the editor makes of 0.1 is a little more.
        depth = bounds(DmlAttrFloat, double(0.1f), double(0.3f));
        QVERIFY(matches(depth, 0.1) && matches(depth, 0.1f) && matches(depth, 0.3) && matches(depth, 0.3f));
        QVERIFY(matches(bounds(DmlAttrFloat, 0.3, 0.7), 0.3) && matches(bounds(DmlAttrFloat, 0.3, 0.7), 0.7));
        QVERIFY(matches(bounds(DmlAttrFloat, 0.7, 0.8), 0.7f) && matches(bounds(DmlAttrFloat, 0, 0.1), 0.1f));
        for (const QVariant &six :
             {QVariant::fromValue(6L), QVariant::fromValue(6UL), QVariant::fromValue(short(6)),
              QVariant::fromValue(ushort(6)), QVariant::fromValue(char(6)),
              QVariant::fromValue(static_cast<signed char>(6)), QVariant::fromValue(uchar(6))})
            QVERIFY2(matches(width, six) && !matches(bounds(DmlAttrInteger, 7, 9), six), six.typeName());
        QVERIFY(!matches(depth, 0.0999999999) && !matches(depth, 0.31));
        QVERIFY(!matches(bounds(DmlAttrFloat, std::nan(""), 1), 0.5));
    }

    void unitsAreConverted()
    {
        // 1, 2 and 3 are inch, mm and mil.
        const AttrCondition depth = bounds(DmlAttrFloat, 0.1, 0.7, 1, "inch");
        QVERIFY(matches(depth, 2.54, 2) && matches(depth, 17.78, 2) && matches(depth, 0.1, 1));
        QVERIFY(!matches(depth, 2.539, 2) && !matches(depth, 17.79, 2) && matches(depth, 700, 3));
        for (int mil = 100; mil <= 700; ++mil)
            QVERIFY(matches(bounds(DmlAttrFloat, mil / 1000.0, mil / 1000.0, 1, "inch"), mil * 0.0254, 2));
        const double cool = double(31.9f); // near the freezing point, where a float of degF is coarse in degC
        QVERIFY(matches(bounds(DmlAttrFloat, cool, cool, 5, "degF"), (31.9 - 32) / 1.8, 4));
        QVERIFY(!matches(bounds(DmlAttrFloat, cool, cool, 5, "degF"), (31.901 - 32) / 1.8, 4));
        QVERIFY(matches(bounds(DmlAttrFloat, 0.1, 0.7, 99, "inch"), 2.54, 2)); // the text counts
        QVERIFY(matches(bounds(DmlAttrFloat, 0.1, INFINITY, 1, "inch"), 1e30, 2));
        for (const char *unknown : {"furlong", "cubit"}) // the host answers -1 and 77
            QVERIFY(!matches(bounds(DmlAttrFloat, 0.1, 0.7, 1, unknown), 0.5, 2));
        QVERIFY(matches(bounds(DmlAttrFloat, 0.1, 0.7, -1, ""), 0.5, 2));

        const ConditionMatcher matcher(depth, 2);
        const auto calls = host().calls.size();
        QVERIFY(matcher.matches(2.54) && !matcher.matches(1.0));
        QCOMPARE(host().calls.size(), calls);
    }

private:
    static AttrCondition bounds(int type, double low, double high, int units = 1,
                                const QString &text = "inch")
    {
        AttrCondition made;
        made.type = type;
        made.isSet = true;
        made.low = low;
        made.high = high;
        made.units = units;
        made.unitsText = text;
        return made;
    }

    /// Numbers of three decimals, so that the line has them all.
    void fill(DmlAttrValue *record, int type)
    {
        record->isSet = m_generated.below(4) != 0;
        if (type == DmlAttrText)
            qstrncpy(record->text, words().at(m_generated.below(4)).toUtf8(), 200);
        else if (type == DmlAttrOption)
            record->option = m_generated.below(4) - 1;
        else if (type == DmlAttrInteger)
            record->intHigh = (record->intLow = m_generated.below(20) - 10) + m_generated.below(9);
        else if (type == DmlAttrFloat) {
            record->floatLow = double((m_generated.below(20) - 10) / 8.0f);
            record->floatHigh = record->floatLow + m_generated.below(20) / 8.0;
        }
    }

    QVariant randomValue()
    {
        switch (m_generated.below(5)) {
        case 0:
            return QVariant();
        case 1:
            return m_generated.below(2) == 1;
        case 2:
            return words().at(m_generated.below(4));
        case 3:
            return m_generated.below(20) - 10;
        default:
            return (m_generated.below(40) - 20) / 8.0;
        }
    }

    static QStringList words() { return {"", "red", "deep green", "Red"}; }

    static bool satisfiesLine(const QString &line, const QVariant &value)
    {
        static const QRegularExpression range("^(\\S+) <= .* <= (\\S+)$"), equal("^\\w+ = (.*)$");
        const bool isNumber = value.userType() == QMetaType::Int || value.userType() == QMetaType::Double;
        if (range.match(line).hasMatch())
            return isNumber && value.toDouble() >= range.match(line).captured(1).toDouble() &&
                   value.toDouble() <= range.match(line).captured(2).toDouble();
        if (equal.match(line).hasMatch())
            return value.userType() == QMetaType::QString &&
                   value.toString() == equal.match(line).captured(1);
        return value.isValid();
    }

    Generated m_generated;
};

QTEST_MAIN(MatchingTest)
#include "tst_matching.moc"
