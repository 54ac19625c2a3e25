#ifndef DEMO_TASK_H
#define DEMO_TASK_H

#include "options.h"

#include <QByteArray>
#include <QStringList>

#include <memory>

class TvxAttributesSelectionDialog;

namespace Zudunmaf::demo
{

class StartFile;
class Walk;

/// One of the two dialogs with everything in which a host treats them differently.
class Task
{
public:
    virtual ~Task();

    /// `did` is the dictionary to walk.
    static std::unique_ptr<Task> create(Options::Dialog dialog, int did);

    virtual TvxAttributesSelectionDialog &dialog() = 0;
    /// What the dialog has been left with, to be printed.
    virtual QStringList resultLines() const = 0;
    /// The same as a JSON document, exact to the last bit.
    virtual QByteArray resultDocument() const = 0;
    /// Restores what the file holds; nothing is restored if any part of it cannot be read. Returns a null string, or
    /// what is wrong.
    virtual QString start(const StartFile &file) = 0;
    /// The walk that saves its pictures in the directory. Not to outlive the task.
    virtual std::unique_ptr<Walk> newWalk(const QString &pictureDirectory) = 0;
};

} // namespace Zudunmaf::demo

#endif
