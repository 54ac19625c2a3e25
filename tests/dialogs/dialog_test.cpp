#include "dialog_test.h"

#include "dml/dml_control.h"
#include "gdm/gdm_qt.h"
#include "gen/gen_control.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QWindow>

using namespace Zudunmaf;

namespace
{

QtMessageHandler g_forward = nullptr;
QStringList g_warnings;

void watchMessages(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // What the platform without a display says of itself tells nothing of the dialogs.
    const bool expected = text.startsWith(QLatin1String("This plugin does not support "));
    if (type != QtDebugMsg && type != QtInfoMsg && !expected)
        g_warnings << text;
    g_forward(type, context, text);
}

/// Passes every call on to the library's delegate and notes the commits.
class CommitWatch : public QStyledItemDelegate
{
public:
    explicit CommitWatch(QAbstractItemDelegate *inner)
        : QStyledItemDelegate(inner)
        , m_inner(inner)
    {
    }
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        return m_inner->createEditor(parent, option, index);
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        m_inner->setEditorData(editor, index);
    }
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        DialogTest::events << "commit";
        m_inner->setModelData(editor, model, index);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return m_inner->sizeHint(option, index);
    }

private:
    QAbstractItemDelegate *m_inner;
};

/// A dialog that notes what its base calls.
template <class Dialog>
class Watched : public Dialog
{
public:
    using Dialog::Dialog;
    void filterAttributeList() override
    {
        DialogTest::events << "pass";
        Dialog::filterAttributeList();
    }
    void addButtonClickedCB(QTableWidgetItem *item) override
    {
        note('+', "topView", *item);
        Dialog::addButtonClickedCB(item);
        if (DialogTest::afterAdding)
            DialogTest::afterAdding();
    }
    void removeButtonClickedCB(QTableWidgetItem *item) override
    {
        note('-', "chosenList", *item);
        Dialog::removeButtonClickedCB(item);
    }

private:
    /// An item that has left its table would be handed out too late.
    void note(char sign, const char *table, const QTableWidgetItem &item)
    {
        const bool there = item.tableWidget() && item.tableWidget()->objectName() == QLatin1String(table);
        DialogTest::events << QLatin1Char(there ? sign : '!') + item.data(DmlAttrNameRole).toString();
    }
};

template <class Widget>
void find(const QDialog &dialog, std::initializer_list<std::pair<const char *, Widget **>> widgets)
{
    for (const auto &[name, widget] : widgets) {
        *widget = dialog.findChild<Widget *>(QLatin1String(name));
        if (!*widget)
            qFatal("the dialog has no %s", name);
    }
}

} // namespace

void DialogTest::initTestCase_data()
{
    QTest::addColumn<bool>("inFilter");
    QTest::newRow("filter") << true;
    QTest::newRow("assign") << false;
}

void DialogTest::initTestCase()
{
    g_forward = qInstallMessageHandler(watchMessages);
    QApplication::setStyle(QStringLiteral("Fusion"));
    gen::setCatalogueDirectory(QStringLiteral(ZUDUNMAF_CATALOGUES));
}

void DialogTest::init()
{
    QString error;
    QVERIFY2(dml::loadFile(QStringLiteral(ZUDUNMAF_DICTIONARY), &error), qPrintable(error));
    g_warnings.clear();
    QVERIFY(open());
    events.clear();
}

void DialogTest::cleanup()
{
    afterAdding = nullptr;
    dialog.reset();
    dml::unloadAll();
    gen::setLanguage(QString());
    QLocale::setDefault(QLocale::system());
    QCOMPARE(g_warnings, QStringList());
}

bool DialogTest::inFilter()
{
    QFETCH_GLOBAL(bool, inFilter);
    return inFilter;
}

QString DialogTest::pick(const char *ofFilter, const char *ofAssign)
{
    return QLatin1String(inFilter() ? ofFilter : ofAssign);
}

void DialogTest::addWays(std::initializer_list<const char *> ways)
{
    QTest::addColumn<QString>("way");
    for (const char *way : ways)
        QTest::newRow(way) << way;
}

QString DialogTest::way()
{
    QFETCH(QString, way);
    return way;
}

void DialogTest::create(int did)
{
    dialog.reset();
    if (inFilter())
        dialog = std::make_unique<Watched<AttributesFilterDialog>>(did);
    else
        dialog = std::make_unique<Watched<FeatureAttributesDialog>>(did);
    find<QComboBox>(*dialog, {{"entityList", &entityList}, {"groupList", &groupList}});
    find<QLineEdit>(*dialog, {{"filterText", &filterText}});
    find<QTableWidget>(*dialog, {{"topView", &topView}, {"chosenList", &chosenList}});
    find<QPushButton>(*dialog, {{"addButton", &addButton}, {"removeButton", &removeButton}});
    find<QPushButton>(*dialog, {{"undoButton", &undoButton}, {"clearButton", &clearButton}});
    find<QLabel>(*dialog, {{"offeredLabel", &offeredLabel}, {"chosenLabel", &chosenLabel}});
    find<QLabel>(*dialog, {{"description", &description}, {"preview", &preview}});
    const auto *standardButtons = dialog->findChild<QDialogButtonBox *>();
    okButton = standardButtons->button(QDialogButtonBox::Ok);
    cancelButton = standardButtons->button(QDialogButtonBox::Cancel);
    dialog->setItemDelegate(new CommitWatch(chosenList->itemDelegate()));
    connect(dialog.get(), &QDialog::accepted, this, [this] { events << "accepted"; });
    connect(dialog.get(), &QDialog::rejected, this, [this] { events << "rejected"; });
    auto *menu = dialog->findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
    connect(menu, &QMenu::aboutToShow, this, [this] { events << "menu"; });
}

