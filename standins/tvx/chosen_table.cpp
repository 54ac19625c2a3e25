#include "tvx/chosen_table.h"

#include "tvx/edit_session.h"
#include "tvx/name_column_width.h"
#include "tvx/row_menu.h"
#include "tvx/row_sorter.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPointer>

namespace Zudunmaf
{
namespace tvx
{

ChosenTable::ChosenTable(QWidget *parent)
    : AttributeTable(parent, CellHints::Chosen)
    , m_rows(this)
    , m_session(new EditSession(this))
    , m_menu(new RowMenu(this))
{
    setEditTriggers(DoubleClicked | EditKeyPressed);
    connect(qApp, &QApplication::focusChanged, this, &ChosenTable::followFocus);
    connect(m_session, &EditSession::entered, this, &ChosenTable::finishEntered);
    connect(m_session, &EditSession::left, this, &ChosenTable::finishEditing);
    connect(m_session, &EditSession::edited, this, &ChosenTable::editorChanged);
    connect(m_session, &EditSession::hiddenTooLong, this, &ChosenTable::dropEditing);
    // An action of the menu changes items without a signal of the model.
    connect(m_menu, &RowMenu::triggered, viewport(), QOverload<>::of(&QWidget::update));
    connect(m_menu, &RowMenu::triggered, sorter(), &RowSorter::valuesChanged);
    connect(this, &ChosenTable::valueChanged, sorter(), &RowSorter::valuesChanged);
}

ChosenTable::~ChosenTable()
{
    // QWidget deletes the viewport later, and an editor in it may have the focus.
    disconnect(qApp, nullptr, this, nullptr);
}

void ChosenTable::editRow(int row)
{
    // Not editItem(), which prints a warning if the row has no editor.
    if (row >= 0 && row < rowCount())
        edit(model()->index(row, ValueColumn), AllEditTriggers, nullptr);
}

QWidget *ChosenTable::openEditor() const
{
    return m_session->editor();
}

QTableWidgetItem *ChosenTable::editedItem() const
{
    return itemFromIndex(m_session->index());
}

bool ChosenTable::doesEnterStore() const
{
    return m_session->doesEnterStore();
}

bool ChosenTable::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (!index.isValid())
        return false;
    const QModelIndex value = index.sibling(index.row(), ValueColumn);
    if (!AttributeTable::edit(value, trigger, event))
        return false;
    QWidget *editor = indexWidget(value);
    if (editor && editor != openEditor())
        beginSession(editor, value, trigger);
    return true;
}

void ChosenTable::beginSession(QWidget *editor, const QModelIndex &index, EditTrigger trigger)
{
    // Two spin boxes with wide limits need more width than the column has.
    nameColumnWidth()->setEditorWidth(editor->minimumSizeHint().width() + width() - viewport()->width());
    updateEditorGeometries();
    const QTableWidgetItem *name = item(index.row(), NameColumn);
    m_session->begin(editor, index, *rowItem(index.row()), name ? name->text() : QString());
    // The selection is no longer muted, and the view repaints no cell for an editor that gets the focus.
    viewport()->update();
    if (trigger == DoubleClicked)
        m_session->openPopupAfterClick();
    Q_EMIT editingStarted();
}

void ChosenTable::finishEntered()
{
    m_session->confirm();
    if (tryFinishEditing())
        Q_EMIT entered();
}

void ChosenTable::finishEditing()
{
    // After QDialog::accept() the signal accepted() follows in the same call. After a plain hide() nothing follows.
    if (m_session->isTableHidden())
        dropEditing();
    else
        finishAcceptedEditing();
}

void ChosenTable::finishAcceptedEditing()
{
    const QPointer<QWidget> editor = openEditor();
    if (editor)
        commitData(editor);
    // The commit may make the host close the editor.
    if (editor && editor == openEditor())
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

bool ChosenTable::tryFinishEditing()
{
    if (isEntryRefused()) {
        m_session->showRefusal();
        return false;
    }
    finishEditing();
    return true;
}

void ChosenTable::dropEditing()
{
    if (openEditor())
        closeEditor(openEditor(), QAbstractItemDelegate::RevertModelCache);
}

bool ChosenTable::isEntryRefused() const
{
    return m_session->isRefused();
}

QString ChosenTable::lastRefusal() const
{
    return m_session->lastRefusal();
}

void ChosenTable::forgetRefusal()
{
    m_session->forgetRefusal();
}

void ChosenTable::forgetOldRefusal()
{
    m_session->forgetOldRefusal();
}

void ChosenTable::hideEvent(QHideEvent *event)
{
    AttributeTable::hideEvent(event);
    // A spontaneous event is sent when the window is minimised.
    if (!event->spontaneous())
        m_session->tableHidden();
}

void ChosenTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    forgetOldRefusal();
    AttributeTable::currentChanged(current, previous);
}

/// The view loads an open editor again if its item has changed. What the user has entered must stay.
void ChosenTable::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                              const QVector<int> &roles)
{
    const bool isEdited = topLeft.isValid() && topLeft == m_session->index();
    if (isEdited && m_session->isChanged()) {
        viewport()->update();
        return;
    }
    AttributeTable::dataChanged(topLeft, bottomRight, roles);
    if (isEdited)
        m_session->restart(*itemFromIndex(topLeft));
}

void ChosenTable::commitData(QWidget *editor)
{
    if (!editor || editor != openEditor() || !m_session->prepareCommit())
        return;
    const int row = m_session->index().row();
    if (QTableWidgetItem *value = editedItem())
        Q_EMIT valueAboutToChange(value);
    AttributeTable::commitData(editor);
    hints().updateSpokenText(row);
    Q_EMIT valueChanged();
    // The delegate's signals may have made the host close the editor or remove the row.
    const QTableWidgetItem *value = editor == openEditor() ? editedItem() : nullptr;
    if (value)
        m_session->restart(*value);
}

void ChosenTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (editor && editor == openEditor())
        endSession();
    // After Tab the view would edit the next row, and store a condition that the user did not enter.
    const bool editsNext =
        hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem;
    AttributeTable::closeEditor(editor, editsNext ? QAbstractItemDelegate::NoHint : hint);
    viewport()->update();
    Q_EMIT editingEnded();
}

void ChosenTable::endSession()
{
    // focusWidget() of the window keeps its answer while the window is hidden.
    const bool hadFocus = m_session->contains(window()->focusWidget());
    m_session->end();
    nameColumnWidth()->setEditorWidth(0);
    // Before the editor is hidden: QWidget::hide() would give the focus to the first widget of the dialog.
    if (hadFocus)
        setFocus();
}

void ChosenTable::followFocus(const QWidget *old, const QWidget *now)
{
    const bool isInWindow = now && now->window() == window();
    if (isInWindow && m_session->contains(old) && !m_session->contains(now))
        finishEditing();
}

void ChosenTable::keyPressEvent(QKeyEvent *event)
{
    // Keys that an editor ignores reach the table, and must not act on the rows.
    if (openEditor()) {
        event->ignore();
        return;
    }
    if (event->key() == Qt::Key_Delete) {
        Q_EMIT removalRequested();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // The repeated key would open and close the editor in turn.
        if (!event->isAutoRepeat())
            editRow(currentRow());
    } else if (event->key() == Qt::Key_Menu ||
               (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)) {
        m_menu->openAtCurrentRow();
    } else {
        AttributeTable::keyPressEvent(event);
    }
}

void ChosenTable::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        m_menu->openAtCurrentRow();
    else
        m_menu->openAt(event->globalPos());
}

} // namespace tvx
} // namespace Zudunmaf
