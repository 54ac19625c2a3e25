#include "tvx/cell_editor_filter.h"

#include "tvx/number_entry.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

bool holdsRefusedText(const QWidget *widget)
{
    const auto *box = qobject_cast<const QAbstractSpinBox *>(widget);
    return box && NumberEntry(*box).state() != NumberEntry::Accepted;
}

bool isMove(Qt::FocusReason reason)
{
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

/// Sets a number beyond a limit to the limit, in place of a step: the box would step from its last value. Returns
/// false, and does nothing, if the box accepts its text.
bool stepToLimit(const QWidget *widget)
{
    if (!holdsRefusedText(widget))
        return false;
    NumberEntry(*qobject_cast<const QAbstractSpinBox *>(widget)).goToLimit();
    return true;
}

} // namespace

CellEditorFilter::CellEditorFilter(QWidget *editor, const QString &name)
    : QObject(editor)
    , m_editor(editor)
{
    // Only the editor itself, if it accepts the focus.
    auto candidates = editor->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    if (editor->focusPolicy() & Qt::TabFocus)
        candidates = {editor};
    for (QWidget *widget : std::as_const(candidates)) {
        if (widget->focusPolicy() & Qt::TabFocus)
            m_widgets.append(widget);
    }
    install();
    nameWidgets(editor, name);
}

void CellEditorFilter::install()
{
    m_editor->installEventFilter(this);
    for (QWidget *widget : std::as_const(m_widgets))
        widget->installEventFilter(this);
}

/// Sets the accessible names: the attribute, and for one of several widgets also the label before it.
void CellEditorFilter::nameWidgets(QWidget *editor, const QString &name)
{
    editor->setAccessibleName(name);
    QString label;
    for (QObject *child : editor->children()) {
        if (const auto *text = qobject_cast<QLabel *>(child)) {
            label = text->text();
        } else if (auto *widget = qobject_cast<QWidget *>(child); widget && m_widgets.contains(widget)) {
            if (label.endsWith(QLatin1Char(':')))
                label.chop(1);
            widget->setAccessibleName(label.isEmpty() ? name : name + QLatin1Char(' ') + label);
        }
    }
}

bool CellEditorFilter::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Wheel:
        // An ignored event propagates to the table, which scrolls.
        event->ignore();
        return true;
    case QEvent::FocusIn:
        if (isMove(static_cast<QFocusEvent *>(event)->reason()))
            Q_EMIT focusMoved();
        return false;
    case QEvent::FocusOut:
    case QEvent::Show:
    case QEvent::Hide:
        deliverKeepingText(widget, event);
        return true;
    case QEvent::KeyPress:
        return filterKey(widget, static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
        // These events reach a spin box at its arrows; its text is another widget. Its menu has steps too.
        return stepToLimit(widget);
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool CellEditorFilter::filterKey(QWidget *widget, const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (widget->inherits("QTextEdit") || widget->inherits("QPlainTextEdit"))
            return false;
        // The repeated key that opened the editor would store what it shows.
        if (!event->isAutoRepeat())
            Q_EMIT entered();
        return true;
    case Qt::Key_Tab:
        return leaveBy(m_widgets.value(m_widgets.size() - 1), widget);
    case Qt::Key_Backtab:
        return leaveBy(m_widgets.value(0), widget);
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return stepToLimit(widget);
    default:
        return false;
    }
}

bool CellEditorFilter::leaveBy(const QWidget *last, const QWidget *widget)
{
    if (widget != last)
        return false;
    Q_EMIT left();
    return true;
}

/// Delivers the event to the widget, and not to the delegate's filter. On these events, QAbstractSpinBox replaces a
/// text that it refuses by its last value. With such a text, FocusOut goes to its line edit only, and Show and Hide,
/// which are also sent when the window is minimised, go to no widget.
void CellEditorFilter::deliverKeepingText(QWidget *widget, QEvent *event)
{
    QObject *receiver = widget;
    if (holdsRefusedText(widget)) {
        if (event->type() != QEvent::FocusOut)
            return;
        receiver = NumberEntry::lineOf(*static_cast<QAbstractSpinBox *>(widget));
        widget->update();
    }
    receiver->event(event);
}

} // namespace tvx
} // namespace Zudunmaf
