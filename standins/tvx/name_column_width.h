#ifndef TVX_NAME_COLUMN_WIDTH_H
#define TVX_NAME_COLUMN_WIDTH_H

#include <QObject>

class QTableWidget;

namespace Zudunmaf
{
namespace tvx
{

/// Sets the width of the name column of one table: what the names need, until the user drags the border of the header.
/// The value column gets the rest, and keeps its own minimum while the table is wide enough. Owned by the table, which
/// calls apply() when it is resized.
class NameColumnWidth : public QObject
{
    Q_OBJECT

public:
    explicit NameColumnWidth(QTableWidget *table);

    /// Gives both columns the width to which the user drags one of them, and the room that an editor in one of them
    /// needs: the columns stay in line.
    static void link(NameColumnWidth *one, NameColumnWidth *other);

    /// Sets the width that the names need. Does nothing after the user has dragged the border.
    void fit(int width);
    /// Sets the width that the value column keeps while the table is wide enough for it.
    void setMinimumValueWidth(int width);
    /// Sets the width that an open editor needs in the value column; 0 without an editor.
    void setEditorWidth(int width);
    /// Sets the width again, within the limits that follow from the width of the table.
    void apply();

Q_SIGNALS:
    /// Emitted when the user has dragged the border.
    void dragged(int width);
    /// Emitted when setEditorWidth() has changed the width.
    void editorWidthChanged(int width);

private:
    void setUserWidth(int width);
    int bounded(int width) const;

    QTableWidget *m_table;
    int m_width = 0;
    int m_minimumValueWidth = 0;
    int m_editorWidth = 0;
    bool m_isUserWidth = false;
    bool m_isApplying = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
