#ifndef TVX_ROW_DRAG_H
#define TVX_ROW_DRAG_H

#include <QObject>

class QDropEvent;

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// Dragging the selected rows of a table to the other table of the same window. Owned by the table. Moves no row
/// itself.
///
/// Handles the drag events of the viewport before the view does: the view would move the contents of cells.
class RowDrag : public QObject
{
    Q_OBJECT

public:
    explicit RowDrag(AttributeTable *table);

    /// Starts a drag of rows of the table. Returns when it is over.
    void start();

Q_SIGNALS:
    /// Emitted when rows of the other table were dropped on this one.
    void rowsDropped();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isFromOtherTable(const QDropEvent &event) const;

    AttributeTable *m_table;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
