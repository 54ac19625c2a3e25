#ifndef GDM_DIALOGS_TVX_ATTRIBUTES_SELECTION_DIALOG_H
#define GDM_DIALOGS_TVX_ATTRIBUTES_SELECTION_DIALOG_H

#include "gdm/host/gdm_export.h"

#include <QDialog>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

class QMenu;
class QStyledItemDelegate;
class QTableWidgetItem;

/// One row of the entity list: its text and the mask of the entity. The constructor is defined in the base library.
/// Objects are created with `new`; the base dialog takes ownership.
class GDM_EXPORT TvxDataItem
{
public:
    /// Constructs a row with this text. `data` is the entity mask, an int or an unsigned int; `did` is a dictionary.
    TvxDataItem(const QString &text, QVariant data, int did);

    /// Returns the text of the row.
    QString text() const { return m_text; }
    /// Returns the entity mask of the row.
    QVariant data() const { return m_data; }
    /// Returns the dictionary of the row; 0 in the rows of the two dialogs.
    int did() const { return m_did; }

private:
    QString m_text;
    QVariant m_data;
    int m_did;
};

/// Base class of the two dialogs, defined in the host's base library. The base owns all widgets: the entity list, the
/// group list, the filter text, the top view (the table of available attributes), the chosen list (the table of chosen
/// attributes), the add and remove buttons, OK and Cancel. Only the base library runs moc on this header.
///
/// Both tables are QTableWidgets with the label in column 0 and the condition or value in column 1. In a row that can
/// be edited, the item in column 1 is a DmlAttrLWI with what the user enters. Operations with one item for each row use
/// the item in column 1.
///
/// The base calls filterAttributeList() when the selected entity, the selected group or the filter text changes. It
/// moves attributes between the tables itself, by QTableWidgetItem::clone(), and calls one of the two hooks for each
/// attribute that it moves, whatever has moved it: a button, a key, a drop, undoing a removal, or an item that the host
/// adds.
class GDM_EXPORT TvxAttributesSelectionDialog : public QDialog
{
    Q_OBJECT

public:
    /// The buttons that can have a picture.
    enum Buttons_Enum {
        Buttons_Add = 0,   ///< Adds attributes to the chosen table.
        Buttons_Remove = 1 ///< Removes attributes from the chosen table.
    };

    /// `did` is the dictionary; -1 if the selected entity row determines it. The other arguments are QDialog's.
    TvxAttributesSelectionDialog(int did, QWidget *parent, Qt::WindowFlags flags);
    ~TvxAttributesSelectionDialog() override;

    /// Fills the entities, the groups and the available table, in this order, because each depends on what is selected
    /// in the lists before it. Can be called again.
    virtual void buildInitialLists() = 0;
    /// Shows or hides each row of the available table by entity, group and filter text.
    virtual void filterAttributeList() = 0;
    /// Creates the context menu and passes it to setCustomContextMenu().
    virtual void setupContextMenu() = 0;
    /// Sets the units code, -1 for none. Overrides call this implementation and then fill the available table.
    virtual void setDisplayUnits(int units);
    /// Called for each attribute that was added to the chosen table, with its item in the available table. Not called
    /// for an attribute that the available table does not have.
    virtual void addButtonClickedCB(QTableWidgetItem *item);
    /// Called for each attribute that is removed from the chosen table, with its item there. The item may be deleted
    /// after the call.
    virtual void removeButtonClickedCB(QTableWidgetItem *item);

    /// Connects the signals of the widgets. Called once, after the lists are filled and the delegate is set.
    void connectSignal2Slots();

    /// Returns the dictionary; negative if there is none.
    int getEntityDID() const;
    /// Returns the mask of the selected entity row; 0 if no row is selected.
    int getSelectedEntityMask() const;
    /// Returns the text of the selected group row, unchanged; a null string if no row is selected.
    QString getSelectedGroupName() const;
    /// Returns the filter text; empty if the user has typed nothing.
    QString getUserFilterText();
    /// Returns the units code; -1 by default.
    int displayUnits();

    /// Returns one item for each row of the available table; with true, only for visible rows.
    QList<QTableWidgetItem *> getTopListItems(bool) const;
    /// Shows or hides a row of the available table. Does nothing if the row is out of range.
    void setTopViewRowsVisiblity(int row, bool visible);
    /// Makes the first visible row of the available table current. If no row is visible, clears the current row and the
    /// selection.
    void setFirstVisibleItemAsCurrent();
    /// Makes the row of this item current in the available table. Ignores null and an item of another table.
    void setTopViewCurrentItem(QTableWidgetItem *item);
    /// Returns the item in the available table whose attribute has this internal name, hidden rows included; null if
    /// there is none.
    QTableWidgetItem *findItemByAttrName(const QString &name);

    /// Returns one item for each row of the chosen table, in row order. Hosts read the result from these items.
    QList<QTableWidgetItem *> getChosenList() const;

    /// Sets the delegate of the tables whose cells are edited. The delegate is a child of the dialog.
    void setItemDelegate(QStyledItemDelegate *delegate);
    /// Sets the header text of a column, 0 or 1; ignores others.
    void setHeaderTitle(int column, const QString &title);
    /// Sets the icon of a button from a file name without path. Returns false if the file is not found.
    bool setButtonPixmap(Buttons_Enum button, const QString &name);
    /// Sets the context menu. The menu is a child of the dialog.
    void setCustomContextMenu(QMenu *menu);
    /// Returns the items that a menu action applies to: the DmlAttrLWI items in column 1.
    QList<QTableWidgetItem *> getItemsForContextMenuCallback();
    /// Opens the editor of the current row. Does nothing if there is no current row.
    void editCurrentItem();

protected:
    /// Fills the entity list, in list order. Takes ownership of the objects.
    void fillEntityList(const QList<TvxDataItem *> &items);
    /// Fills the group list, in list order.
    void fillGroupsList(const QStringList &groups);
    /// Replaces the rows of the available table with clones of the items; the caller keeps ownership of the items. Does
    /// not call filterAttributeList().
    void fillAttributeList(const QList<QTableWidgetItem *> &items);

    /// Closing the window is Cancel.
    void closeEvent(QCloseEvent *event) override;

private:
    Q_DISABLE_COPY(TvxAttributesSelectionDialog)

    class Private;
    Private *d;
};

#endif
