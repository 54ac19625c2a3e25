#include "dml/dml_control.h"
#include "gdm/gdm_qt.h"
#include "gdm/host/gen_services.h"
#include "gdm/host/message_keys.h"
#include "gdm/zudunmaf_version.h"
#include "gen/gen_control.h"

#include <QApplication>
#include <QPushButton>

#include <cstdio>

static_assert(ZUDUNMAF_VERSION >= 10000 && ZUDUNMAF_VERSION_MAJOR == 1, "the installed version");
static_assert(ZUDUNMAF_BUILT_WITH_QT == QT_VERSION_MAJOR, "the installed library is of this Qt");

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QByteArray json = R"({"dictionaries": [{"id": 7, "title": "Boards", "attributes": [
        {"name": "width", "group": "Geometry", "type": "integer", "entities": ["layer"],
         "min": 0, "max": 100, "default": 1}]}]})";
    QString error;
    if (!Zudunmaf::dml::loadJson(json, QStringLiteral("inline"), &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 2;
    }
    Zudunmaf::AttributesFilterDialog dialog(7);
    dialog.show();
    dialog.setFirstVisibleItemAsCurrent();
    dialog.findChild<QPushButton *>(QStringLiteral("addButton"))->click();
    for (const QString &line : dialog.getFiltersAsStringList())
        std::printf("%s\n", qPrintable(line));
    Zudunmaf::gen::setLanguage(QStringLiteral("de"));
    std::printf("%s\n", gen__nls_nlst(Zudunmaf::keys::FilterHeaderCondition));
    return 0;
}
