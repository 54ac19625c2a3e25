#include "host.h"

#include "options.h"
#include "task.h"

#include "dml/dml_control.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "gen/gen_control.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QLoggingCategory>
#include <QPalette>
#include <QSaveFile>
#include <QStyleFactory>
#include <QTranslator>

#include <cstdio>

namespace Zudunmaf::demo
{

namespace
{

void useDarkColours()
{
    // Of Qt's own styles, only Fusion takes every colour from the palette.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QColor background(45, 45, 48);
    QPalette palette(background, background);
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 41));
    palette.setColor(QPalette::Highlight, QColor(48, 110, 170));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    palette.setColor(QPalette::ToolTipBase, background);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(120, 120, 120));
    QApplication::setPalette(palette);
}

/// Sets the language of the dialogs, and of the buttons and menus that come from Qt.
void setLanguage(const QString &language)
{
    gen::setLanguage(language);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString directory = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    const QLocale locale(language);
    auto *translator = new QTranslator(qApp);
    if (translator->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), directory))
        QCoreApplication::installTranslator(translator);
    QGuiApplication::setLayoutDirection(locale.textDirection());
}

/// Reads the configuration once, because the dialogs only log a failed read and stay empty.
bool setConfiguration(const QString &fileName, QString *error)
{
    gen::setConfigurationFile(fileName);
    for (const char *key : {keys::DisplayByPrompt, keys::ShowObsolete}) {
        unsigned char value = 0;
        unsigned char origin = 0;
        if (gen__cfg_get(key, &value, &origin) != 0) {
            *error = QStringLiteral("%1: not a readable INI file, or '%2' is neither true nor false")
                         .arg(fileName, QString::fromLatin1(key));
            return false;
        }
    }
    return true;
}

bool loadDictionary(const QString &givenFile, QString *error)
{
    const QString fileName = givenFile.isEmpty() ? QStringLiteral(":/demo/dictionary.json") : givenFile;
    if (!dml::loadFile(fileName, error))
        return false;
    if (!dml::loadedIds().isEmpty())
        return true;
    *error = QStringLiteral("%1: contains no dictionary").arg(fileName);
    return false;
}

bool setDisplayUnits(TvxAttributesSelectionDialog &dialog, const QString &text, QString *error)
{
    QStringList known;
    const QVector<gen::UnitInfo> units = gen::units();
    for (const gen::UnitInfo &unit : units) {
        if (unit.text == text) {
            dialog.setDisplayUnits(unit.code);
            return true;
        }
        known.append(unit.text);
    }
    *error = QStringLiteral("unknown units '%1'; known are %2").arg(text, known.join(QLatin1String(", ")));
    return false;
}

bool restore(Task &task, const QString &fileName, QString *error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = QStringLiteral("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    QByteArray text = file.readAll();
    if (text.startsWith("\xEF\xBB\xBF")) // Byte order mark.
        text.remove(0, 3);

    DocumentProblem problem;
    const QList<RestoreResult> results = task.restore(text, &problem);
    for (int index = 0; problem.reason.isEmpty() && index < int(results.size()); ++index) {
        if (results.at(index).status != RestoreDone)
            problem = {QStringLiteral("entry %1").arg(index + 1), results.at(index).reason};
    }
    if (problem.reason.isEmpty())
        return true;
    if (!problem.place.isEmpty())
        problem.place += QLatin1String(": ");
    *error = fileName + QLatin1String(": ") + problem.place + problem.reason;
    return false;
}

bool prepareDialog(Task &task, const Options &options, QString *error)
{
    // Before restore(): a change of units refills the available table.
    if (!options.units.isEmpty() && !setDisplayUnits(task.dialog(), options.units, error))
        return false;
    if (!options.startFile.isEmpty() && !restore(task, options.startFile, error))
        return false;
    if (!options.filterText.isEmpty())
        task.dialog().findChild<QLineEdit *>(QStringLiteral("filterText"))->setText(options.filterText);
    return true;
}

void print(const QStringList &lines)
{
    for (const QString &line : lines)
        std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

bool save(const QByteArray &document, const QString &fileName, QString *error)
{
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly) && file.write(document) == document.size() && file.commit())
        return true;
    *error = QStringLiteral("%1: %2").arg(fileName, file.errorString());
    return false;
}

} // namespace

bool hasDisplay()
{
    for (const char *variable : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    return false;
}

void useOffscreenPlatform()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // This platform warns of each operation that it lacks.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
}

void reportError(const QString &error)
{
    const QString line = QCoreApplication::applicationName() + QLatin1String(": ") + error.simplified();
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}

int refuse(const QString &error)
{
    reportError(error);
    return ExitRefused;
}

int runTask(const Options &options, const UseDialog &useDialog)
{
    QString error;
    if (options.dark)
        useDarkColours();
    if (!options.language.isEmpty())
        setLanguage(options.language);
    if (!options.configFile.isEmpty() && !setConfiguration(options.configFile, &error))
        return refuse(error);
    if (!loadDictionary(options.dictionaryFile, &error))
        return refuse(error);

    const int did = dml::loadedIds().constFirst();
    const std::unique_ptr<Task> task =
        options.dialog == Options::Dialog::Filter ? createFilterTask(did) : createAssignTask(did);
    if (!prepareDialog(*task, options, &error))
        return refuse(error);

    const int exitCode = useDialog(task->dialog());
    if (exitCode != ExitAccepted)
        return exitCode;

    print(task->resultLines());
    if (!options.saveFile.isEmpty() && !save(task->resultDocument(), options.saveFile, &error))
        return refuse(error);
    return ExitAccepted;
}

} // namespace Zudunmaf::demo
