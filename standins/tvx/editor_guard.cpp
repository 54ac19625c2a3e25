#include "tvx/editor_guard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <utility>

namespace Zudunmaf
{
namespace tvx
{

EditorGuard::EditorGuard(QWidget *editor, const QString &name)
    : QObject(editor)
{
    // An editor that takes the keyboard itself does so for all its parts.
    auto candidates = editor->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    if (editor->focusPolicy() & Qt::TabFocus)
        candidates = {editor};
    for (QWidget *widget : std::as_const(candidates)) {
        if (widget->focusPolicy() & Qt::TabFocus)
            m_widgets.append(widget);
    }
    for (QWidget *widget : std::as_const(m_widgets))
        widget->installEventFilter(this);
    nameWidgets(editor, name);
}

/// A label in front of a widget tells it from its neighbours.
void EditorGuard::nameWidgets(QWidget *editor, const QString &name)
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

void EditorGuard::focusFirst()
{
    if (m_widgets.isEmpty() || m_widgets.constFirst() == parent())
        return;
    m_widgets.constFirst()->setFocus(Qt::TabFocusReason);
    if (auto *box = qobject_cast<QAbstractSpinBox *>(m_widgets.constFirst()))
        box->selectAll();
}

bool EditorGuard::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::Wheel) {
        // Ignored and held back, it goes on to the table, which scrolls.
        event->ignore();
        return true;
    }
    if (widget && event->type() == QEvent::KeyPress)
        return filterKey(widget, static_cast<QKeyEvent *>(event));
    return QObject::eventFilter(watched, event);
}

bool EditorGuard::filterKey(QWidget *widget, QKeyEvent *event)
{
    const bool leaves = (event->key() == Qt::Key_Tab && widget == m_widgets.constLast()) ||
                        (event->key() == Qt::Key_Backtab && widget == m_widgets.constFirst());
    if (leaves) {
        Q_EMIT left();
        return true;
    }
    auto *box = qobject_cast<QDoubleSpinBox *>(widget);
    return box && filterNumberKey(box, event);
}

/// Turns the other decimal sign into the one that the box reads. Left alone, 12,5 would be taken for 125.
bool EditorGuard::filterNumberKey(QAbstractSpinBox *box, QKeyEvent *event)
{
    const QString point = QString(box->locale().decimalPoint());
    const QString typed = event->text();
    if ((typed == QLatin1String(",") || typed == QLatin1String(".")) && typed != point) {
        QKeyEvent key(event->type(), Qt::Key_Period, event->modifiers(), point);
        QApplication::sendEvent(box, &key);
        return true;
    }
    auto *line = box->findChild<QLineEdit *>();
    if (line && event->matches(QKeySequence::Paste)) {
        line->insert(QApplication::clipboard()->text().trimmed().replace(QLatin1Char(','), point));
        return true;
    }
    return false;
}

} // namespace tvx
} // namespace Zudunmaf
