#include "tvx/chosen_table.h"

#include "tvx/cell_editor_filter.h"
#include "tvx/editor_content.h"
#include "tvx/editor_note.h"
#include "tvx/name_column_width.h"
#include "tvx/number_entry.h"
#include "tvx/row_sorter.h"
#include "tvx/text_choices.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// Inserts the items from this row on again. QTableWidgetItem caches its index, and after rows above it have come or
/// gone, each call of column() would search the table for the item.
void refreshItemPositions(QTableWidget *table, int firstRow)
{
    const QSignalBlocker blocker(table->model());
    for (int row = firstRow; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            table->setItem(row, column, table->takeItem(row, column));
    }
}

} // namespace

ChosenTable::ChosenTable(QWidget *parent)
    : AttributeTable(parent)
{
    setEditTriggers(DoubleClicked | EditKeyPressed);
    connect(qApp, &QApplication::focusChanged, this, &ChosenTable::followFocus);
    m_afterEvent.setSingleShot(true);
    connect(&m_afterEvent, &QTimer::timeout, this, &ChosenTable::endEvent);
}

ChosenTable::~ChosenTable()
{
    // The viewport goes later, and its editor may have the focus.
    disconnect(qApp, nullptr, this, nullptr);
}

void ChosenTable::appendRows(std::vector<Row> rows)
{
    putBehind(std::move(rows));
    sorter()->sortIfByColumn();
}

void ChosenTable::restoreRows(std::vector<Row> rows)
{
    QVector<int> places;
    places.reserve(static_cast<int>(rows.size()));
    for (const Row &row : rows)
        places.append(row.place);
    putBehind(std::move(rows));
    sorter()->order().rowsReturned(rowCount(), places);
    sorter()->sort();
}

void ChosenTable::putBehind(std::vector<Row> rows)
{
    const int first = rowCount();
    model()->insertRows(first, static_cast<int>(rows.size()));
    {
        const QSignalBlocker blocker(model());
        int place = first;
        for (Row &row : rows) {
            setItem(place, NameColumn, row.name.release());
            setItem(place++, ValueColumn, row.value.release());
        }
    }
    viewport()->update();
    if (first == 0)
        updateRowHeight();
}

std::vector<ChosenTable::Row> ChosenTable::takeRows(const QVector<int> &rows)
{
    const QVector<int> places = sorter()->order().placesOf(rows);
    std::vector<Row> taken(rows.size());
    {
        const QSignalBlocker blocker(model());
        for (int i = 0; i < rows.size(); ++i) {
            Row &row = taken[static_cast<std::size_t>(i)];
            row.name.reset(takeItem(rows[i], NameColumn));
            row.value.reset(takeItem(rows[i], ValueColumn));
            row.place = places[i];
        }
    }
    sorter()->order().rowsRemoved(rows);
    // From the end, and neighbours together: each removal moves all rows below it.
    for (auto last = rows.size() - 1; last >= 0;) {
        auto first = last;
        while (first > 0 && rows[first - 1] == rows[first] - 1)
            --first;
        model()->removeRows(rows[first], static_cast<int>(last - first + 1));
        last = first - 1;
    }
    if (!rows.isEmpty())
        refreshItemPositions(this, rows.first());
    viewport()->update();
    if (sorter()->order().isSorted())
        std::sort(taken.begin(), taken.end(), [](const Row &a, const Row &b) { return a.place < b.place; });
    return taken;
}

void ChosenTable::selectItems(const QVector<QTableWidgetItem *> &items)
{
    if (items.isEmpty())
        return;
    QVector<int> rows;
    rows.reserve(items.size());
    for (const QTableWidgetItem *item : items)
        rows.append(item->row());
    std::sort(rows.begin(), rows.end());

    QItemSelection selection;
    for (int first = 0; first < rows.size();) {
        int last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        selection.select(model()->index(rows[first], NameColumn), model()->index(rows[last], ValueColumn));
        first = last + 1;
    }
    setCurrentCell(rows.first(), NameColumn, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    scrollToItem(item(rows.last(), NameColumn));
}

void ChosenTable::editRow(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    // Not editItem(), which complains on the console where a row has no editor.
    edit(model()->index(row, ValueColumn), AllEditTriggers, nullptr);
}

bool ChosenTable::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (!index.isValid())
        return false;
    const QModelIndex value = index.sibling(index.row(), ValueColumn);
    if (!AttributeTable::edit(value, trigger, event))
        return false;
    if (indexWidget(value) && indexWidget(value) != m_editor) {
        m_editor = indexWidget(value);
        m_editedIndex = value;
        prepareEditor(value.row());
    }
    return true;
}

