#include "tvx/type_ahead.h"

#include "tvx/attribute_table.h"

#include <QApplication>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

int TypeAhead::rowFor(const QString &letters, const AttributeTable &table)
{
    const bool continues =
        m_sinceTyped.isValid() && !m_sinceTyped.hasExpired(QApplication::keyboardInputInterval());
    m_sinceTyped.start();
    m_typed = continues ? m_typed + letters : letters;

    const bool isRepeated =
        !m_typed.isEmpty() && m_typed.count(m_typed.at(0), Qt::CaseInsensitive) == m_typed.size();
    const QString text = isRepeated ? m_typed.left(1) : m_typed;
    // A longer text may still match the current row.
    const int start = std::max(table.currentRow() + (isRepeated ? 1 : 0), 0);
    const int rows = table.rowCount();
    for (int step = 0; step < rows; ++step) {
        const int row = (start + step) % rows;
        const QTableWidgetItem *name =
            table.isRowHidden(row) ? nullptr : table.item(row, AttributeTable::NameColumn);
        if (name && name->text().startsWith(text, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

} // namespace tvx
} // namespace Zudunmaf
