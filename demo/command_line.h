#ifndef DEMO_COMMAND_LINE_H
#define DEMO_COMMAND_LINE_H

#include "options.h"

#include <QCommandLineParser>
#include <QStringList>

namespace Zudunmaf::demo
{

/// Reads the command line into Options. Looks at no file.
class CommandLine
{
public:
    enum class Outcome {
        Run,    ///< options() hold what to do.
        Inform, ///< message() is the help or the version.
        Refuse  ///< message() is one line that tells what is wrong.
    };

    CommandLine();

    /// `arguments` begin with the program. An application object must exist.
    Outcome read(const QStringList &arguments);

    const Options &options() const { return m_options; }
    QString message() const { return m_message; }

private:
    Outcome refuse(const QString &message);
    bool takeDialog(const QStringList &names);
    bool takeUnits(const QString &text);
    void takeTexts();

    QCommandLineParser m_parser;
    Options m_options;
    QString m_message;
};

} // namespace Zudunmaf::demo

#endif
