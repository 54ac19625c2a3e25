#include "tvx/elided_cell_tip.h"

#include "tvx/attribute_table.h"
#include "tvx/text_lines.h"

#include <QHelpEvent>
#include <QStyle>
#include <QToolTip>

namespace Zudunmaf
{
namespace tvx
{

ElidedCellTip::ElidedCellTip(AttributeTable *table)
    : QObject(table)
    , m_table(table)
{
    table->viewport()->installEventFilter(this);
}

bool ElidedCellTip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ToolTip && showTip(*static_cast<QHelpEvent *>(event)))
        return true;
    return QObject::eventFilter(watched, event);
}

bool ElidedCellTip::showTip(const QHelpEvent &event) const
{
    const QTableWidgetItem *cell = m_table->itemAt(event.pos());
    if (!cell)
        return false;
    const QString text = cell->text().isEmpty() ? m_table->hints().textOfEmptyCell(*cell) : cell->text();
    const int margin =
        2 * (m_table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_table) + 1);
    QStringList lines = {cell->toolTip()};
    if (m_table->fontMetrics().horizontalAdvance(text) + margin > m_table->visualItemRect(cell).width())
        lines.prepend(text);
    lines.removeAll(QString());
    if (lines.isEmpty())
        return false;
    // The view would show the tool tip of an item as rich text.
    QToolTip::showText(event.globalPos(), plainToolTip(lines.join(QLatin1Char('\n'))), m_table->viewport());
    return true;
}

} // namespace tvx
} // namespace Zudunmaf
