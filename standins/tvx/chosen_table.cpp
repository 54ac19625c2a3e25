#include "tvx/chosen_table.h"

#include "tvx/editor_guard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace Zudunmaf
{
namespace tvx
{

ChosenTable::ChosenTable(QWidget *parent)
    : AttributeTable(parent)
{
    setEditTriggers(DoubleClicked | EditKeyPressed);
    connect(qApp, &QApplication::focusChanged, this, &ChosenTable::followFocus);
}

ChosenTable::~ChosenTable()
{
    // The viewport goes later, and its editor may have the focus.
    disconnect(qApp, nullptr, this, nullptr);
}

void ChosenTable::appendRows(std::vector<Row> rows)
{
    putBehind(std::move(rows));
    restoreOrder();
}

void ChosenTable::restoreRows(std::vector<Row> rows)
{
    QVector<int> places;
    places.reserve(static_cast<int>(rows.size()));
    for (const Row &row : rows)
        places.append(row.place);
    putBehind(std::move(rows));
    rowOrder().rowsReturned(rowCount(), places);
    reorder();
}

void ChosenTable::putBehind(std::vector<Row> rows)
{
    const int first = rowCount();
    model()->insertRows(first, static_cast<int>(rows.size()));
    {
        const SilentChange change(this);
        int place = first;
        for (Row &row : rows) {
            setItem(place, NameColumn, row.name.release());
            setItem(place++, ValueColumn, row.value.release());
        }
    }
    if (first == 0)
        fixRowHeight();
}

std::vector<ChosenTable::Row> ChosenTable::takeRows(const QVector<int> &rows)
{
    const QVector<int> places = rowOrder().placesOf(rows);
    std::vector<Row> taken(rows.size());
    {
        const SilentChange change(this);
        for (int i = 0; i < rows.size(); ++i) {
            Row &row = taken[static_cast<std::size_t>(i)];
            row.name.reset(takeItem(rows[i], NameColumn));
            row.value.reset(takeItem(rows[i], ValueColumn));
            row.place = places[i];
        }
    }
    rowOrder().rowsRemoved(rows);
    // From the end, and neighbours together: each removal moves all rows below it.
    for (auto last = rows.size() - 1; last >= 0;) {
        auto first = last;
        while (first > 0 && rows[first - 1] == rows[first] - 1)
            --first;
        model()->removeRows(rows[first], static_cast<int>(last - first + 1));
        last = first - 1;
    }
    if (!rows.isEmpty())
        renewPlaces(rows.first());
    if (rowOrder().isSorted())
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
        prepareEditor(value.row());
    }
    return true;
}

void ChosenTable::prepareEditor(int row)
{
    makeRoomFor(m_editor);
    const QTableWidgetItem *name = item(row, NameColumn);
    auto *guard = new EditorGuard(m_editor, name ? name->text() : QString());
    connect(guard, &EditorGuard::left, this, &ChosenTable::finishEditing);
    guard->focusFirst();
    Q_EMIT editingStarted();
}

/// Two spin boxes with wide limits need more than the column may have.
void ChosenTable::makeRoomFor(const QWidget *editor)
{
    setEditorWidth(editor->minimumSizeHint().width() + width() - viewport()->width());
    updateEditorGeometries();
}

void ChosenTable::finishEditing()
{
    if (!m_editor)
        return;
    const QPointer<QWidget> editor = m_editor;
    if (auto *box = qobject_cast<QAbstractSpinBox *>(editor.data()))
        box->interpretText();
    const auto boxes = editor->findChildren<QAbstractSpinBox *>();
    for (QAbstractSpinBox *box : boxes)
        box->interpretText();
    commitData(editor);
    if (editor)
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void ChosenTable::dropEditing()
{
    if (m_editor)
        closeEditor(m_editor, QAbstractItemDelegate::RevertModelCache);
}

void ChosenTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool hadFocus = editor && (editor->hasFocus() || editor->isAncestorOf(QApplication::focusWidget()));
    if (editor == m_editor) {
        m_editor = nullptr;
        setEditorWidth(0);
    }
    // Tab ends the edit and opens no other, which would store a condition that nobody entered.
    const bool moves =
        hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem;
    AttributeTable::closeEditor(editor, moves ? QAbstractItemDelegate::NoHint : hint);
    if (hadFocus)
        setFocus();
    viewport()->update();
    Q_EMIT editingEnded();
}

/// The delegate sees only the editor itself lose the focus, not a widget inside it.
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
