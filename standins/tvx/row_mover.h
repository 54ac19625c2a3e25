#ifndef TVX_ROW_MOVER_H
#define TVX_ROW_MOVER_H

#include "tvx/chosen_table.h"

#include <QHash>
#include <QSet>

#include <vector>

class TvxAttributesSelectionDialog;

namespace Zudunmaf
{
namespace tvx
{

class AvailableTable;

/// Moves attributes between the two tables, calls the dialog's hooks, and keeps what was taken away until it
/// is brought back or the dialog ends. Each command ends an open edit first. Hidden rows are never moved.
///
/// An attribute takes any number of conditions, which are the items with a filter text, but one value: a row
/// with a second one is not made.
class RowMover : public QObject
{
    Q_OBJECT

public:
    RowMover(TvxAttributesSelectionDialog *dialog, AvailableTable *top, ChosenTable *chosen, QObject *parent);

    /// An attribute that has a value already gets no second row: its row is selected, and the hook is not called.
    void addSelected();
    void removeSelected();
    void removeAll();
    /// While rows go, nothing is selected for a moment, which is not to be shown; rowsMoved() comes after.
    bool isRemoving() const { return m_isRemoving; }
    bool canUndoRemoval() const { return !m_removals.empty(); }
    /// Brings the rows removed last back to their places, with what was entered. A value that has been chosen
    /// again meanwhile stays as it is.
    void undoRemoval();

    /// Puts a copy of the item behind the chosen rows, as addSelected() would; no editing, no selection.
    /// False where the item has no attribute, or a second value of one.
    bool addCopyOf(const QTableWidgetItem &item);

Q_SIGNALS:
    /// Rows have come to or gone from the chosen ones.
    void rowsMoved();

private:
    struct Offered {
        QTableWidgetItem *item;
        QString name;
    };

    std::vector<Offered> selectedOffers() const;
    void reportAdded(const std::vector<Offered> &offers);
    void reportAdded(const QString &name);
    void remove(const QVector<int> &rows);
    void finishEditing();
    bool isOfDialogsKind(const QTableWidgetItem &item) const;
    QHash<QString, QTableWidgetItem *> valuesByName() const;
    void append(std::vector<ChosenTable::Row> rows);
    void rememberValues(const std::vector<ChosenTable::Row> &rows);

    TvxAttributesSelectionDialog *m_dialog;
    AvailableTable *m_top;
    ChosenTable *m_chosen;
    std::vector<std::vector<ChosenTable::Row>> m_removals;
    /// The names of the chosen values, so that adding N copies costs no N * N names.
    QSet<QString> m_valueNames;
    bool m_isRemoving = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
