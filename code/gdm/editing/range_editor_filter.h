#ifndef GDM_EDITING_RANGE_EDITOR_FILTER_H
#define GDM_EDITING_RANGE_EDITOR_FILTER_H

#include <QObject>

class QAbstractSpinBox;
class QWidget;

namespace Zudunmaf
{

/// Makes a range editor behave like an editor of one box in any view: typing goes to its first box, Tab moves between
/// the boxes, and the edit ends when the focus leaves both. Owned by the editor. Internal: not exported.
///
/// A delegate filters the events of the editor itself, and these go to the boxes. Without this class a digit after F2
/// is lost, Tab never reaches the second box, and a click on OK closes the dialog without the range.
///
/// The focus proxy of the editor is its first box, then the box that has the focus. A view that closes an editor takes
/// the focus back from its focus proxy only. From another box, hiding the editor moves the focus as Tab does, and the
/// view goes one cell further. Deleting the editor would take the focus from a box after the other box is deleted.
class RangeEditorFilter : public QObject
{
public:
    /// Attaches a filter to the editor with these two boxes. Does nothing if the editor has a focus proxy, as after the
    /// first call.
    static void install(QWidget *editor, QAbstractSpinBox *from, QAbstractSpinBox *to);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    RangeEditorFilter(QWidget *editor, QAbstractSpinBox *from, QAbstractSpinBox *to);
    bool filterKey(const QObject *box, QEvent *event, int key);
    bool moveFocus(const QObject *box, QWidget *target, Qt::FocusReason reason, QEvent *event);
    bool isFocusInside() const;
    void passToDelegate(QEvent *event);

    QWidget *m_editor;
    QAbstractSpinBox *m_from;
    QAbstractSpinBox *m_to;
};

} // namespace Zudunmaf

#endif
