#ifndef TVX_BATCH_UPDATE_H
#define TVX_BATCH_UPDATE_H

#include "tvx/available_table.h"

namespace Zudunmaf
{
namespace tvx
{

/// Groups changes to the rows of the available table while it exists. The table is painted, and emits the signals of
/// its current row and selection, once at the end. Batch updates nest; only the end of the outermost one counts.
class BatchUpdate
{
public:
    explicit BatchUpdate(AvailableTable *table)
        : m_table(table)
    {
        m_table->beginBatchUpdate();
    }
    ~BatchUpdate() { m_table->endBatchUpdate(); }

private:
    Q_DISABLE_COPY(BatchUpdate)
    AvailableTable *m_table;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
