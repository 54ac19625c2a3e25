#include "assign_walk.h"
#include "filter_walk.h"

#include "demo/host.h"
#include "demo/options.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <memory>

using namespace Zudunmaf;

namespace
{

/// Follows the exit codes of the demo.
constexpr int ExitWalkFailed = 3;

std::unique_ptr<walk::Walk> createWalk(demo::Options::Dialog kind, TvxAttributesSelectionDialog &dialog,
                                       const QString &pictureDirectory)
{
    if (kind == demo::Options::Dialog::Filter)
        return std::make_unique<walk::FilterWalk>(dialog, pictureDirectory);
    return std::make_unique<walk::AssignWalk>(dialog, pictureDirectory);
}

} // namespace

int main(int argc, char *argv[])
{
    if (!demo::hasDisplay())
        demo::useOffscreenPlatform();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zudunmaf-walk"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZUDUNMAF_VERSION));

    const QString picturesOption = QStringLiteral("pictures");
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Works one of the demo's dialogs by key and mouse, saves a picture of each step, and prints the "
        "result.\n"
        "Exit status: 0 after OK, 2 for a wrong option or file, 3 for a failed step."));
    parser.addOption(
        {picturesOption, QStringLiteral("Directory for the pictures; required."), QStringLiteral("dir")});

    demo::Options options;
    QString error;
    if (!demo::readOptions(parser, QCoreApplication::arguments(), &options, &error))
        return demo::refuse(error);
    const QString directory = parser.value(picturesOption);
    if (directory.isEmpty())
        return demo::refuse(QStringLiteral("--pictures is missing"));
    if (!QDir().mkpath(directory))
        return demo::refuse(QStringLiteral("cannot create the directory '%1'").arg(directory));

    return demo::runTask(options, [&](TvxAttributesSelectionDialog &dialog) {
        const QString failure = createWalk(options.dialog, dialog, directory)->play();
        if (failure.isEmpty())
            return int(demo::ExitAccepted);
        demo::reportError(failure);
        return ExitWalkFailed;
    });
}
