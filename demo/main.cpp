// An example of a host. Data goes from the command line (options.h) over services and dictionary (host.h)
// into one of the two dialogs (task.h), and comes back as printed lines and a saved document.
#include "host.h"
#include "options.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

using namespace Zudunmaf::demo;

int main(int argc, char *argv[])
{
    const bool canShowDialogs = hasDisplay();
    if (!canShowDialogs)
        useOffscreenPlatform();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zudunmaf-demo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZUDUNMAF_VERSION));

    const QString acceptOption = QStringLiteral("accept");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Opens one of the attribute dialogs and prints the result.\n"
                       "Exit status: 0 after OK, 1 after Cancel, 2 for a wrong option or file."));
    parser.addOption({acceptOption, QStringLiteral("Press OK as soon as the dialog is shown; for scripts.")});

    Options options;
    QString error;
    if (!readOptions(parser, QCoreApplication::arguments(), &options, &error))
        return refuse(error);
    const bool accept = parser.isSet(acceptOption);
    if (!canShowDialogs && !accept)
        return refuse(QStringLiteral("there is no display; without one, use --accept"));

    return runTask(options, [accept](TvxAttributesSelectionDialog &dialog) {
        // By name, because clang's static analyzer reports a leak in the overload for functions.
        if (accept)
            QTimer::singleShot(0, &dialog, SLOT(accept()));
        return dialog.exec() == QDialog::Accepted ? ExitAccepted : ExitCancelled;
    });
}
