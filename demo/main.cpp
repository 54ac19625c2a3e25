#include "command_line.h"
#include "demo_host.h"
#include "report.h"

#include <QApplication>

using namespace Zudunmaf::demo;

namespace
{

bool hasDisplay()
{
    for (const char *variable : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    return false;
}

/// The platform without a display tells what it lacks, line by line; what the program has to say is one line.
void dropRemarksOfPlatform(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtWarningMsg && type != QtDebugMsg)
        report(message);
}

} // namespace

int main(int argc, char *argv[])
{
    // Help, a wrong option and whatever needs no user work without a display too.
    const bool displayed = hasDisplay();
    if (!displayed) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(dropRemarksOfPlatform);
    }

    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zudunmaf-demo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZUDUNMAF_VERSION));

    CommandLine commandLine;
    switch (commandLine.read(QCoreApplication::arguments())) {
    case CommandLine::Outcome::Inform:
        print({commandLine.message()});
        return ExitAccepted;
    case CommandLine::Outcome::Refuse:
        return refuse(commandLine.message());
    case CommandLine::Outcome::Run:
        break;
    }
    if (!displayed && commandLine.options().needsUser())
        return refuse(QStringLiteral("there is no display; without one, use --walk or --accept"));
    return DemoHost(commandLine.options()).run();
}
