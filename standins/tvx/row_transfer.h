#ifndef TVX_ROW_TRANSFER_H
#define TVX_ROW_TRANSFER_H

#include "tvx/chosen_table.h"

#include <vector>

class TvxAttributesSelectionDialog;

namespace Zudunmaf
{
namespace tvx
{

class TopTable;

/// Moves attributes between the two tables, calls the dialog's hooks, and keeps what was taken away until it
/// is brought back or the dialog ends. Each command ends an open edit first. Hidden rows are never moved.
class RowTransfer : public QObject
{
    Q_OBJECT

public:
    RowTransfer(TvxAttributesSelectionDialog *dialog, TopTable *top, ChosenTable *chosen, QObject *parent);
    ~RowTransfer() override;

    void addSelected();
    void removeSelected();
    void removeAll();
    bool canUndoRemoval() const { return !m_removals.empty(); }
    /// Brings the rows removed last back to their places, with what was entered. An attribute that has been
    /// chosen again meanwhile stays as it is, where the dialog takes chosen attributes off the offer.
    void undoRemoval();

    /// Puts a copy of the item behind the chosen rows, as addSelected() would; no editing, no selection.
    /// False where the item has no attribute, or has one that is chosen already and is therefore off the
    /// offer.
    bool addCopyOf(const QTableWidgetItem &item);

Q_SIGNALS:
    /// Rows have come to or gone from the chosen ones.
    void transferred();

private:
    struct Removal {
        QVector<int> rows;
        QVector<ChosenTable::RowItems> items;
    };

    void remove(const QVector<int> &rows);
    Removal takeLastRemoval();
    void dropChosenAgain(Removal *removal) const;
    void insert(const Removal &removal);
    void announceAdded(QTableWidgetItem *offered);
    void announceAdded(const QVector<QTableWidgetItem *> &values);
    bool isChosen(const QString &name) const;

    TvxAttributesSelectionDialog *m_dialog;
    TopTable *m_top;
    ChosenTable *m_chosen;
    std::vector<Removal> m_removals;
    /// A hook has hidden the row of an attribute: each attribute can be chosen once.
    bool m_addedRowsLeave = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
