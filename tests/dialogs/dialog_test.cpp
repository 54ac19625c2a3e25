#include "dialog_test.h"

#include "commit_watch.h"
#include "dml/dml_control.h"
#include "gdm/gdm_qt.h"
#include "gen/gen_control.h"

using namespace Zudunmaf;

namespace
{

QtMessageHandler g_forward = nullptr;
QStringList g_warnings;

void watchMessages(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // The offscreen platform's own limitation.
    const bool expected = text.startsWith(QLatin1String("This plugin does not support "));
    if (type != QtDebugMsg && type != QtInfoMsg && !expected)
        g_warnings << text;
    g_forward(type, context, text);
}

/// A dialog that records the calls of its base.
template <class Dialog>
class Watched : public Dialog
{
public:
    using Dialog::Dialog;
    void filterAttributeList() override
    {
        DialogTest::events << "pass";
        Dialog::filterAttributeList();
        DialogTest::currentAfterPass =
            DialogTest::currentName(this->template findChild<QTableWidget *>(QStringLiteral("topView")));
    }
    void reject() override
    {
        if (!DialogTest::refusesToClose)
            Dialog::reject();
    }
    void addButtonClickedCB(QTableWidgetItem *item) override
    {
        note('+', "topView", *item);
        Dialog::addButtonClickedCB(item);
        if (DialogTest::afterHook)
            DialogTest::afterHook();
    }
    void removeButtonClickedCB(QTableWidgetItem *item) override
    {
        note('-', "chosenList", *item);
        Dialog::removeButtonClickedCB(item);
        if (DialogTest::afterHook)
            DialogTest::afterHook();
    }

private:
    /// "!" in place of the sign if the item is no longer in its table.
    void note(char sign, const char *table, const QTableWidgetItem &item)
    {
        const bool there = item.tableWidget() && item.tableWidget()->objectName() == QLatin1String(table);
        DialogTest::events << QLatin1Char(there ? sign : '!') + item.data(DmlAttrNameRole).toString();
    }
};

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
    afterHook = nullptr;
    refusesToClose = false;
    atCommit = nullptr;
    dialog.reset();
    dml::unloadAll();
    gen::setLanguage(QString());
    gen::setConfigurationFile(QString());
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
    static_cast<DialogUser &>(*this) = DialogUser(*dialog);
    if (!missing().isEmpty())
        qFatal("the dialog has no %s", qPrintable(missing()));
    dialog->setItemDelegate(new CommitWatch(chosenList->itemDelegate(), [](QWidget *, const QModelIndex &) {
        events << "commit";
        if (atCommit)
            atCommit();
    }));
    connect(dialog.get(), &QDialog::accepted, this, [this] { events << "accepted"; });
    connect(dialog.get(), &QDialog::rejected, this, [this] { events << "rejected"; });
    auto *menu = dialog->findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
    connect(menu, &QMenu::aboutToShow, this, [this] { events << "menu"; });
    // A host may ask the user before an action changes a value.
    menu->disconnect(dialog.get());
    connect(menu, &QMenu::triggered, this, [] { QCoreApplication::processEvents(); });
    connect(menu, SIGNAL(triggered(QAction *)), dialog.get(), SLOT(contextMenu_triggered(QAction *)));
}

bool DialogTest::open(int did)
{
    create(did);
    return show();
}

void DialogTest::loadDictionary(const QByteArray &attributes)
{
    QString error;
    QVERIFY2(dml::loadJson(R"({"dictionaries": [{"id": 7, "attributes": [)" + attributes + "]}]}",
                           QStringLiteral("here"), &error),
             qPrintable(error));
    QVERIFY(open(7));
}

void DialogTest::pressKeys(const QString &keys) const
{
    for (const QChar key : keys) {
        if (key == '=')
            press(Qt::Key_A, Qt::ControlModifier);
        else if (key == '<')
            press(Qt::Key_Delete);
        else if (key == 'v' || key == '^')
            press(key == 'v' ? Qt::Key_Down : Qt::Key_Up);
        else
            type(key);
    }
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
