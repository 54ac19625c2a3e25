#ifndef TVX_DEFERRED_SELECTION_H
#define TVX_DEFERRED_SELECTION_H

#include <QItemSelection>
#include <QPersistentModelIndex>

class QItemSelectionModel;

namespace Zudunmaf
{
namespace tvx
{

/// Emits the signals of a selection model for changes that were made while its signals were blocked. Owned by the table
/// that blocks them.
class DeferredSelection
{
public:
    explicit DeferredSelection(QItemSelectionModel *model);

    /// Takes the present current index and selection as those for which signals have been emitted.
    void remember();
    /// Emits the signals for the changes since remember(), at most once each.
    void emitChanges();

private:
    QItemSelectionModel *m_model;
    QPersistentModelIndex m_current;
    QItemSelection m_selection;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
