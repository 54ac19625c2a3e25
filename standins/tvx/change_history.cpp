#include "tvx/change_history.h"

#include "tvx/chosen_table.h"
#include "tvx/history_steps.h"
#include "tvx/tvx_texts.h"

#include <utility>

namespace Zudunmaf
{
namespace tvx
{

ChangeHistory::ChangeHistory(ChosenTable *table, QObject *parent)
    : QObject(parent)
    , m_table(table)
{
}

ChangeHistory::~ChangeHistory() = default;

void ChangeHistory::push(std::unique_ptr<QUndoCommand> step)
{
    endChange();
    // QUndoStack must not be changed by its own commands.
    if (!m_isStepping)
        m_stack.push(step.release());
}

void ChangeHistory::beginChange(const QList<QTableWidgetItem *> &items, const QString &text)
{
    endChange();
    if (!m_isStepping)
        m_begun = std::make_unique<ValuesStep>(m_table, items, text);
}

void ChangeHistory::endChange()
{
    auto step = std::exchange(m_begun, nullptr);
    if (step && step->dropUnchanged() > 0)
        m_stack.push(step.release());
}

void ChangeHistory::undo()
{
    step(&QUndoStack::undo);
}

void ChangeHistory::redo()
{
    step(&QUndoStack::redo);
}

void ChangeHistory::step(void (QUndoStack::*direction)())
{
    endChange();
    if (m_isStepping)
        return;
    m_isStepping = true;
    (m_stack.*direction)();
    m_isStepping = false;
}

QString ChangeHistory::description() const
{
    const QString undo =
        canUndo() ? textOf(texts::UndoStep).arg(m_stack.undoText()) : textOf(texts::UndoHint);
    if (!m_stack.canRedo())
        return undo;
    return undo + QLatin1Char('\n') + textOf(texts::RedoStep).arg(m_stack.redoText());
}

} // namespace tvx
} // namespace Zudunmaf
