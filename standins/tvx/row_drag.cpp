#include "tvx/row_drag.h"

#include "tvx/attribute_table.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>

namespace Zudunmaf
{
namespace tvx
{

RowDrag::RowDrag(AttributeTable *table)
    : QObject(table)
    , m_table(table)
{
    table->viewport()->installEventFilter(this);
}

void RowDrag::start()
{
    auto *data = new QMimeData;
    // No other program knows this format. The rows themselves are the selected ones of the source.
    data->setData(QLatin1String("application/x-zudunmaf-rows"), QByteArray());
    auto *drag = new QDrag(m_table);
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction);
}

bool RowDrag::isFromOtherTable(const QDropEvent &event) const
{
    const auto *source = qobject_cast<AttributeTable *>(event.source());
    return source && source != m_table && source->window() == m_table->window();
}

bool RowDrag::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return QObject::eventFilter(watched, event);
    auto *drag = static_cast<QDropEvent *>(event);
    if (isFromOtherTable(*drag)) {
        drag->setDropAction(Qt::CopyAction);
        drag->accept();
        if (isDrop)
            Q_EMIT rowsDropped();
    } else {
        drag->ignore();
    }
    return true;
}

} // namespace tvx
} // namespace Zudunmaf
