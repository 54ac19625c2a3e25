#include "tvx/editor_note.h"

#include <QAccessible>
#include <QToolTip>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

void showBesideEditor(QWidget *widget, const QWidget &editor)
{
    const QWidget *window = widget->parentWidget();
    const QSize size = widget->sizeHint().boundedTo(window->size());
    const QPoint below = editor.mapTo(window, QPoint(0, editor.height()));
    const QPoint above = editor.mapTo(window, QPoint(0, -size.height()));
    QRect area(below.y() + size.height() <= window->height() ? below : above, size);
    if (editor.isRightToLeft())
        area.moveRight(editor.mapTo(window, QPoint(editor.width() - 1, 0)).x());
    area.moveLeft(std::clamp(area.left(), 0, window->width() - area.width()));
    widget->setGeometry(area);
    widget->raise();
    widget->show();
}

EditorNote::EditorNote(QWidget *window)
    : QLabel(window)
{
    hide();
    setObjectName(QLatin1String("editorNote"));
    setTextFormat(Qt::PlainText);
    setFrameShape(QFrame::Box);
    setMargin(fontMetrics().height() / 4);
    setAutoFillBackground(true);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void EditorNote::showMessage(const QString &message, const QWidget &editor)
{
    const bool isNew = message != text();
    setText(message);
    setHidden(message.isEmpty());
    if (message.isEmpty())
        return;
    showBesideEditor(this, editor);
    if (isNew) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace tvx
} // namespace Zudunmaf
