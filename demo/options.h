#ifndef DEMO_OPTIONS_H
#define DEMO_OPTIONS_H

#include <QString>

namespace Zudunmaf::demo
{

/// What the command line asks for. A text that was not given is empty.
struct Options {
    enum class Dialog { Filter, Assign };

    Dialog dialog = Dialog::Filter;
    QString dictionaryFile; ///< Empty: the dictionary that the program carries.
    QString configFile;
    QString language;
    QString filterText;
    QString startFile;
    QString saveFile;
    QString walkDirectory; ///< Not empty: the program itself works the dialog.
    int units = -1;        ///< Code of the display units, -1 for none.
    bool dark = false;     ///< Light text on a dark ground, whatever the desktop says.
    bool accept = false;   ///< OK is pressed as soon as the dialog is shown.

    /// Whether somebody has to sit before the screen.
    bool needsUser() const { return walkDirectory.isEmpty() && !accept; }
};

} // namespace Zudunmaf::demo

#endif
