#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/gen_services.h"

#include <QPushButton>
#include <QTest>

// The only services that the base dialog calls.
const char *gen__torvex_cur_units_str(int, int)
{
    return "";
}

int gen__torvex_get_str_units(const char *)
{
    return -1;
}

void gen__torvex_units_convert_2(float *, int, int) {}

class EmptyDialog : public TvxAttributesSelectionDialog
{
public:
    EmptyDialog()
        : TvxAttributesSelectionDialog(-1, nullptr, Qt::WindowFlags())
    {
    }

protected:
    void buildInitialLists() override {}
    void filterAttributeList() override {}
    void setupContextMenu() override {}
};

/// The texts of the base dialog in a host that has its own services, without the services' stand-in.
class BaseTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areTranslatedWithoutTheServicesStandIn()
    {
        qputenv("LANGUAGE", "de");
        EmptyDialog dialog;
        QCOMPARE(dialog.findChild<QPushButton *>("addButton")->text(), QString("&Hinzufügen"));
    }
};

QTEST_MAIN(BaseTextsTest)
#include "tst_base_texts.moc"