void ChosenTable::prepareEditor(int row)
{
    makeRoomFor(m_editor);
    m_isHiddenEdit = false;
    auto boxes = m_editor->findChildren<QAbstractSpinBox *>();
    if (auto *box = qobject_cast<QAbstractSpinBox *>(m_editor.data()))
        boxes.append(box);
    for (QAbstractSpinBox *box : std::as_const(boxes))
        NumberEntry::acceptEveryText(box);
    if (const auto *choices = TextChoices::attach(m_editor, *rowItem(row)))
        connect(this, &ChosenTable::editingEnded, choices, &QWidget::hide);

    m_content = new EditorContent(m_editor, *rowItem(row));
    connect(m_content, &EditorContent::edited, this, &ChosenTable::noteEdit);
    const QTableWidgetItem *name = item(row, NameColumn);
    m_filter = new CellEditorFilter(m_editor, name ? name->text() : QString());
    connect(m_filter, &CellEditorFilter::entered, this, &ChosenTable::enterEditing);
    connect(m_filter, &CellEditorFilter::left, this, &ChosenTable::finishEditing);
    m_filter->focusFirst();
    Q_EMIT editingStarted();
}

/// Two spin boxes with wide limits need more than the column may have.
void ChosenTable::makeRoomFor(const QWidget *editor)
{
    nameColumnWidth()->setEditorWidth(editor->minimumSizeHint().width() + width() - viewport()->width());
    updateEditorGeometries();
}

void ChosenTable::finishEditing()
{
    if (m_isHiddenEdit)
        dropEditing();
    else
        finishAcceptedEditing();
}

void ChosenTable::finishAcceptedEditing()
{
    const QPointer<QWidget> editor = m_editor;
    if (editor)
        commitData(editor);
    // What is stored may make the host end the edit.
    if (editor && editor == m_editor)
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

bool ChosenTable::tryFinishEditing()
{
    if (isEntryRefused()) {
        showMessage(m_content->refusal());
        m_content->selectRefused();
        m_content->announceRefused();
        return false;
    }
    finishEditing();
    return true;
}

/// After a plain hide() nothing follows, and the edit is dropped; after accept(), accepted() in the same call.
void ChosenTable::hideEvent(QHideEvent *event)
{
    AttributeTable::hideEvent(event);
    if (event->spontaneous() || !m_editor)
        return;
    m_isHiddenEdit = true;
    m_afterEvent.start();
}

void ChosenTable::endEvent()
{
    m_isRefusalNew = false;
    if (m_isHiddenEdit)
        dropEditing();
}

void ChosenTable::enterEditing()
{
    if (m_content)
        m_content->confirm();
    tryFinishEditing();
}

void ChosenTable::dropEditing()
{
    if (m_editor)
        closeEditor(m_editor, QAbstractItemDelegate::RevertModelCache);
}

bool ChosenTable::isEntryRefused() const
{
    return m_content && m_content->isRefused();
}

void ChosenTable::noteEdit()
{
    if (!m_editor)
        return;
    // A sign alone is refused only when it is entered.
    showMessage(m_content->isUnfinished() ? QString() : m_content->refusal());
    Q_EMIT editorChanged();
}

void ChosenTable::showMessage(const QString &message)
{
    if (!m_note)
        m_note = new EditorNote(viewport());
    const QWidget *box = m_content->refusedBox();
    m_note->showMessage(message, box ? *box : *m_editor);
    m_content->describeRefused(message);
}

void ChosenTable::rememberRefusal()
{
    m_lastRefusal = m_content->refusalSentences();
    m_isRefusalNew = true;
    m_afterEvent.start();
}

void ChosenTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    if (!m_isRefusalNew)
        forgetRefusal();
    AttributeTable::currentChanged(current, previous);
}

