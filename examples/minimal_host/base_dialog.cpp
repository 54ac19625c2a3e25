// A minimal base dialog: two tables, two buttons, combo boxes for entity and group, a line edit for the filter text, OK and
// Cancel.
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/items/attr_roles.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

TvxDataItem::TvxDataItem(const QString &text, QVariant data, int did)
    : m_text(text)
    , m_data(data)
    , m_did(did)
{
}

class TvxAttributesSelectionDialog::Private
{
public:
    int did;
    int units = -1;
    bool isNarrowed = false; // the top table was filled under a filter and lacks rows
    QComboBox *entities = new QComboBox;
    QComboBox *groups = new QComboBox;
    QLineEdit *filter = new QLineEdit;
    QTableWidget *top = new QTableWidget(0, 2);
    QPushButton *add = new QPushButton(QStringLiteral("Add"));
    QPushButton *remove = new QPushButton(QStringLiteral("Remove"));
    QTableWidget *chosen = new QTableWidget(0, 2);
    QMenu *menu = nullptr;

    static void append(QTableWidget *table, const QTableWidgetItem *item)
    {
        const int row = table->rowCount();
        table->insertRow(row);
        table->setItem(row, 0, item->clone());
        table->setItem(row, 1, item->clone());
    }

    static QList<QTableWidgetItem *> items(const QTableWidget *table, bool visibleOnly = false)
    {
        QList<QTableWidgetItem *> result;
        for (int row = 0; row < table->rowCount(); ++row) {
            if (!visibleOnly || !table->isRowHidden(row))
                result << table->item(row, 1);
        }
        return result;
    }

    static QList<QTableWidgetItem *> selectedItems(const QTableWidget *table)
    {
        QList<QTableWidgetItem *> result;
        for (QTableWidgetItem *item : items(table, true)) {
            if (item->isSelected())
                result << item;
        }
        return result;
    }

    static QTableWidgetItem *itemWithName(const QTableWidget *table, const QString &name)
    {
        for (QTableWidgetItem *item : items(table)) {
            if (item->data(Zudunmaf::DmlAttrNameRole).toString() == name)
                return item;
        }
        return nullptr;
    }

    // An attribute takes several conditions, but one value. Only items of conditions answer this role.
    bool canBeAdded(const QTableWidgetItem *item) const
    {
        return item->data(Zudunmaf::DmlAttrFilterTextRole).isValid() ||
               !itemWithName(chosen, item->data(Zudunmaf::DmlAttrNameRole).toString());
    }
};

