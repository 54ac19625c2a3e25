#ifndef DEMO_REPORT_H
#define DEMO_REPORT_H

#include "exit_code.h"

#include <QStringList>

namespace Zudunmaf::demo
{

/// Writes the lines to standard output, in UTF-8 as the files that are read.
void print(const QStringList &lines);

/// Writes one line to standard error, whatever line ends the text holds.
void report(const QString &problem);

/// Reports and gives the code to exit with.
ExitCode refuse(const QString &problem);

} // namespace Zudunmaf::demo

#endif
