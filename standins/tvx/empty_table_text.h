#ifndef TVX_EMPTY_TABLE_TEXT_H
#define TVX_EMPTY_TABLE_TEXT_H

#include <QString>

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// The text in the middle of a table that has no visible row. Owned by the table, which calls paint() after it has
/// painted its cells.
class EmptyTableText
{
public:
    explicit EmptyTableText(AttributeTable *table);

    void setText(const QString &text);
    /// Returns the text if the table shows it, else an empty one.
    QString shownText() const;
    void paint() const;

private:
    AttributeTable *m_table;
    QString m_text;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
