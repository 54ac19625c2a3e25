#ifndef DEMO_TASK_H
#define DEMO_TASK_H

#include "gdm/conditions/attr_documents.h"
#include "gdm/conditions/attr_restoring.h"

#include <QByteArray>
#include <QStringList>

#include <memory>

class TvxAttributesSelectionDialog;

namespace Zudunmaf::demo
{

/// One of the two dialogs and its result. Everything in which a host treats the two differently is here.
class Task
{
public:
    virtual ~Task() = default;

    virtual TvxAttributesSelectionDialog &dialog() = 0;

    /// Adds the entries of a start file to the chosen attributes and returns one result for each entry. Sets
    /// `*problem` and adds nothing if the text cannot be read.
    virtual QList<RestoreResult> restore(const QByteArray &text, DocumentProblem *problem) = 0;

    /// Returns the result to print.
    virtual QStringList resultLines() const = 0;
    /// Returns the result as JSON, with exact numbers. restore() reads it.
    virtual QByteArray resultDocument() const = 0;
};

/// Creates the filter dialog over a dictionary. Its result is a line for each condition, such as "5 <= width <= 9".
std::unique_ptr<Task> createFilterTask(int did);
/// Creates "Assign Attributes" over a dictionary. Its result is a line "name<TAB>value" for each attribute.
std::unique_ptr<Task> createAssignTask(int did);

} // namespace Zudunmaf::demo

#endif
