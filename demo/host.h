#ifndef DEMO_HOST_H
#define DEMO_HOST_H

#include <QString>

#include <functional>

class TvxAttributesSelectionDialog;

namespace Zudunmaf::demo
{

struct Options;

enum ExitCode {
    ExitAccepted = 0,  ///< OK; the result is on standard output. Also help and version.
    ExitCancelled = 1, ///< Cancel; nothing is on standard output.
    ExitRefused = 2    ///< Wrong option or file; one line on standard error names it.
};

/// Returns true if the environment names a display or a platform of Qt.
bool hasDisplay();
/// Lets the program run without a display. Call it before the application object is created.
void useOffscreenPlatform();

/// Writes the error to standard error, as one line.
void reportError(const QString &error);
/// Reports the error and returns ExitRefused.
int refuse(const QString &error);

/// Shows the dialog, closes it, and returns an exit code.
using UseDialog = std::function<int(TvxAttributesSelectionDialog &dialog)>;

/// Sets up the services and the dictionary, creates the dialog and restores its chosen attributes. Then calls
/// `useDialog`, and prints and saves the result if that returns ExitAccepted. Returns the exit code.
int runTask(const Options &options, const UseDialog &useDialog);

} // namespace Zudunmaf::demo

#endif
