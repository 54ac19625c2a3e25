#include "tvx/empty_table_text.h"

#include "tvx/attribute_table.h"
#include "tvx/muted_colour.h"

#include <QPainter>

#include <algorithm>

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
    if (text != m_text) {
        m_text = text;
        m_table->viewport()->update();
    }
    place();
}

void EmptyTableText::setButton(QWidget *button)
{
    m_button = button;
    button->setParent(m_table->viewport());
    button->hide();
}

void EmptyTableText::place() const
{
    if (!m_button || m_button->isHidden())
        return;
    const QRect viewport = m_table->viewport()->rect();
    QRect area(QPoint(), m_button->sizeHint().boundedTo(viewport.size()));
    area.moveCenter(viewport.center());
    area.moveTop(textArea().bottom() + m_table->fontMetrics().height());
    m_button->setGeometry(area);
}

/// Returns the rows of pixels of the text, as wide as it may be; the button, if it is shown, is below it.
QRect EmptyTableText::textArea() const
{
    const int side = m_table->fontMetrics().height();
    const QRect room = m_table->viewport()->rect().adjusted(side, 0, -side, 0);
    QRect area = m_table->fontMetrics().boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, m_text);
    if (m_button && !m_button->isHidden()) {
        const int height = area.height() + m_table->fontMetrics().height() + m_button->sizeHint().height();
        area.moveTop(std::max(0, room.center().y() - height / 2));
    }
    area.setLeft(room.left());
    area.setRight(room.right());
    return area;
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
    // The full stop of a sentence follows the sentence's own direction.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.setPen(mutedColour(m_table->palette(), m_table->palette().currentColorGroup(), false));
    painter.drawText(textArea(), Qt::AlignHCenter | Qt::TextWordWrap, text);
}

} // namespace tvx
} // namespace Zudunmaf
