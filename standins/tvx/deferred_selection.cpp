#include "tvx/deferred_selection.h"

#include <QItemSelectionModel>

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
    if (current != m_current)
        Q_EMIT m_model->currentChanged(current, m_current);
    if (current.row() != m_current.row())
        Q_EMIT m_model->currentRowChanged(current, m_current);
    if (current.column() != m_current.column())
        Q_EMIT m_model->currentColumnChanged(current, m_current);
    if (selection != m_selection)
        Q_EMIT m_model->selectionChanged(selection, m_selection);
}

} // namespace tvx
} // namespace Zudunmaf