TvxAttributesSelectionDialog::TvxAttributesSelectionDialog(int did, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , d(new Private)
{
    d->did = did;
    auto *ending = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(ending, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ending, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    for (QWidget *widget : std::initializer_list<QWidget *>{d->entities, d->groups, d->filter, d->top, d->add,
                                                            d->remove, d->chosen, ending})
        layout->addWidget(widget);
    d->top->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (QTableWidget *table : {d->top, d->chosen})
        table->setSelectionBehavior(QAbstractItemView::SelectRows);
    // Wide enough for the two boxes of a range.
    d->chosen->horizontalHeader()->setStretchLastSection(true);
    d->chosen->setContextMenuPolicy(Qt::CustomContextMenu);
}

void TvxAttributesSelectionDialog::connectSignal2Slots()
{
    const auto filter = [this] {
        // filterAttributeList() shows and hides rows, and cannot bring back one that a fill has left out.
        if (d->isNarrowed)
            setDisplayUnits(d->units);
        filterAttributeList();
    };
    connect(d->entities, QOverload<int>::of(&QComboBox::currentIndexChanged), this, filter);
    connect(d->groups, QOverload<int>::of(&QComboBox::currentIndexChanged), this, filter);
    connect(d->filter, &QLineEdit::textChanged, this, filter);
    connect(d->add, &QPushButton::clicked, this, [this] {
        // Collected first: the hook changes the selection.
        for (QTableWidgetItem *item : Private::selectedItems(d->top)) {
            if (d->canBeAdded(item)) {
                Private::append(d->chosen, item);
                addButtonClickedCB(item);
            }
        }
    });
    connect(d->remove, &QPushButton::clicked, this, [this] {
        for (QTableWidgetItem *item : Private::selectedItems(d->chosen)) {
            removeButtonClickedCB(item); // reads the item
            d->chosen->removeRow(item->row());
        }
    });
    connect(d->chosen, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        if (d->menu && d->chosen->currentRow() >= 0)
            d->menu->popup(d->chosen->viewport()->mapToGlobal(position));
    });
}

void TvxAttributesSelectionDialog::fillEntityList(const QList<TvxDataItem *> &items)
{
    d->entities->clear();
    for (const TvxDataItem *item : items)
        d->entities->addItem(item->text(), item->data());
    qDeleteAll(items); // their texts and data have been copied
    d->entities->setCurrentIndex(d->entities->count() - 1);
}

void TvxAttributesSelectionDialog::fillAttributeList(const QList<QTableWidgetItem *> &items)
{
    d->top->setRowCount(0); // a row that is used again would stay hidden
    for (const QTableWidgetItem *item : items)
        Private::append(d->top, item);
    d->isNarrowed = d->entities->currentIndex() + 1 < d->entities->count() || d->groups->currentIndex() > 0 ||
                    !d->filter->text().isEmpty();
}

// clang-format off
TvxAttributesSelectionDialog::~TvxAttributesSelectionDialog() { delete d; }
void TvxAttributesSelectionDialog::fillGroupsList(const QStringList &groups) { d->groups->clear(); d->groups->addItems(groups); }
void TvxAttributesSelectionDialog::setDisplayUnits(int units) { d->units = units; }
int TvxAttributesSelectionDialog::displayUnits() { return d->units; }
void TvxAttributesSelectionDialog::addButtonClickedCB(QTableWidgetItem *) {}
void TvxAttributesSelectionDialog::removeButtonClickedCB(QTableWidgetItem *) {}
int TvxAttributesSelectionDialog::getEntityDID() const { return d->did; }
int TvxAttributesSelectionDialog::getSelectedEntityMask() const { return int(d->entities->currentData().toUInt()); }
QString TvxAttributesSelectionDialog::getSelectedGroupName() const { return d->groups->currentText(); }
QString TvxAttributesSelectionDialog::getUserFilterText() { return d->filter->text(); }
QList<QTableWidgetItem *> TvxAttributesSelectionDialog::getTopListItems(bool visibleOnly) const { return Private::items(d->top, visibleOnly); }
QList<QTableWidgetItem *> TvxAttributesSelectionDialog::getChosenList() const { return Private::items(d->chosen); }
void TvxAttributesSelectionDialog::setTopViewRowsVisiblity(int row, bool visible) { d->top->setRowHidden(row, !visible); }
void TvxAttributesSelectionDialog::setTopViewCurrentItem(QTableWidgetItem *item) { d->top->setCurrentItem(item); }
void TvxAttributesSelectionDialog::setItemDelegate(QStyledItemDelegate *delegate) { d->chosen->setItemDelegate(delegate); }
bool TvxAttributesSelectionDialog::setButtonPixmap(Buttons_Enum, const QString &) { return false; }
void TvxAttributesSelectionDialog::setCustomContextMenu(QMenu *menu) { d->menu = menu; }
void TvxAttributesSelectionDialog::editCurrentItem() { d->chosen->editItem(d->chosen->item(d->chosen->currentRow(), 1)); }
void TvxAttributesSelectionDialog::closeEvent(QCloseEvent *event) { QDialog::closeEvent(event); }
// clang-format on

void TvxAttributesSelectionDialog::setHeaderTitle(int column, const QString &title)
{
    for (QTableWidget *table : {d->top, d->chosen})
        table->setHorizontalHeaderItem(column, new QTableWidgetItem(title));
}

void TvxAttributesSelectionDialog::setFirstVisibleItemAsCurrent()
{
    int row = 0;
    while (row < d->top->rowCount() && d->top->isRowHidden(row))
        ++row;
    d->top->setCurrentItem(d->top->item(row, 0));
}

QTableWidgetItem *TvxAttributesSelectionDialog::findItemByAttrName(const QString &name)
{
    return Private::itemWithName(d->top, name);
}

QList<QTableWidgetItem *> TvxAttributesSelectionDialog::getItemsForContextMenuCallback()
{
    return Private::selectedItems(d->chosen);
}
