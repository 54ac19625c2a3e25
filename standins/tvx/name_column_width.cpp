#include "tvx/name_column_width.h"

#include "tvx/attribute_table.h"

#include <QHeaderView>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

NameColumnWidth::NameColumnWidth(QTableWidget *table)
    : QObject(table)
    , m_table(table)
{
    connect(table->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int width) {
                if (column != AttributeTable::NameColumn || m_isApplying)
                    return;
                setUserWidth(bounded(width));
                Q_EMIT dragged(m_width);
            });
}

void NameColumnWidth::link(NameColumnWidth *one, NameColumnWidth *other)
{
    connect(one, &NameColumnWidth::dragged, other, &NameColumnWidth::setUserWidth);
    connect(other, &NameColumnWidth::dragged, one, &NameColumnWidth::setUserWidth);
    connect(one, &NameColumnWidth::editorWidthChanged, other, &NameColumnWidth::setEditorWidth);
    connect(other, &NameColumnWidth::editorWidthChanged, one, &NameColumnWidth::setEditorWidth);
}

void NameColumnWidth::setEditorWidth(int width)
{
    if (m_editorWidth == width)
        return;
    m_editorWidth = width;
    apply();
    Q_EMIT editorWidthChanged(width);
}

void NameColumnWidth::fit(int width)
{
    if (m_isUserWidth)
        return;
    m_width = width;
    apply();
}

void NameColumnWidth::setUserWidth(int width)
{
    m_isUserWidth = true;
    m_width = width;
    apply();
}

void NameColumnWidth::setMinimumValueWidth(int width)
{
    m_minimumValueWidth = width;
    apply();
}

int NameColumnWidth::bounded(int width) const
{
    // The width of the table and not of its viewport: a scroll bar in one table would misalign the columns of the two.
    const int available = m_table->width();
    const int left = available - std::max(m_minimumValueWidth, m_editorWidth);
    const int narrowest = available / 4;
    return std::clamp(width, narrowest, std::max(narrowest, std::min(available * 6 / 10, left)));
}

void NameColumnWidth::apply()
{
    m_isApplying = true;
    m_table->horizontalHeader()->resizeSection(AttributeTable::NameColumn, bounded(m_width));
    m_isApplying = false;
}

} // namespace tvx
} // namespace Zudunmaf
