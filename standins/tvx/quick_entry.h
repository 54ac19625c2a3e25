#ifndef TVX_QUICK_ENTRY_H
#define TVX_QUICK_ENTRY_H

#include <QObject>
#include <QPointer>

class QWidget;

namespace Zudunmaf
{
namespace tvx
{

class RowMover;
class SelectionWidgets;

/// Short ways to an editor and back. Ctrl+Enter in the filter text or the available table adds and edits the last added
/// row; F2 anywhere in the dialog edits the current chosen row. Enter in such an editor returns the focus to where the
/// user came from. Owned by the controller.
class QuickEntry : public QObject
{
    Q_OBJECT

public:
    /// Must be created after other filters of the widgets' keys. The arguments must outlive this object.
    QuickEntry(const SelectionWidgets &widgets, RowMover *mover, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addAndEdit();
    void editCurrentRow();
    void editRow(int row, QWidget *origin);
    void returnToOrigin();

    const SelectionWidgets &m_widgets;
    RowMover *m_mover;
    /// Where to return from the open editor; null if it was opened in another way.
    QPointer<QWidget> m_origin;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
