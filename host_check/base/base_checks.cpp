#include "base/base_checks.h"

#include "gdm/gdm_qt.h"

#include <QApplication>

namespace Zudunmaf::hostcheck
{

static BaseChecks baseChecks()
{
    static const std::string missing =
        missingHostFunctions().filter(QStringLiteral("Tvx")).join(QLatin1String(", ")).toStdString();
    BaseChecks checks;
    checks.base = {{"The base dialog defines all functions", Verdict::Broken, [](const Settings &) {
                        expect(missing.empty(), "a definition of each", "none of " + missing);
                    }}};
    if (missing.empty()) {
        const std::vector<Check> more = baseClassChecks();
        checks.base.insert(checks.base.end(), more.begin(), more.end());
        checks.dialogs = dialogChecks();
    }
    return checks;
}

} // namespace Zudunmaf::hostcheck

/// The module's one entry. Makes the application, which lives until the process ends.
extern "C" GDM_EXPORT const Zudunmaf::hostcheck::BaseChecks *zudunmafBaseChecks()
{
    static int count = 1;
    static char name[] = "zudunmaf-host-check", *arguments[] = {name, nullptr};
    // The host may have made one. Never deleted: the process ends without destructors.
    if (!QApplication::instance())
        new QApplication(count, arguments);
    static const Zudunmaf::hostcheck::BaseChecks checks = Zudunmaf::hostcheck::baseChecks();
    return &checks;
}
