#include "tvx/filter_line_keys.h"

#include "tvx/available_table.h"
#include "tvx/row_mover.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace Zudunmaf
{
namespace tvx
{

FilterLineKeys::FilterLineKeys(QLineEdit *line, AvailableTable *available, RowMover *mover, QObject *parent)
    : QObject(parent)
    , m_line(line)
    , m_available(available)
    , m_mover(mover)
{
    line->installEventFilter(this);
}

bool FilterLineKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        return filterKey(static_cast<QKeyEvent *>(event));
    return QObject::eventFilter(watched, event);
}

bool FilterLineKeys::filterKey(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Undo) && !m_line->isUndoAvailable()) {
        m_mover->undo();
        return true;
    }
    if (event->matches(QKeySequence::Redo) && !m_line->isRedoAvailable()) {
        m_mover->redo();
        return true;
    }
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QApplication::sendEvent(m_available, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (event->isAutoRepeat())
            return true;
        if (m_available->visibleRowCount() > 0) {
            m_mover->addSelected();
        } else {
            Q_EMIT enteredWithoutRows();
            endSearch(m_line);
        }
        return true;
    case Qt::Key_Escape:
        if (m_line->text().isEmpty())
            return false;
        m_line->clear();
        return true;
    default:
        return false;
    }
}

void endSearch(QLineEdit *filterText)
{
    filterText->setText(filterText->text());
    // The line would show the selection without the focus too.
    if (filterText->hasFocus())
        filterText->selectAll();
}

} // namespace tvx
} // namespace Zudunmaf
