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

/// One row of the entity list: the text that it shows and the mask of the entity. The constructor is the base
/// library's; objects are made with `new` and go over to the base dialog.
class GDM_EXPORT TvxDataItem
{
public:
    /// `data` holds the row's entity mask as a whole number; `did` is the identifier that the row carries.
    TvxDataItem(const QString &text, QVariant data, int did);

    /// What the row shows.
    QString text() const { return m_text; }
    /// The entity mask of the row.
    QVariant data() const { return m_data; }
    /// The dictionary that the row carries; 0 from the two dialogs.
    int did() const { return m_did; }

private:
    QString m_text;
    QVariant m_data;
    int m_did;
};

/// What the two dialogs require of the host's base dialog, which owns every widget: the entity list, the
/// group list, the filter text, the top view with the attributes on offer, the chosen list, the add and
/// remove buttons and OK and Cancel. The library derives from this class and a base library defines it; only
/// that library runs moc here.
///
/// Both tables are QTableWidgets with the name in column 0 and the condition or value in column 1. In a row
/// that can be edited, column 1 holds the DmlAttrLWI that carries what the user enters. Every operation that
/// hands out one item for a row gives the item of column 1.
///
/// The base calls filterAttributeList() when the selected entity, the selected group or the filter text changes. It moves
/// attributes between the tables itself, by QTableWidgetItem::clone(), and calls one of the two hooks for each attribute
/// that it moves, whatever has moved it: a button, a key, a drop, undoing a removal, or an item that the host adds.
class GDM_EXPORT TvxAttributesSelectionDialog : public QDialog
{
    Q_OBJECT

public:
    /// The buttons that can have a picture.
    enum Buttons_Enum {
        Buttons_Add = 0,   ///< Takes attributes over into the chosen list.
        Buttons_Remove = 1 ///< Takes them away from it.
    };

    /// `did` identifies the dictionary to walk; -1 leaves that to the selected entity row. The others are
    /// QDialog's.
    TvxAttributesSelectionDialog(int did, QWidget *parent, Qt::WindowFlags flags);
    ~TvxAttributesSelectionDialog() override;

    /// Fills the three lists. May be called again.
    virtual void buildInitialLists() = 0;
    /// Sets the visibility of each row of the top view by entity, group and filter text.
    virtual void filterAttributeList() = 0;
    /// Builds the context menu and hands it to setCustomContextMenu().
    virtual void setupContextMenu() = 0;
    /// Stores the units code, -1 for none. Overrides call this one first and then rebuild the top view.
    virtual void setDisplayUnits(int units);
    /// Called for each attribute that was added to the chosen table, with its item in the available table. Not called for
    /// an attribute that the available table does not have.
    virtual void addButtonClickedCB(QTableWidgetItem *item);
    /// Called for each attribute that is removed from the chosen table, with its item there. The item is deleted after the
    /// call.
    virtual void removeButtonClickedCB(QTableWidgetItem *item);

    /// Connects the widgets to the base's reactions. Called once, after the lists are filled and the delegate
    /// is set.
    void connectSignal2Slots();

    /// The dictionary to walk; negative where there is none.
    int getEntityDID() const;
    /// The mask of the selected entity row; 0 where no row is selected.
    int getSelectedEntityMask() const;
    /// The text of the selected group row, unchanged; null where no row is selected.
    QString getSelectedGroupName() const;
    /// What the user has typed; empty where that is nothing.
    QString getUserFilterText();
    /// The units code set last, -1 at first.
    int displayUnits();

    /// One item for each row of the top view: all rows for false, the visible ones for true.
    QList<QTableWidgetItem *> getTopListItems(bool) const;
    /// Shows or hides a row of the top view. A row out of range is ignored.
    void setTopViewRowsVisiblity(int row, bool visible);
    /// Makes the first row that is not hidden current; without one, no row is current or selected.
    void setFirstVisibleItemAsCurrent();
    /// Makes the row of this item of the top view current.
    void setTopViewCurrentItem(QTableWidgetItem *item);
    /// The item of the top view whose attribute has this internal name, hidden rows included; null if there
    /// is none.
    QTableWidgetItem *findItemByAttrName(const QString &name);

    /// One item for each row of the chosen list, in row order. This is what a host reads.
    QList<QTableWidgetItem *> getChosenList() const;

    /// Installs the delegate on the tables whose cells are edited. The dialog owns it.
    void setItemDelegate(QStyledItemDelegate *delegate);
    /// Sets the header of column 0 or 1.
    void setHeaderTitle(int column, const QString &title);
    /// Sets a button's picture from a file name without a path; false where it was not found.
    bool setButtonPixmap(Buttons_Enum button, const QString &name);
    /// The menu to show on the user's request. The dialog owns it.
    void setCustomContextMenu(QMenu *menu);
    /// The items that a menu action applies to, each a DmlAttrLWI of column 1.
    QList<QTableWidgetItem *> getItemsForContextMenuCallback();
    /// Opens the in-place editor on the current row; does nothing without one.
    void editCurrentItem();

protected:
    /// Shows the rows and takes the objects over.
    void fillEntityList(const QList<TvxDataItem *> &items);
    /// Shows the rows, in list order.
    void fillGroupsList(const QStringList &groups);
    /// Replaces the rows of the top view by clones of the items, which stay the caller's. Never calls
    /// filterAttributeList().
    void fillAttributeList(const QList<QTableWidgetItem *> &items);

    /// Closing by the window is Cancel.
    void closeEvent(QCloseEvent *event) override;

private:
    Q_DISABLE_COPY(TvxAttributesSelectionDialog)

    class Private;
    Private *d;
};

#endif
