#include "command_line.h"

#include "gen/gen_control.h"

#include <QCoreApplication>

namespace Zudunmaf::demo
{

namespace
{

struct TextOption {
    const char *name;
    const char *placeholder;
    const char *description;
};

constexpr TextOption textOptions[] = {
    {"dictionary", "file", "Attributes to offer; without it, those that the program carries."},
    {"config", "file", "INI file with the host's configuration."},
    {"units", "text", "Display units, such as mm or inch."},
    {"language", "code", "Language of the dialog, such as de."},
    {"filter", "text", "Filter text to start with."},
    {"start", "file", "What to start with: a file of --save, or lines of the filter dialog as printed."},
    {"save", "file", "File to save the result in after OK, as JSON."},
    {"walk", "dir", "Work the dialog by key and mouse, and save a picture of each step in <dir>."},
};

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

CommandLine::CommandLine()
{
    m_parser.setApplicationDescription(
        latin("Opens one of the attribute dialogs and prints what it was left with.\n"
              "Exit status: 0 after OK, 1 after Cancel, 2 for a wrong option or file, 3 for a failed walk."));
    m_parser.addPositionalArgument(latin("dialog"), latin("filter or assign."), latin("filter|assign"));
    for (const TextOption &option : textOptions)
        m_parser.addOption({latin(option.name), latin(option.description), latin(option.placeholder)});
    m_parser.addOption({latin("dark"), latin("Show the dialog in dark colours.")});
    m_parser.addOption({latin("accept"), latin("Press OK as soon as the dialog is shown; for scripts.")});
    m_parser.addOption({{latin("h"), latin("help")}, latin("Show this help.")});
    m_parser.addVersionOption();
}

CommandLine::Outcome CommandLine::read(const QStringList &arguments)
{
    if (!m_parser.parse(arguments))
        return refuse(m_parser.errorText());
    if (m_parser.isSet(latin("help"))) {
        m_message = m_parser.helpText().trimmed();
        return Outcome::Inform;
    }
    if (m_parser.isSet(latin("version"))) {
        m_message =
            QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
        return Outcome::Inform;
    }
    if (!takeDialog(m_parser.positionalArguments()))
        return refuse(latin("say which dialog: filter or assign"));
    for (const TextOption &option : textOptions) {
        if (m_parser.isSet(latin(option.name)) && m_parser.value(latin(option.name)).isEmpty())
            return refuse(latin("--%1 is empty").arg(latin(option.name)));
    }
    takeTexts();
    if (m_options.accept && !m_options.walkDirectory.isEmpty())
        return refuse(latin("--accept and --walk exclude each other"));
    return takeUnits(m_parser.value(latin("units"))) ? Outcome::Run : Outcome::Refuse;
}

CommandLine::Outcome CommandLine::refuse(const QString &message)
{
    m_message = message;
    return Outcome::Refuse;
}

bool CommandLine::takeDialog(const QStringList &names)
{
    const QStringList known{latin("filter"), latin("assign")};
    if (names.size() != 1 || !known.contains(names.first()))
        return false;
    m_options.dialog = names.first() == known.first() ? Options::Dialog::Filter : Options::Dialog::Assign;
    return true;
}

void CommandLine::takeTexts()
{
    m_options.dictionaryFile = m_parser.value(latin("dictionary"));
    m_options.configFile = m_parser.value(latin("config"));
    m_options.language = m_parser.value(latin("language"));
    m_options.filterText = m_parser.value(latin("filter"));
    m_options.startFile = m_parser.value(latin("start"));
    m_options.saveFile = m_parser.value(latin("save"));
    m_options.walkDirectory = m_parser.value(latin("walk"));
    m_options.dark = m_parser.isSet(latin("dark"));
    m_options.accept = m_parser.isSet(latin("accept"));
}

bool CommandLine::takeUnits(const QString &text)
{
    if (text.isEmpty())
        return true;
    QStringList known;
    const QVector<gen::UnitInfo> units = gen::units();
    for (const gen::UnitInfo &unit : units) {
        if (unit.text == text) {
            m_options.units = unit.code;
            return true;
        }
        known.append(unit.text);
    }
    m_message = latin("there are no units '%1'; known are %2").arg(text, known.join(QLatin1String(", ")));
    return false;
}

} // namespace Zudunmaf::demo
