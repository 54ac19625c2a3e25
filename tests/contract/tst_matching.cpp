#include "contract_test.h"
#include "generated.h"

#include <cmath>

using namespace Zudunmaf;

/// Which values satisfy a condition.
class MatchingTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Random conditions and values, compared with a second interpretation of the line.
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
        QVERIFY(satisfied > 5000);
        QVERIFY(satisfied < 15000);
        QVERIFY(matches(AttrCondition(), QString())); // an attribute without a text still has a value
    }

    void boundsAreIncluded()
    {
        verify(range(DmlAttrInteger, 5, 9), {5, 9, 9.0f, 9u}, {4, 10, 9.001});
        verify(range(DmlAttrFloat, 0.5, 1e300), {0.5, 1e300},
               {std::nextafter(0.5, 0), std::nextafter(1e300, INFINITY), std::nan(""), "0.6", QVariant()});
        verify(range(DmlAttrFloat, std::nan(""), 1), {}, {0.5});
        // The editor stores 32-bit floats: 0.1f is a little more than 0.1.
        verify(range(DmlAttrFloat, double(0.1f), double(0.3f)), {0.1, 0.1f, 0.3, 0.3f}, {0.0999999999, 0.31});
        verify(range(DmlAttrFloat, 0.7, 0.8), {0.7, 0.7f, 0.8f}, {0.81f});
    }

    void integersOfEachType()
    {
        verify(range(DmlAttrInteger, 6, 6),
               {QVariant::fromValue(6L), QVariant::fromValue(6UL), QVariant::fromValue(short(6)),
                QVariant::fromValue(ushort(6)), QVariant::fromValue(char(6)),
                QVariant::fromValue(static_cast<signed char>(6)), QVariant::fromValue(uchar(6))},
               {QVariant::fromValue(5L), QVariant::fromValue(uchar(7))});
    }

    void unitsAreConverted()
    {
        const AttrCondition depth = range(DmlAttrFloat, 0.1, 0.7);
        verify(depth, {0.1}, {0.71}, Inch);
        verify(depth, {2.54, 17.78}, {2.539, 17.79}, Mm);
        verify(depth, {700}, {701}, Mil);
        // Near the freezing point, a float in degF is coarse in degC.
        const AttrCondition cool = range(DmlAttrFloat, double(31.9f), double(31.9f), DegF, "degF");
        verify(cool, {(31.9 - 32) / 1.8}, {(31.901 - 32) / 1.8}, DegC);
        verify(range(DmlAttrFloat, 0.1, INFINITY), {1e30}, {}, Mm);
        verify(range(DmlAttrFloat, 0.1, 0.7, 99, "inch"), {2.54}, {0.5}, Mm); // the text counts, not the code
        verify(range(DmlAttrFloat, 0.1, 0.7, NoUnits, ""), {0.5}, {2.54}, Mm);
        for (const char *unknown : {"furlong", "cubit"}) // the host answers -1 and 77
            verify(range(DmlAttrFloat, 0.1, 0.7, Inch, unknown), {}, {0.5, 2.54}, Mm);
    }

    void convertedBoundIsIncluded()
    {
        for (int mil = 100; mil <= 700; ++mil)
            QVERIFY(matches(range(DmlAttrFloat, mil / 1000.0, mil / 1000.0), mil * 0.0254, Mm));
    }

    void matcherAsksForUnitsOnce()
    {
        const ConditionMatcher matcher(range(DmlAttrFloat, 0.1, 0.7), Mm);
        const auto calls = host().calls.size();
        QVERIFY(matcher.matches(2.54));
        QVERIFY(!matcher.matches(1.0));
        QCOMPARE(host().calls.size(), calls);
    }

private:
    enum { NoUnits = -1, Inch = 1, Mm, Mil, DegC, DegF };

    static void verify(const AttrCondition &condition, const QVariantList &matching,
                       const QVariantList &others, int valueUnits = NoUnits)
    {
        const QString text = QString("%1 to %2: ").arg(condition.low).arg(condition.high);
        for (const QVariant &value : matching)
            QVERIFY2(matches(condition, value, valueUnits), qPrintable(text + value.toString()));
        for (const QVariant &value : others)
            QVERIFY2(!matches(condition, value, valueUnits), qPrintable(text + value.toString()));
    }

    static AttrCondition range(int type, double low, double high, int units = Inch,
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

    /// Numbers with at most three decimals, which the line shows in full.
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
