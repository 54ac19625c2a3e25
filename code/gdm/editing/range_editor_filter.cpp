#include "gdm/editing/range_editor_filter.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>

namespace Zudunmaf
{

RangeEditorFilter::RangeEditorFilter(QWidget *editor, QAbstractSpinBox *from, QAbstractSpinBox *to)
    : QObject(editor)
    , m_editor(editor)
    , m_from(from)
    , m_to(to)
{
    editor->setFocusProxy(from);
    from->installEventFilter(this);
    to->installEventFilter(this);
}

void RangeEditorFilter::install(QWidget *editor, QAbstractSpinBox *from, QAbstractSpinBox *to)
{
    if (!editor->focusProxy())
        new RangeEditorFilter(editor, from, to);
}

bool RangeEditorFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        return filterKey(watched, event, static_cast<QKeyEvent *>(event)->key());
    if (event->type() == QEvent::FocusIn)
        m_editor->setFocusProxy(static_cast<QWidget *>(watched));
    else if (event->type() == QEvent::FocusOut && !isFocusInside())
        passToDelegate(event);
    return false;
}

bool RangeEditorFilter::filterKey(const QObject *box, QEvent *event, int key)
{
    if (key == Qt::Key_Tab)
        return moveFocus(box, m_to, Qt::TabFocusReason, event);
    if (key == Qt::Key_Backtab)
        return moveFocus(box, m_from, Qt::BacktabFocusReason, event);
    return false;
}

/// From the target itself, Tab ends the edit, as in an editor of one box.
bool RangeEditorFilter::moveFocus(const QObject *box, QWidget *target, Qt::FocusReason reason, QEvent *event)
{
    if (box == target)
        passToDelegate(event);
    else
        target->setFocus(reason);
    return true;
}

/// A menu of a box leaves the focus widget as it is.
bool RangeEditorFilter::isFocusInside() const
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && m_editor->isAncestorOf(focus);
}

/// The delegate filters the editor for as long as the view has it open, and ends the edit as for its own editors.
void RangeEditorFilter::passToDelegate(QEvent *event)
{
    QApplication::sendEvent(m_editor, event);
}

} // namespace Zudunmaf
