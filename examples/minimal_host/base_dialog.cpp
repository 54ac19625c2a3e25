// A minimal base dialog: two tables, two buttons, combo boxes for entity and group, a line edit for the filter text.
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

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

    static QList<QTableWidgetItem *> items(const QTableWidget *table)
    {
        QList<QTableWidgetItem *> result;
        for (int row = 0; row < table->rowCount(); ++row)
            result << table->item(row, 1);
        return result;
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
}

void TvxAttributesSelectionDialog::connectSignal2Slots()
{
    const auto filter = [this] { filterAttributeList(); };
    connect(d->entities, QOverload<int>::of(&QComboBox::currentIndexChanged), this, filter);
    connect(d->groups, QOverload<int>::of(&QComboBox::currentIndexChanged), this, filter);
    connect(d->filter, &QLineEdit::textChanged, this, filter);
    connect(d->add, &QPushButton::clicked, this, [this] {
        if (QTableWidgetItem *item = d->top->item(d->top->currentRow(), 1)) {
            Private::append(d->chosen, item);
            addButtonClickedCB(item);
        }
    });
    connect(d->remove, &QPushButton::clicked, this, [this] {
        const int row = d->chosen->currentRow();
        if (QTableWidgetItem *item = d->chosen->item(row, 1)) {
            removeButtonClickedCB(item);
            d->chosen->removeRow(row);
        }
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
    d->top->setRowCount(0);
    for (const QTableWidgetItem *item : items)
        Private::append(d->top, item);
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
QList<QTableWidgetItem *> TvxAttributesSelectionDialog::getTopListItems(bool) const { return Private::items(d->top); }
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
    for (QTableWidgetItem *item : Private::items(d->top)) {
        if (item->data(137).toString() == name)
            return item;
    }
    return nullptr;
}

QList<QTableWidgetItem *> TvxAttributesSelectionDialog::getItemsForContextMenuCallback()
{
    QTableWidgetItem *item = d->chosen->item(d->chosen->currentRow(), 1);
    return item ? QList<QTableWidgetItem *>{item} : QList<QTableWidgetItem *>();
}
