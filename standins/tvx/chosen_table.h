#ifndef TVX_CHOSEN_TABLE_H
#define TVX_CHOSEN_TABLE_H

#include "tvx/attribute_table.h"

#include <QPointer>

#include <memory>
#include <vector>

namespace Zudunmaf
{
namespace tvx
{

/// The attributes that the user has taken over, and the only table whose cells are edited. Whichever column
/// an edit is asked for, it is the value column that is edited: the one item of the row that carries what the
/// user enters.
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
    /// Ends an open edit and stores what was entered. Without one, nothing happens.
    void finishEditing();
    /// Ends an open edit and leaves the row as it was.
    void dropEditing();

Q_SIGNALS:
    void editingStarted();
    void editingEnded();
    /// Delete was pressed.
    void removalRequested();
    /// The menu is to be shown at this place of the screen, for the selected rows.
    void menuRequested(const QPoint &globalPosition);

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void putBehind(std::vector<Row> rows);
    void prepareEditor(int row);
    void makeRoomFor(const QWidget *editor);
    void requestMenuAtCurrentRow();
    void requestMenu(int row, const QPoint &globalPosition);
    void followFocus(const QWidget *old, const QWidget *now);

    QPointer<QWidget> m_editor;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
