#ifndef DEMO_DEMO_HOST_H
#define DEMO_DEMO_HOST_H

#include "exit_code.h"
#include "options.h"

#include <QTranslator>

namespace Zudunmaf::demo
{

class Task;

/// The host: sets up services and dictionary, has one dialog worked by a user, a walk or nobody, and prints
/// what it was left with. One line on standard error tells why it did not come to that.
class DemoHost
{
public:
    explicit DemoHost(const Options &options);

    ExitCode run();

private:
    // Each of these answers null, or one line that tells what is wrong.
    QString setUp();
    QString loadDictionary();
    QString readConfiguration();
    QString prepare(Task &task);
    QString save(const Task &task) const;

    void speakLanguage();
    ExitCode work(Task &task);
    ExitCode walk(Task &task);

    Options m_options;
    QTranslator m_qtTexts;
};

} // namespace Zudunmaf::demo

#endif
