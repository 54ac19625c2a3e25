#include "tvx/deferred_selection.h"

#include <QItemSelectionModel>
#include <QSignalBlocker>

namespace Zudunmaf
{
namespace tvx
{

DeferredSelection::DeferredSelection(QItemSelectionModel *model)
    : m_model(model)
{
}

void DeferredSelection::remember()
{
    m_current = m_model->currentIndex();
    m_selection = m_model->selection();
}

void DeferredSelection::emitChanges()
{
    const QModelIndex current = m_model->currentIndex();
    const QItemSelection selection = m_model->selection();
    if (current == m_current && selection == m_selection)
        return;
    // The model emits the difference to its own state, so that is set back first.
    {
        const QSignalBlocker blocker(m_model);
        set(m_current, m_selection);
    }
    set(current, selection);
}

void DeferredSelection::set(const QModelIndex &current, const QItemSelection &selection)
{
    m_model->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_model->select(selection, QItemSelectionModel::ClearAndSelect);
}

} // namespace tvx
} // namespace Zudunmaf
