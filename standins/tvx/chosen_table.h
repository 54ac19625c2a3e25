#ifndef TVX_CHOSEN_TABLE_H
#define TVX_CHOSEN_TABLE_H

#include "tvx/attribute_table.h"
#include "tvx/chosen_rows.h"

namespace Zudunmaf
{
namespace tvx
{

class EditSession;
class RowMenu;

/// The chosen attributes, and the only table whose cells are edited. An edit of either column edits the value column.
///
/// A delegate stores whatever its editor shows. This table commits an editor only if the user has changed it, once, and
/// never with a number that the limits refuse.
class ChosenTable : public AttributeTable
{
    Q_OBJECT

public:
    explicit ChosenTable(QWidget *parent);
    ~ChosenTable() override;

    ChosenRows &rows() { return m_rows; }
    RowMenu *menu() const { return m_menu; }

    /// Opens the editor of a row. Does nothing if the row is out of range or has no editor.
    void editRow(int row);
    /// Returns the open editor; null if there is none.
    QWidget *openEditor() const;
    /// Returns the value item of the open editor; null if there is none.
    QTableWidgetItem *editedItem() const;
    /// Returns true if Enter would store the content of the open editor.
    bool doesEnterStore() const;
    /// Closes an open editor and stores what the user has changed. A refused entry leaves the item as it was, and
    /// lastRefusal() says so. If the table was hidden after the edit began, nothing is stored. Does nothing if no
    /// editor is open.
    void finishEditing();
    /// Does the same, but also stores if the table was hidden: QDialog::accept() hides the dialog first.
    void finishAcceptedEditing();
    /// Does the same as finishEditing() if the entry is not refused. Else selects the entry and returns false.
    bool tryFinishEditing();
    /// Closes an open editor and leaves the item as it was.
    void dropEditing();

    /// Returns true if an editor is open with an entry that the limits refuse.
    bool isEntryRefused() const;
    /// Returns a sentence on the last entry that was refused; empty after the user has gone on to another row.
    QString lastRefusal() const;
    /// Clears that sentence.
    void forgetRefusal();
    /// Clears it unless the entry was refused in the event that is being delivered.
    void forgetOldRefusal();

Q_SIGNALS:
    void editingStarted();
    /// Emitted when the content of the open editor has changed.
    void editorChanged();
    void editingEnded();
    /// Emitted after Enter has closed the editor.
    void entered();
    /// Emitted before and after the value of an item is stored.
    void valueAboutToChange(QTableWidgetItem *value);
    void valueChanged();
    /// Emitted when Delete is pressed.
    void removalRequested();

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
    void beginSession(QWidget *editor, const QModelIndex &index, EditTrigger trigger);
    void endSession();
    void finishEntered();
    void followFocus(const QWidget *old, const QWidget *now);

    ChosenRows m_rows;
    EditSession *m_session;
    RowMenu *m_menu;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
