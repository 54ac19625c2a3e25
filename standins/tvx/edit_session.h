#ifndef TVX_EDIT_SESSION_H
#define TVX_EDIT_SESSION_H

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>

class QTableWidgetItem;
class QWidget;

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;
class CellEditorFilter;
class EditorContent;
class EditorNote;
class OptionPopup;

/// The open cell editor of the chosen table: whether its content is to be stored, the note on an entry that the limits
/// refuse, and the sentence that says so afterwards. Owned by the table, which opens, commits and closes the editor.
///
/// One object serves one edit after the other. The view may delete an editor without closing it, as when its row is
/// removed; the edit is over then.
class EditSession : public QObject
{
    Q_OBJECT

public:
    /// The table becomes the parent. Editors and the note are children of its viewport.
    explicit EditSession(AttributeTable *table);

    /// Begins with an editor that has been loaded from `value`, the value item at `index`. `name` is the attribute.
    void begin(QWidget *editor, const QModelIndex &index, const QTableWidgetItem &value, const QString &name);
    /// Opens the popup of an option when the double-click that began the edit is over.
    void openPopupAfterClick();
    /// Ends the edit. The sentence on a refused entry stays if the entry was refused in the event that is being
    /// delivered.
    void end();

    /// Returns the open editor; null if there is none.
    QWidget *editor() const { return m_editor; }
    /// Returns the cell of the open editor; invalid if there is none.
    QModelIndex index() const;
    /// Returns true if `widget` is the open editor or in it.
    bool contains(const QWidget *widget) const;

    /// Returns true if the user has changed the content.
    bool isChanged() const;
    /// Returns true if the limits refuse the entry, which must not be stored then.
    bool isRefused() const;
    /// Returns true if confirm() and prepareCommit() would lead to a commit.
    bool doesEnterStore() const;
    /// Prepares the content for being stored. Returns false if it must not be stored, because it is refused or
    /// unchanged.
    bool prepareCommit();
    /// Must be called after the editor was stored, or loaded again, so that its content counts as unchanged.
    void restart(const QTableWidgetItem &value);
    /// Counts what the editor shows as entered if its condition is not set.
    void confirm();
    /// Shows why the entry is refused, and selects it.
    void showRefusal();

    /// Returns the sentence on the last refused entry; empty if there is none.
    QString lastRefusal() const { return m_lastRefusal; }
    /// Clears that sentence.
    void forgetRefusal() { m_lastRefusal.clear(); }
    /// Clears it unless the entry was refused in the event that is being delivered.
    void forgetOldRefusal();

    /// Must be called when the table was hidden. hiddenTooLong() follows unless the edit ends in the same event.
    void tableHidden();
    /// Returns true if the table was hidden after the edit began.
    bool isTableHidden() const { return m_isTableHidden; }

Q_SIGNALS:
    /// Emitted when Enter was pressed in the editor.
    void entered();
    /// Emitted when the user left the editor by Tab.
    void left();
    /// Emitted when the content of the open editor has changed.
    void edited();
    /// Emitted at the end of an edit.
    void ended();
    /// Emitted when the event that hid the table is over.
    void hiddenTooLong();

private:
    void noteEdit();
    void noteFocus();
    void updateNote();
    void showNote(const QString &message);
    void placeNote();
    void eventOver();

    AttributeTable *m_table;
    QPointer<QWidget> m_editor;
    QPersistentModelIndex m_index;
    /// Children of the editor.
    QPointer<EditorContent> m_content;
    QPointer<CellEditorFilter> m_filter;
    QPointer<OptionPopup> m_popup;
    QPointer<EditorNote> m_note;
    QString m_lastRefusal;
    /// The entry was refused in the event that is being delivered, which may also change the current row.
    bool m_isRefusalNew = false;
    bool m_isTableHidden = false;
    /// Fires when the event that is being delivered is over.
    QTimer m_afterEvent;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
