#ifndef TVX_HISTORY_STEPS_H
#define TVX_HISTORY_STEPS_H

#include "tvx/chosen_rows.h"

#include <QList>
#include <QString>
#include <QUndoCommand>

#include <memory>
#include <vector>

namespace Zudunmaf
{
namespace tvx
{

class ChosenTable;
class RowMover;

/// A step of the history that has been made before it is pushed. A step knows a row by its name item, which stays the
/// same while value items are replaced, and skips rows that are no longer in the table.
class HistoryStep : public QUndoCommand
{
public:
    explicit HistoryStep(const QString &text);

    /// Does nothing when the step is pushed.
    void redo() final;
    void undo() final;

protected:
    /// Makes the step, or takes it back if it is made.
    virtual void toggle() = 0;

private:
    bool m_isPushed = false;
};

/// Rows that were added or removed. Keeps their items while they are not in the table.
class RowsStep : public HistoryStep
{
public:
    /// Rows that were added.
    RowsStep(RowMover *mover, std::vector<const QTableWidgetItem *> names, const QString &text);
    /// Rows that were removed.
    RowsStep(RowMover *mover, std::vector<ChosenRow> removed, const QString &text);

protected:
    void toggle() override;

private:
    RowMover *m_mover;
    std::vector<const QTableWidgetItem *> m_names;
    std::vector<ChosenRow> m_removed;
    bool m_areRemoved;
};

/// Values that were changed by an edit or by an action of the context menu. Keeps a clone of each value item as it was,
/// and exchanges it with the item in the table: the base dialog cannot write the record of an item.
class ValuesStep : public HistoryStep
{
public:
    /// Clones these value items of the table, before they are changed.
    ValuesStep(ChosenTable *table, const QList<QTableWidgetItem *> &items, const QString &text);
    ~ValuesStep() override;

    /// Drops rows that have gone, or whose value is as it was. Returns how many remain.
    int dropUnchanged();

protected:
    void toggle() override;

private:
    struct Value {
        const QTableWidgetItem *name;
        std::unique_ptr<QTableWidgetItem> other;
    };

    ChosenTable *m_table;
    std::vector<Value> m_values;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
