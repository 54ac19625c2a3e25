#include "base/base_checks.h"

#include "gdm/gdm_qt.h"

#include <QApplication>

namespace Zudunmaf::hostcheck
{

static std::vector<Check> allChecks()
{
    static const std::string missing =
        missingHostFunctions().filter(QStringLiteral("Tvx")).join(QLatin1String(", ")).toStdString();
    std::vector<Check> all{{"The base dialog defines all functions", Verdict::Broken, [](const Settings &) {
                                expect(missing.empty(), "a definition of each", "none of " + missing);
                            }}};
    if (!missing.empty()) {
        all.push_back({"All other promises of the base dialog", Verdict::NotCheckable,
                       [](const Settings &) { notCheckable("the base dialog lacks functions"); }});
        return all;
    }
    for (const std::vector<Check> &more : {baseClassChecks(), dialogChecks()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace Zudunmaf::hostcheck

/// The module's one entry. Makes the application, which lives until the process ends.
extern "C" GDM_EXPORT const std::vector<Zudunmaf::hostcheck::Check> *zudunmafBaseChecks()
{
    static int count = 1;
    static char name[] = "zudunmaf-host-check", *arguments[] = {name, nullptr};
    // The host may have made one. Never deleted: the process ends without destructors.
    if (!QApplication::instance())
        new QApplication(count, arguments);
    static const std::vector<Zudunmaf::hostcheck::Check> checks = Zudunmaf::hostcheck::allChecks();
    return &checks;
}
