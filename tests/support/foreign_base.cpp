#include "foreign_host.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/items/attr_roles.h"

#include <QMenu>

#include <algorithm>
#include <random>

typedef TvxAttributesSelectionDialog Dialog;
typedef QList<QTableWidgetItem *> Items;

class Dialog::Private : public QList<TvxDataItem *>
{
};

static Items rowItems(const QTableWidget *table)
{
    Items items;
    for (int row = 0; row < table->rowCount(); ++row)
        items << table->item(row, 1);
    return items;
}

ForeignHost &host()
{
    static ForeignHost *const current = new ForeignHost;
    return *current;
}

QStringList ForeignHost::called(const char *beginning) const
{
    return calls.filter(QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(beginning)));
}

QString ForeignHost::state() const
{
    QStringList all = entities + groups + QStringList(QString::number(top->currentRow()));
    for (const QTableWidgetItem *item : rowItems(top) + rowItems(chosen))
        all << item->data(Zudunmaf::DmlAttrNameRole).toString()
            << QString::number(item->tableWidget()->isRowHidden(item->row()));
    return all.join('|');
}

QTableWidgetItem *appendRow(QTableWidget *table, const QTableWidgetItem &item)
{
    const int row = table->rowCount();
    table->insertRow(row);
    table->setItem(row, 0, item.clone());
    table->setItem(row, 1, item.clone());
    return table->item(row, 1);
}

TvxDataItem::TvxDataItem(const QString &text, QVariant data, int did)
    : m_text(text)
    , m_data(data)
    , m_did(did)
{
}

Dialog::TvxAttributesSelectionDialog(int did, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , d(new Private)
{
    host().note("base", did);
    host().top = new QTableWidget(0, 2, this);
    host().chosen = new QTableWidget(0, 2, this);
}

Dialog::~TvxAttributesSelectionDialog()
{
    qDeleteAll(*d);
    delete d;
}

void Dialog::fillEntityList(const QList<TvxDataItem *> &items)
{
    host().note("fillEntityList", items.size());
    *d << items;
    for (const TvxDataItem *item : items) {
        const QStringList parts{item->text(), item->data().toString(), item->data().typeName()};
        host().entities << parts.join(' ') + ' ' + QString::number(item->did());
    }
}

void Dialog::fillAttributeList(const Items &items)
{
    host().note("fillAttributeList");
    host().top->setRowCount(0);
    for (const QTableWidgetItem *item : items)
        appendRow(host().top, *item);
}

Items Dialog::getTopListItems(bool visibleOnly) const
{
    host().note("getTopListItems", visibleOnly);
    Items items = rowItems(host().top);
    if (host().shuffle)
        std::shuffle(items.begin(), items.end(), std::minstd_rand(7));
    return items;
}

QTableWidgetItem *Dialog::findItemByAttrName(const QString &name)
{
    host().note("findItemByAttrName", name);
    for (QTableWidgetItem *item : rowItems(host().top)) {
        if (item->data(Zudunmaf::DmlAttrNameRole).toString() == name)
            return item;
    }
    return nullptr;
}

/// An operation that records its call with the arguments `noted`, and then does `effect`.
#define NOTED_AS(noted, type, operation, effect)                                                             \
    type Dialog::operation                                                                                   \
    {                                                                                                        \
        host().note noted;                                                                                   \
        effect;                                                                                              \
    }
#define NOTED(type, operation, effect) NOTED_AS((__func__), type, operation, effect)

NOTED(void, fillGroupsList(const QStringList &groups), host().groups = groups)
NOTED(void, addButtonClickedCB(QTableWidgetItem *), )
NOTED(void, removeButtonClickedCB(QTableWidgetItem *), )
NOTED(void, connectSignal2Slots(), )
NOTED(void, editCurrentItem(), )
NOTED(void, closeEvent(QCloseEvent *event), QDialog::closeEvent(event))
NOTED(void, setFirstVisibleItemAsCurrent(), host().top->setCurrentCell(-1, -1))
NOTED(void, setItemDelegate(QStyledItemDelegate *delegate), host().delegate = delegate)
NOTED(void, setCustomContextMenu(QMenu *menu), host().menu = menu)
NOTED(int, getEntityDID() const, return host().did)
NOTED(int, getSelectedEntityMask() const, return host().mask)
NOTED(QString, getSelectedGroupName() const, return host().group)
NOTED(QString, getUserFilterText(), return host().text)
NOTED(int, displayUnits(), return host().units)
NOTED(Items, getChosenList() const, return rowItems(host().chosen))
NOTED(Items, getItemsForContextMenuCallback(), return host().menuItems)
NOTED_AS((__func__, row, on), void, setTopViewRowsVisiblity(int row, bool on),
         host().top->setRowHidden(row, !on))
NOTED_AS((__func__, item->row()), void, setTopViewCurrentItem(QTableWidgetItem *item), )
NOTED_AS((__func__, which, name), bool, setButtonPixmap(Buttons_Enum which, const QString &name),
         return false)
NOTED_AS((__func__, column, title), void, setHeaderTitle(int column, const QString &title), )
NOTED_AS((__func__, units), void, setDisplayUnits(int units), host().units = units)
