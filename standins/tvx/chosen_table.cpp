#include "tvx/chosen_table.h"

#include "tvx/editor_guard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

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

void ChosenTable::insertRows(int row, const QVector<RowItems> &rows)
{
    if (rows.isEmpty())
        return;
    const bool first = rowCount() == 0;
    const int place = row < 0 || rowOrder().isSorted() ? rowCount() : std::min(row, rowCount());
    model()->insertRows(place, static_cast<int>(rows.size()));
    {
        const SilentChange change(this);
        for (int i = 0; i < rows.size(); ++i) {
            setItem(place + i, NameColumn, rows[i].name);
            setItem(place + i, ValueColumn, rows[i].value);
        }
    }
    if (first)
        fixRowHeight();
    renewPlaces(place + static_cast<int>(rows.size()));
    restoreOrder();
}

QVector<ChosenTable::RowItems> ChosenTable::takeRows(const QVector<int> &rows)
{
    QVector<RowItems> taken;
    taken.reserve(rows.size());
    {
        const SilentChange change(this);
        for (int row : rows)
            taken.append(RowItems{takeItem(row, NameColumn), takeItem(row, ValueColumn)});
    }
    // From the end, and neighbours together: each removal moves all rows below it.
    for (auto last = rows.size() - 1; last >= 0;) {
        auto first = last;
        while (first > 0 && rows[first - 1] == rows[first] - 1)
            --first;
        const int count = static_cast<int>(last - first + 1);
        rowOrder().rowsRemoved(rows[first], count);
        model()->removeRows(rows[first], count);
        last = first - 1;
    }
    if (!rows.isEmpty())
        renewPlaces(rows.first());
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
    const int missing = editor->minimumSizeHint().width() - columnWidth(ValueColumn);
    if (missing <= 0)
        return;
    const int narrowest = fontMetrics().averageCharWidth() * 8;
    horizontalHeader()->resizeSection(NameColumn, std::max(narrowest, columnWidth(NameColumn) - missing));
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
    if (editor == m_editor)
        m_editor = nullptr;
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
    if (!clicked)
        return;
    finishEditing();
    if (!selectionModel()->isRowSelected(clicked->row(), QModelIndex()))
        makeRowCurrent(clicked->row());
    else
        setCurrentCell(clicked->row(), NameColumn, QItemSelectionModel::NoUpdate);
    Q_EMIT menuRequested(event->globalPos());
}

void ChosenTable::requestMenuAtCurrentRow()
{
    const QTableWidgetItem *current = item(currentRow(), NameColumn);
    if (!current)
        return;
    finishEditing();
    scrollToItem(current);
    // Below the row, so that its value can still be read.
    Q_EMIT menuRequested(viewport()->mapToGlobal(visualItemRect(current).bottomLeft()));
}

} // namespace tvx
} // namespace Zudunmaf
