#include "tvx/empty_table_text.h"

#include "tvx/attribute_table.h"

#include <QPainter>

namespace Zudunmaf
{
namespace tvx
{

EmptyTableText::EmptyTableText(AttributeTable *table)
    : m_table(table)
{
}

void EmptyTableText::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_table->viewport()->update();
}

QString EmptyTableText::shownText() const
{
    return m_table->visibleRowCount() > 0 ? QString() : m_text;
}

void EmptyTableText::paint() const
{
    const QString text = shownText();
    if (text.isEmpty())
        return;
    QPainter painter(m_table->viewport());
    painter.setPen(m_table->palette().color(QPalette::PlaceholderText));
    const int margin = m_table->fontMetrics().height();
    painter.drawText(m_table->viewport()->rect().adjusted(margin, 0, -margin, 0),
                     Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace tvx
} // namespace Zudunmaf