/// The view loads an open editor again from an item that has changed. What the user has entered stays.
void ChosenTable::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                              const QVector<int> &roles)
{
    const bool isEdited = m_editor && topLeft == m_editedIndex;
    if (isEdited && m_content->isChanged()) {
        viewport()->update();
        return;
    }
    AttributeTable::dataChanged(topLeft, bottomRight, roles);
    if (isEdited)
        m_content->restart(*itemFromIndex(topLeft));
}

void ChosenTable::commitData(QWidget *editor)
{
    if (!editor || editor != m_editor)
        return;
    if (isEntryRefused()) {
        rememberRefusal();
        return;
    }
    // Do not interpret an unchanged editor: a spin box may write its number differently than it was set.
    if (!m_content->isChanged())
        return;
    m_content->interpret();
    if (!m_content->isChanged())
        return;
    AttributeTable::commitData(editor);
    const QTableWidgetItem *value = editor == m_editor ? itemFromIndex(m_editedIndex) : nullptr;
    if (!value)
        return;
    m_content->restart(*value);
    m_filter->install();
}

void ChosenTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (editor && editor == m_editor) {
        // The window's focus, which stays where it is while the window is hidden.
        const QWidget *focus = window()->focusWidget();
        const bool hadFocus = focus == editor || editor->isAncestorOf(focus);
        if (!m_isRefusalNew)
            forgetRefusal();
        m_editor = nullptr;
        m_content = nullptr;
        m_filter = nullptr;
        if (m_note)
            m_note->hide();
        nameColumnWidth()->setEditorWidth(0);
        // Before the editor is hidden: Qt would give the focus to the first widget of the dialog in between.
        if (hadFocus)
            setFocus();
    }
    // Tab ends the edit and opens no other, which would store a condition that nobody entered.
    const bool moves =
        hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem;
    AttributeTable::closeEditor(editor, moves ? QAbstractItemDelegate::NoHint : hint);
    viewport()->update();
    Q_EMIT editingEnded();
}

void ChosenTable::followFocus(const QWidget *old, const QWidget *now)
{
    if (!m_editor || !old || !now || now->window() != window())
        return;
    const auto inside = [this](const QWidget *widget) {
        return widget == m_editor || m_editor->isAncestorOf(widget);
    };
    if (inside(old) && !inside(now))
        finishEditing();
}

void ChosenTable::keyPressEvent(QKeyEvent *event)
{
    // What an editor has no use for comes up to the table and must not act on the rows.
    if (m_editor) {
        event->ignore();
        return;
    }
    if (event->key() == Qt::Key_Delete) {
        Q_EMIT removalRequested();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // Held down, it would open and close the editor in turn.
        if (!event->isAutoRepeat())
            editRow(currentRow());
    } else if (event->key() == Qt::Key_Menu ||
               (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)) {
        requestMenuAtCurrentRow();
    } else {
        AttributeTable::keyPressEvent(event);
    }
}

void ChosenTable::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        requestMenuAtCurrentRow();
        return;
    }
    const QTableWidgetItem *clicked = itemAt(viewport()->mapFromGlobal(event->globalPos()));
    if (clicked)
        requestMenu(clicked->row(), event->globalPos());
}

void ChosenTable::requestMenuAtCurrentRow()
{
    const QTableWidgetItem *current = item(currentRow(), NameColumn);
    if (!current)
        return;
    scrollToItem(current);
    // Below the row, so that its value can still be read.
    requestMenu(current->row(), viewport()->mapToGlobal(visualItemRect(current).bottomLeft()));
}

/// The menu acts on the selected rows, so this one is made one of them.
void ChosenTable::requestMenu(int row, const QPoint &globalPosition)
{
    finishEditing();
    if (selectionModel()->isRowSelected(row, QModelIndex()))
        setCurrentCell(row, NameColumn, QItemSelectionModel::NoUpdate);
    else
        makeRowCurrent(row);
    Q_EMIT menuRequested(globalPosition);
}

} // namespace tvx
} // namespace Zudunmaf
