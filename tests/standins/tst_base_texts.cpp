#include "gdm/gdm_qt.h"

#include <QPushButton>
#include <QTest>

using namespace Zudunmaf;

/// The texts of the base dialog over the services of the example, without the services' stand-in.
class BaseTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areTranslatedWithoutTheServicesStandIn()
    {
        qputenv("LANGUAGE", "de");
        const AttributesFilterDialog dialog(0);
        QCOMPARE(dialog.findChild<QPushButton *>("addButton")->text(), QString("&Hinzufügen"));
    }
};

QTEST_MAIN(BaseTextsTest)
#include "tst_base_texts.moc"
