#include "demo_host.h"

#include "dark_colours.h"
#include "dialog_widgets.h"
#include "dml/dml_control.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "gen/gen_control.h"
#include "report.h"
#include "start_file.h"
#include "task.h"
#include "walk.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSaveFile>

namespace Zudunmaf::demo
{

namespace
{

QString directoryOfQtTexts()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

DemoHost::DemoHost(const Options &options)
    : m_options(options)
{
}

ExitCode DemoHost::run()
{
    QString problem = setUp();
    if (!problem.isEmpty())
        return refuse(problem);

    const std::unique_ptr<Task> task = Task::create(m_options.dialog, dml::loadedIds().constFirst());
    problem = prepare(*task);
    if (!problem.isEmpty())
        return refuse(problem);

    const ExitCode code = work(*task);
    if (code != ExitAccepted)
        return code;
    print(task->resultLines());
    problem = save(*task);
    return problem.isEmpty() ? code : refuse(problem);
}

QString DemoHost::setUp()
{
    if (m_options.dark)
        useDarkColours();
    if (!m_options.language.isEmpty())
        speakLanguage();
    const QString problem = readConfiguration();
    if (!problem.isEmpty())
        return problem;
    if (!m_options.walkDirectory.isEmpty() && !QDir().mkpath(m_options.walkDirectory))
        return QStringLiteral("cannot make the directory '%1'").arg(m_options.walkDirectory);
    return loadDictionary();
}

void DemoHost::speakLanguage()
{
    gen::setLanguage(m_options.language);
    const QLocale locale(m_options.language);
    if (m_qtTexts.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), directoryOfQtTexts()))
        QCoreApplication::installTranslator(&m_qtTexts);
    QGuiApplication::setLayoutDirection(locale.textDirection());
}

QString DemoHost::readConfiguration()
{
    if (m_options.configFile.isEmpty())
        return QString();
    gen::setConfigurationFile(m_options.configFile);
    // A value that cannot be read would only show as a dialog without attributes.
    for (const char *key : {keys::DisplayByPrompt, keys::ShowObsolete}) {
        unsigned char value = 0;
        unsigned char origin = 0;
        if (gen__cfg_get(key, &value, &origin) != 0)
            return QStringLiteral(
                       "%1: no INI file that can be read, or the value of '%2' is neither true nor false")
                .arg(m_options.configFile, QString::fromLatin1(key));
    }
    return QString();
}

QString DemoHost::loadDictionary()
{
    QString problem;
    if (!m_options.dictionaryFile.isEmpty()) {
        dml::loadFile(m_options.dictionaryFile, &problem);
    } else {
        const QString name = QStringLiteral(":/demo/dictionary.json");
        QFile carried(name);
        if (!carried.open(QIODevice::ReadOnly))
            return carried.errorString();
        dml::loadJson(carried.readAll(), name, &problem);
    }
    if (problem.isEmpty() && dml::loadedIds().isEmpty())
        return QStringLiteral("%1: holds no dictionary").arg(m_options.dictionaryFile);
    return problem;
}

QString DemoHost::prepare(Task &task)
{
    TvxAttributesSelectionDialog &dialog = task.dialog();
    const DialogWidgets widgets(dialog);
    if (!widgets.missing().isEmpty())
        return QStringLiteral("the base dialog has no widget '%1'").arg(widgets.missing());

    // A change of units lists the attributes anew and must come before rows are taken from there.
    if (m_options.units != -1)
        dialog.setDisplayUnits(m_options.units);
    if (!m_options.startFile.isEmpty()) {
        StartFile file;
        QString problem = file.read(m_options.startFile);
        if (problem.isEmpty())
            problem = task.start(file);
        if (!problem.isEmpty())
            return problem;
    }
    if (!m_options.filterText.isEmpty())
        widgets.filterText->setText(m_options.filterText);
    return QString();
}

QString DemoHost::save(const Task &task) const
{
    if (m_options.saveFile.isEmpty())
        return QString();
    QSaveFile file(m_options.saveFile);
    if (file.open(QIODevice::WriteOnly) && file.write(task.resultDocument()) >= 0 && file.commit())
        return QString();
    return QStringLiteral("%1: %2").arg(m_options.saveFile, file.errorString());
}

ExitCode DemoHost::work(Task &task)
{
    if (!m_options.walkDirectory.isEmpty())
        return walk(task);

    TvxAttributesSelectionDialog &dialog = task.dialog();
    if (m_options.accept) {
        dialog.show();
        DialogWidgets(dialog).okButton->click();
    } else {
        dialog.exec();
    }
    return dialog.result() == QDialog::Accepted ? ExitAccepted : ExitCancelled;
}

ExitCode DemoHost::walk(Task &task)
{
    const QString problem = task.newWalk(m_options.walkDirectory)->play();
    if (problem.isEmpty())
        return ExitAccepted;
    report(problem);
    return ExitWalkFailed;
}

} // namespace Zudunmaf::demo
