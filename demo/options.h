#ifndef DEMO_OPTIONS_H
#define DEMO_OPTIONS_H

#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace Zudunmaf::demo
{

/// The options of the command line. A text that is not given is empty.
struct Options {
    enum class Dialog { Filter, Assign };

    Dialog dialog = Dialog::Filter;
    QString dictionaryFile; ///< Empty for the built-in dictionary.
    QString configFile;
    QString units; ///< Such as "mm"; not checked.
    QString language;
    QString filterText;
    QString startFile;
    QString saveFile;
    bool dark = false;
};

/// Reads the arguments, which begin with the name of the program. The parser may have further options.
///
/// Prints the help or the version and exits if the user asks for it. Returns false and sets `*error` if the
/// arguments are wrong. Opens no file.
bool readOptions(QCommandLineParser &parser, const QStringList &arguments, Options *options, QString *error);

} // namespace Zudunmaf::demo

#endif
