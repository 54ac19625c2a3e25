#ifndef TVX_CHANGE_HISTORY_H
#define TVX_CHANGE_HISTORY_H

#include <QList>
#include <QObject>
#include <QString>
#include <QUndoStack>

#include <memory>

class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

class ChosenTable;
class ValuesStep;

/// What the user can undo and redo: rows added and removed, edits, and actions of the context menu. Rows that the host
/// adds are no steps. Owned by the controller.
///
/// Takes steps that have been made already. Ignores changes that are made while a step is undone or redone, such as
/// those of a host's hook.
class ChangeHistory : public QObject
{
    Q_OBJECT

public:
    ChangeHistory(ChosenTable *table, QObject *parent);
    ~ChangeHistory() override;

    /// Adds a step that has been made.
    void push(std::unique_ptr<QUndoCommand> step);
    /// Must be called before something changes the values of these items, which are value items of the table. `text`
    /// names the step.
    void beginChange(const QList<QTableWidgetItem *> &items, const QString &text);
    /// Must be called afterwards. Adds a step if a value has changed.
    void endChange();

    void undo();
    void redo();
    bool canUndo() const { return m_stack.canUndo(); }
    /// Returns a text that names the steps to undo and to redo.
    QString description() const;

private:
    void step(void (QUndoStack::*direction)());

    ChosenTable *m_table;
    QUndoStack m_stack;
    std::unique_ptr<ValuesStep> m_begun;
    bool m_isStepping = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
