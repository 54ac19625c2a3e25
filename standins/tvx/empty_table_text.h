#ifndef TVX_EMPTY_TABLE_TEXT_H
#define TVX_EMPTY_TABLE_TEXT_H

#include <QRect>
#include <QString>

class QWidget;

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
    /// Puts a button below the text. Whoever shows it calls place() by setText().
    void setButton(QWidget *button);
    /// Moves the button to its position. Must be called when the size of the table has changed.
    void place() const;
    /// Returns the text if the table shows it, else an empty one.
    QString shownText() const;
    void paint() const;

private:
    QRect textArea() const;

    AttributeTable *m_table;
    QWidget *m_button = nullptr;
    QString m_text;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
