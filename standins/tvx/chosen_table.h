#ifndef TVX_CHOSEN_TABLE_H
#define TVX_CHOSEN_TABLE_H

#include "tvx/attribute_table.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <vector>

namespace Zudunmaf
{
namespace tvx
{

class CellEditorFilter;
class EditorContent;
class EditorNote;

/// The chosen attributes, and the only table whose cells are edited. An edit of either column edits the value column:
/// its item carries what the user enters.
///
/// The delegate stores whatever an editor shows. This table commits an editor only where the user has changed it, once,
/// and never with a number that the limits refuse.
class ChosenTable : public AttributeTable
{
    Q_OBJECT

public:
    /// A row that stands in no table: its two items, and its place in the order in which the rows came.
    struct Row {
        std::unique_ptr<QTableWidgetItem> name;
        std::unique_ptr<QTableWidgetItem> value;
        int place;
    };

    explicit ChosenTable(QWidget *parent);
    ~ChosenTable() override;

    /// Puts rows behind the others, wherever the order by a header then shows them. Their places are not
    /// looked at.
    void appendRows(std::vector<Row> rows);
    /// Takes rows out, whose numbers are ascending. They are handed out in the order in which they came.
    std::vector<Row> takeRows(const QVector<int> &rows);
    /// Brings rows back that takeRows() has handed out, to their places among the others.
    void restoreRows(std::vector<Row> rows);
    /// Makes the rows of these value items the selected ones, the first of them current, and scrolls to them.
    void selectItems(const QVector<QTableWidgetItem *> &items);

    /// Opens the editor of a row; nothing happens where the row has none.
    void editRow(int row);
    /// The open editor; null if there is none.
    QWidget *openEditor() const { return m_editor; }
    /// Closes an open editor and stores what the user has changed. A refused entry leaves the row as it was, and
    /// lastRefusal() says so. Does nothing if no editor is open; drops the edit if the table has been hidden since it
    /// began.
    void finishEditing();
    /// The same for a dialog that is accepted, which hides before it says so.
    void finishAcceptedEditing();
    /// The same, but with a refused entry the editor stays open, its entry selected; false then.
    bool tryFinishEditing();
    /// Closes an open editor and leaves the row as it was.
    void dropEditing();

    /// True while an editor is open on an entry that the limits refuse.
    bool isEntryRefused() const;
    /// What became of the last refused entry, as a sentence for the user; empty once the user has gone on to another row.
    QString lastRefusal() const { return m_lastRefusal; }
    void forgetRefusal() { m_lastRefusal.clear(); }

Q_SIGNALS:
    void editingStarted();
    /// Emitted when the content of the open editor changes.
    void editorChanged();
    void editingEnded();
    /// Delete was pressed.
    void removalRequested();
    /// The menu is to be shown at this place of the screen, for the selected rows.
    void menuRequested(const QPoint &globalPosition);

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void putBehind(std::vector<Row> rows);
    void prepareEditor(int row);
    void makeRoomFor(const QWidget *editor);
    void endEvent();
    void enterEditing();
    void noteEdit();
    void showMessage(const QString &message);
    void rememberRefusal();
    void requestMenuAtCurrentRow();
    void requestMenu(int row, const QPoint &globalPosition);
    void followFocus(const QWidget *old, const QWidget *now);

    QPointer<QWidget> m_editor;
    QPersistentModelIndex m_editedIndex;
    /// Of the open editor, which owns it.
    QPointer<EditorContent> m_content;
    QPointer<CellEditorFilter> m_filter;
    QPointer<EditorNote> m_note;
    QString m_lastRefusal;
    /// The refusal belongs to the event that is being delivered, which may change the current row too.
    bool m_isRefusalNew = false;
    bool m_isHiddenEdit = false;
    /// Fires when the event that is being delivered is over.
    QTimer m_afterEvent;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
