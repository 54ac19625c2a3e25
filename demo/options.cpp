#include "options.h"

#include <QCommandLineParser>

namespace Zudunmaf::demo
{

namespace
{

struct TextOption {
    const char *name;
    const char *valueName;
    const char *description;
    QString Options::*target;
};

constexpr TextOption textOptions[] = {
    {"dictionary", "file", "Dictionary with the attributes; default: a built-in one.",
     &Options::dictionaryFile},
    {"config", "file", "INI file with the host's configuration.", &Options::configFile},
    {"units", "text", "Display units, such as mm or inch.", &Options::units},
    {"language", "code", "Language of the dialog, such as de.", &Options::language},
    {"filter", "text", "Initial filter text.", &Options::filterText},
    {"start", "file", "Attributes to restore: a file of --save, or printed lines of the filter dialog.",
     &Options::startFile},
    {"save", "file", "File to save the result in after OK, as JSON.", &Options::saveFile},
};

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

void addOptions(QCommandLineParser &parser)
{
    parser.addPositionalArgument(latin("dialog"), latin("filter or assign."), latin("filter|assign"));
    for (const TextOption &option : textOptions)
        parser.addOption({latin(option.name), latin(option.description), latin(option.valueName)});
    parser.addOption({latin("dark"), latin("Show the dialog in dark colours.")});
    parser.addOption({{latin("h"), latin("help")}, latin("Show this help.")});
    parser.addVersionOption();
}

bool readDialog(const QStringList &names, Options::Dialog *dialog)
{
    if (names == QStringList(latin("filter")))
        *dialog = Options::Dialog::Filter;
    else if (names == QStringList(latin("assign")))
        *dialog = Options::Dialog::Assign;
    else
        return false;
    return true;
}

} // namespace

bool readOptions(QCommandLineParser &parser, const QStringList &arguments, Options *options, QString *error)
{
    addOptions(parser);
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return false;
    }
    if (parser.isSet(latin("help")))
        parser.showHelp();
    if (parser.isSet(latin("version")))
        parser.showVersion();

    if (!readDialog(parser.positionalArguments(), &options->dialog)) {
        *error = latin("which dialog? Give filter or assign");
        return false;
    }
    for (const TextOption &option : textOptions) {
        options->*option.target = parser.value(latin(option.name));
        if (parser.isSet(latin(option.name)) && (options->*option.target).isEmpty()) {
            *error = latin("--%1 is empty").arg(latin(option.name));
            return false;
        }
    }
    options->dark = parser.isSet(latin("dark"));
    return true;
}

} // namespace Zudunmaf::demo
