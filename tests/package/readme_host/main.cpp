#include "gdm/gdm_qt.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTimer>

#include <cstdio>

static void select(const QStringList &lines)
{
    std::printf("accepted with %d lines\n", int(lines.size()));
}

static void openDialog(int dictionary, QWidget *window, int units)
{
#include "readme_program.inc"
}

/// The files of the process that could be a base dialog library.
static QString loadedBases()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    QStringList bases;
    if (maps.open(QIODevice::ReadOnly)) {
        for (const QString &line : QString::fromLocal8Bit(maps.readAll()).split(QLatin1Char('\n'))) {
            if (line.contains(QLatin1String("libzudunmaf_tvx")))
                bases << line.mid(line.indexOf(QLatin1Char('/')));
        }
    }
    bases.removeDuplicates();
    return bases.join(QLatin1Char(' '));
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QTimer::singleShot(0, &application,
                       [] { qobject_cast<QDialog *>(QApplication::activeModalWidget())->accept(); });
    openDialog(0, nullptr, -1);
    std::printf("base dialog: %s\n", qPrintable(loadedBases()));
    return 0;
}
