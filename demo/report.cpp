#include "report.h"

#include <cstdio>

namespace Zudunmaf::demo
{

void print(const QStringList &lines)
{
    for (const QString &line : lines)
        std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

void report(const QString &problem)
{
    std::fprintf(stderr, "zudunmaf-demo: %s\n", problem.simplified().toUtf8().constData());
}

ExitCode refuse(const QString &problem)
{
    report(problem);
    return ExitRefused;
}

} // namespace Zudunmaf::demo
