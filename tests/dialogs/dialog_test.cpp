#include "dialog_test.h"

#include "dml/dml_control.h"
#include "gdm/gdm_qt.h"
#include "gen/gen_control.h"

#include <QHeaderView>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QWindow>

using namespace Zudunmaf;

namespace
{

constexpr char Named[] = R"(
{"name":"plated","group":"Holes","type":"boolean","entities":"all","default":true},
{"name":"note","prompt":"Note","group":"Texts","type":"text","entities":"all","default":"none"},
{"name":"colour","group":"Texts","type":"text","entities":"all","default":"blue","choices":["red","green"]},
{"name":"finish","group":"Board","type":"option","entities":"all","default":"matt","options":["matt","gloss"]},
{"name":"width","prompt":"Width of it","type":"integer","entities":"all","default":7,"min":1,"max":100},
{"name":"depth","type":"float","entities":"all","default":0.5,"min":-100,"max":2000,"units":"mm"},
{"name":"%1","type":"integer","entities":"all","default":0,"min":-2147483648,"max":2147483647},
{"name":"stackup","group":"Board","type":"text","entities":["layer"]})";
constexpr char Pad[] =
    R"(,{"name":"pad_%1","group":"Pads","type":"integer","entities":"all","default":%2,"min":0,"max":9})";

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
    using Option = QStyleOptionViewItem;
    CommitWatch(QAbstractItemDelegate *inner, QStringList *events, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_inner(inner)
        , m_events(events)
    {
    }
    QWidget *createEditor(QWidget *parent, const Option &option, const QModelIndex &index) const override
    {
        return m_inner->createEditor(parent, option, index);
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        m_inner->setEditorData(editor, index);
    }
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        *m_events << QStringLiteral("commit");
        m_inner->setModelData(editor, model, index);
    }
    QSize sizeHint(const Option &option, const QModelIndex &index) const override
    {
        return m_inner->sizeHint(option, index);
    }

private:
    QAbstractItemDelegate *m_inner;
    QStringList *m_events;
};

/// A dialog that notes what its base calls.
template <class Dialog>
class Watched : public Dialog
{
public:
    Watched(int did, QStringList *events)
        : Dialog(did)
        , m_events(events)
    {
    }
    void filterAttributeList() override
    {
        *m_events << QStringLiteral("pass");
        Dialog::filterAttributeList();
    }
    void addButtonClickedCB(QTableWidgetItem *item) override
    {
        note('+', "topView", *item);
        Dialog::addButtonClickedCB(item);
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
        *m_events << QLatin1Char(there ? sign : '!') + item.data(DmlAttrNameRole).toString();
    }

    QStringList *m_events;
};

} // namespace

void DialogTest::initTestCase()
{
    g_forward = qInstallMessageHandler(watchMessages);
    gen::setCatalogueDirectory(QStringLiteral(ZUDUNMAF_CATALOGUES));
}

void DialogTest::init()
{
    QString attributes = QString(Named).arg(LongName);
    for (int i = 0; i < 40; ++i)
        attributes += QString(Pad).arg(i, 2, 10, QLatin1Char('0')).arg(i % 3);
    const QString json = R"({"dictionaries":[{"id":0,"attributes":[)" + attributes + "]}]}";
    QString error;
    QVERIFY2(dml::loadJson(json.toUtf8(), QStringLiteral("inline"), &error), qPrintable(error));
    events.clear();
    g_warnings.clear();
}

void DialogTest::cleanup()
{
    dialog.reset();
    dml::unloadAll();
    gen::setLanguage(QString());
    QLocale::setDefault(QLocale::system());
    QCOMPARE(g_warnings, QStringList());
}

void DialogTest::addRows(std::initializer_list<const char *> ways)
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("way");
    for (const char *way : ways) {
        QTest::addRow("filter %s", way) << int(Filter) << way;
        QTest::addRow("assign %s", way) << int(Assign) << way;
    }
}

DialogTest::Kind DialogTest::kind()
{
    QFETCH(int, kind);
    return Kind(kind);
}

QString DialogTest::way()
{
    QFETCH(QString, way);
    return way;
}

QString DialogTest::pick(const char *inFilter, const char *inAssign)
{
    return QLatin1String(kind() == Filter ? inFilter : inAssign);
}

void DialogTest::create(Kind kind, int did)
{
    if (kind == Filter)
        dialog = std::make_unique<Watched<AttributesFilterDialog>>(did, &events);
    else
        dialog = std::make_unique<Watched<FeatureAttributesDialog>>(did, &events);
    const auto find = [this](const char *name, auto *widget) {
        *widget = dialog->findChild<std::remove_pointer_t<decltype(widget)>>(QLatin1String(name));
        if (!*widget)
            qFatal("the dialog has no %s", name);
    };
    find("entityList", &entityList);
    find("groupList", &groupList);
    find("filterText", &filterText);
    find("topView", &topView);
    find("chosenList", &chosenList);
    find("addButton", &addButton);
    find("removeButton", &removeButton);
    find("undoButton", &undoButton);
    find("clearButton", &clearButton);
    find("offeredLabel", &offeredLabel);
    find("chosenLabel", &chosenLabel);
    find("description", &description);
    find("preview", &preview);
    dialog->setItemDelegate(new CommitWatch(chosenList->itemDelegate(), &events, dialog.get()));
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

bool DialogTest::open(Kind kind, int did)
{
    create(kind, did);
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

void DialogTest::type(const QString &text) const
{
    for (const QChar c : text) {
        if (c == QLatin1Char('\t'))
            press(Qt::Key_Tab);
        else
            QTest::keyClick(dialog->windowHandle(), c.toLatin1());
    }
    QCoreApplication::processEvents();
}

bool DialogTest::pressMnemonic(const QString &text) const
{
    const QString letter = QKeySequence::mnemonic(text).toString(QKeySequence::PortableText).right(1);
    if (letter.isEmpty())
        return false;
    press(letter.at(0).unicode(), Qt::AltModifier);
    // A button stays down for a moment before it counts as clicked.
    return QTest::qWaitFor([this] {
        const auto buttons = dialog->findChildren<QPushButton *>();
        return std::none_of(buttons.begin(), buttons.end(), [](auto *button) { return button->isDown(); });
    });
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

void DialogTest::turnWheelOver(QWidget *widget) const
{
    const QPoint place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
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
    return dialog->screen()
        ->grabWindow(dialog->winId(), place.x(), place.y(), place.width(), place.height())
        .toImage();
}

QPushButton *DialogTest::standardButton(QDialogButtonBox::StandardButton which) const
{
    return dialog->findChild<QDialogButtonBox *>()->button(which);
}
