#ifndef TVX_ELIDED_CELL_TIP_H
#define TVX_ELIDED_CELL_TIP_H

#include <QObject>

class QHelpEvent;

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// Shows tool tips of cells as plain text: the whole text of an elided cell, or its hint, followed by the tool tip of
/// the item. Owned by the table.
class ElidedCellTip : public QObject
{
    Q_OBJECT

public:
    explicit ElidedCellTip(AttributeTable *table);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool showTip(const QHelpEvent &event) const;

    AttributeTable *m_table;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