bool DialogTest::show()
{
    dialog->show();
    dialog->activateWindow();
    return QTest::qWaitForWindowActive(dialog.get()) && QApplication::focusWidget();
}

bool DialogTest::open(int did)
{
    create(did);
    return show();
}

void DialogTest::press(int key, Qt::KeyboardModifiers modifiers) const
{
    if (QWidget *popup = QApplication::activePopupWidget())
        QTest::keyClick(popup, Qt::Key(key), modifiers);
    else
        QTest::keyClick(dialog->windowHandle(), Qt::Key(key), modifiers);
    QCoreApplication::processEvents();
}

void DialogTest::press(std::initializer_list<int> keys) const
{
    for (int key : keys)
        press(key);
}

void DialogTest::type(const QString &text) const
{
    for (const QChar c : text)
        QTest::keyClick(dialog->windowHandle(), c.toLatin1());
    QCoreApplication::processEvents();
}

void DialogTest::clickAt(const QWidget *widget, const QPoint &place, Qt::KeyboardModifiers modifiers,
                         Qt::MouseButton button) const
{
    QTest::mouseClick(dialog->windowHandle(), button, modifiers, widget->mapTo(dialog.get(), place));
    QCoreApplication::processEvents();
}

void DialogTest::click(QTableWidget *table, const QString &attribute, int column,
                       Qt::KeyboardModifiers modifiers, Qt::MouseButton button) const
{
    table->scrollToItem(table->item(rowOf(table, attribute), Name));
    clickAt(table->viewport(), cellRect(table, attribute, column).center(), modifiers, button);
}

void DialogTest::doubleClick(QTableWidget *table, const QString &attribute, int column) const
{
    click(table, attribute, column);
    QTest::mouseDClick(dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       table->viewport()->mapTo(dialog.get(), cellRect(table, attribute, column).center()));
    QCoreApplication::processEvents();
}

void DialogTest::clickHeader(const QTableWidget *table, int column) const
{
    const QHeaderView *header = table->horizontalHeader();
    clickAt(header->viewport(), QPoint(header->sectionViewportPosition(column) + 20, header->height() / 2));
}

void DialogTest::setFilter(const QString &text) const
{
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Delete);
    type(text);
}

void DialogTest::choose(const QStringList &attributes) const
{
    for (const QString &attribute : attributes) {
        click(topView, attribute);
        press(Qt::Key_Return);
    }
    click(chosenList, nameAt(chosenList, 0));
}

void DialogTest::enter(const QString &attribute, const QString &keys) const
{
    click(chosenList, attribute);
    press(Qt::Key_F2);
    type(keys);
    press(Qt::Key_Return);
}

QString DialogTest::nameAt(const QTableWidget *table, int row)
{
    const QTableWidgetItem *item = table->item(row, Value);
    return item ? item->data(DmlAttrNameRole).toString() : QString();
}

int DialogTest::rowOf(const QTableWidget *table, const QString &attribute)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (nameAt(table, row) == attribute)
            return row;
    }
    return -1;
}

QStringList DialogTest::visibleNames(const QTableWidget *table, bool selectedOnly)
{
    QStringList names;
    for (int row = 0; row < table->rowCount(); ++row) {
        const bool counts = !selectedOnly || table->selectionModel()->isRowSelected(row, QModelIndex());
        if (counts && !table->isRowHidden(row))
            names << nameAt(table, row);
    }
    return names;
}

QRect DialogTest::cellRect(const QTableWidget *table, const QString &attribute, int column)
{
    return table->visualItemRect(table->item(rowOf(table, attribute), column));
}

QWidget *DialogTest::editor() const
{
    for (int cell = 0; cell < 2 * chosenList->rowCount(); ++cell) {
        if (QWidget *found = chosenList->indexWidget(chosenList->model()->index(cell / 2, cell % 2)))
            return found;
    }
    return nullptr;
}

QStringList DialogTest::results() const
{
    if (const auto *filter = dynamic_cast<AttributesFilterDialog *>(dialog.get()))
        return filter->getFiltersAsStringList();
    QStringList values;
    for (const QTableWidgetItem *item : dialog->getChosenList())
        values << dynamic_cast<const DmlAttrLWI &>(*item).valueAsString();
    return values;
}

QList<QByteArray> DialogTest::records() const
{
    QList<QByteArray> records;
    for (const QTableWidgetItem *item : dialog->getChosenList()) {
        const QVariant value = dynamic_cast<const DmlAttrLWI &>(*item).attrValue();
        if (value.userType() == QMetaType::VoidStar)
            records << QByteArray(static_cast<const char *>(value.value<void *>()), sizeof(DmlAttrValue));
        else
            records << value.typeName() + value.toString().toUtf8();
    }
    return records;
}

QImage DialogTest::screenshot(const QWidget *widget, const QRect &area) const
{
    QTest::qWait(20);
    const QRect place(widget->mapTo(dialog.get(), area.topLeft()), area.size());
    return dialog->screen()->grabWindow(dialog->winId()).toImage().copy(place);
}
