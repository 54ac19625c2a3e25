#ifndef TVX_ROW_MOVER_H
#define TVX_ROW_MOVER_H

#include "tvx/chosen_rows.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <vector>

class TvxAttributesSelectionDialog;

namespace Zudunmaf
{
namespace tvx
{

class AvailableTable;
class ChangeHistory;
class ChosenTable;

/// Adds, removes and restores rows of the chosen table and calls the hooks of the dialog; no other class calls them.
/// What the user adds and removes becomes a step of the history. Owned by the controller.
///
/// Each operation commits an open editor first and leaves hidden rows alone. An attribute can have any number of
/// conditions but one value, so a second row with a value is never made.
class RowMover : public QObject
{
    Q_OBJECT

public:
    RowMover(TvxAttributesSelectionDialog *dialog, AvailableTable *available, ChosenTable *chosen,
             ChangeHistory *history, QObject *parent);

    /// Adds a row for each selected available attribute, calls the add hook for each, and selects the rows. For an
    /// attribute that has a value already, or whose newest condition is not set, selects that row instead.
    void addSelected();
    /// Appends a row with copies of `item` and calls the add hook. Selects nothing. Returns false, and adds nothing, if
    /// the item has no attribute or is of another kind than those of the dialog, or if the attribute has a value
    /// already.
    bool addCopyOf(const QTableWidgetItem &item);

    /// Calls the remove hook for each selected chosen row and removes the rows.
    void removeSelected();
    /// Does the same with all chosen rows.
    void removeAll();
    /// Returns true during a removal. The selection is briefly empty then; skip refreshes until rowsMoved().
    bool isRemoving() const { return m_isRemoving; }

    /// Undo and redo the last step of the history.
    void undo();
    void redo();

    /// Calls the remove hook for the rows of these name items and removes the rows. Returns them in ascending
    /// order of their rows. For a step of the history, as restore() is.
    std::vector<ChosenRow> take(const std::vector<const QTableWidgetItem *> &names);
    /// Inserts rows that take() has returned at their positions, calls the add hook for each, and selects them. Returns
    /// the rows whose attribute has a value again, which are not inserted.
    std::vector<ChosenRow> restore(std::vector<ChosenRow> rows);

Q_SIGNALS:
    /// Emitted after chosen rows were added, removed or restored.
    void rowsMoved();
    /// Emitted after that if the user has added or removed rows; not for undo, redo and rows of the host.
    void userMovedRows();
    /// Emitted before addCopyOf() adds a row.
    void hostAddsRow(const QTableWidgetItem &item);

private:
    struct AvailableRow {
        QTableWidgetItem *item;
        QString name;
    };

    std::vector<AvailableRow> selectedAvailableRows() const;
    void append(std::vector<ChosenRow> rows);
    void remove(const QVector<int> &rows);
    void callRemoveHooks(const QVector<int> &rows);
    QVector<int> rowsOf(const std::vector<const QTableWidgetItem *> &names) const;
    void callAddHooks(const std::vector<AvailableRow> &rows);
    void callAddHook(const QString &name);
    void finishEditing();
    bool isOfDialogsKind(const QTableWidgetItem &item) const;
    QHash<QString, QTableWidgetItem *> reusableRows() const;
    QHash<QString, QTableWidgetItem *> chosenValues() const;
    void rememberValues(const std::vector<ChosenRow> &rows);

    TvxAttributesSelectionDialog *m_dialog;
    AvailableTable *m_available;
    ChosenTable *m_chosen;
    ChangeHistory *m_history;
    /// The names of the chosen values, so that addCopyOf() needs no pass over the chosen rows.
    QSet<QString> m_valueNames;
    bool m_isRemoving = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
