#include "tvx/editor_note.h"

#include <QAccessible>
#include <QToolTip>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

void showBeside(QWidget *widget, const QWidget &editor)
{
    const QWidget *viewport = widget->parentWidget();
    const QRect at(editor.mapTo(viewport, QPoint()), editor.size());
    const int below = viewport->height() - at.bottom() - 1;
    const bool isBelow = widget->sizeHint().height() <= below || below >= at.top();
    const QSize size = widget->sizeHint().boundedTo(QSize(viewport->width(), isBelow ? below : at.top()));
    QRect area(QPoint(at.left(), isBelow ? at.bottom() + 1 : at.top() - size.height()), size);
    if (editor.isRightToLeft())
        area.moveRight(at.right());
    area.moveLeft(std::clamp(area.left(), 0, viewport->width() - area.width()));
    widget->setGeometry(area);
    widget->raise();
    widget->show();
}

EditorNote::EditorNote(QWidget *viewport)
    : QLabel(viewport)
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

void EditorNote::setMessage(const QString &message)
{
    const bool isNew = message != text() && !message.isEmpty();
    setText(message);
    setHidden(message.isEmpty());
    if (isNew) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace tvx
} // namespace Zudunmaf
