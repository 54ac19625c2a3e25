#include "gdm/gdm_qt.h"
#include "gdm/host/gen_services.h"
#include "gen/gen_control.h"

#include <QtTest>

#include <cmath>

using namespace Zudunmaf;

/// A value's text against the units of the stand-in: what is written is read back.
class ValueTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writtenValueIsReadBack_data()
    {
        QTest::addColumn<int>("own");
        QTest::newRow("no units") << -1;
        for (const gen::UnitInfo &unit : gen::units())
            QTest::newRow(qPrintable(unit.text)) << unit.code;
    }

    void writtenValueIsReadBack()
    {
        QFETCH(int, own);
        DmlAttrDef definition = {};
        definition.type = DmlAttrFloat;
        definition.unitsClass = own;
        definition.floatMin = -5000;
        definition.floatMax = 5000;
        FeatureAttrLWI item;
        item.setDmlAttribute(QVariant::fromValue<void *>(&definition));

        QVector<int> displays{-1};
        for (const gen::UnitInfo &unit : gen::units())
            displays << unit.code;
        for (const int display : displays) {
            item.setDisplayUnits(display);
            for (const double value : {definition.floatMin, -1.25, 0.0, 0.001, 25.4, definition.floatMax}) {
                item.setAttrValue(value);
                const QString text = item.valueAsString();
                item.setValueFromString(text);
                float before = float(value);
                float after = item.attrValue().toFloat();
                gen__torvex_units_convert_2(&before, own, display);
                gen__torvex_units_convert_2(&after, own, display);
                const float allowed = 0.001f + 1e-6f * std::fabs(before);
                QVERIFY2(std::fabs(before - after) <= allowed, qPrintable(text));
            }
        }
    }
};

QTEST_GUILESS_MAIN(ValueTextTest)
#include "tst_value_text.moc"
