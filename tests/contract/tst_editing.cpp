#include "contract_test.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStandardItemModel>

using namespace Zudunmaf;

/// The delegate of a dialog, over the items of a real table. Editors are opened over column 0 of the last row and edit its
/// item of column 1. No commit may go through the model.
class EditingTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ContractTest::init();
        m_dialog.reset(new AttributesFilterDialog);
        host().calls.clear();
    }
    void cleanup()
    {
        m_dialog.reset();
        ContractTest::cleanup();
    }

    void delegateOfADialog()
    {
        add<AttrFilterLWI>(text("note", "x"));
        QVERIFY(host().delegate->parent() == m_dialog.get());
        const QSize plain = QStyledItemDelegate().sizeHint({}, index());
        QCOMPARE(host().delegate->sizeHint({}, index()), plain + QSize(0, 4));
    }

    void noEditor()
    {
        FeatureAttrLWI none, null, number;
        null.setDmlAttribute(pointer(nullptr));
        number.setDmlAttribute(7);
        QSpinBox box;
        const QTableWidgetItem stranger;
        for (const QTableWidgetItem *item :
             QList<const QTableWidgetItem *>{&stranger, &none, &null, &number}) {
            appendRow(host().chosen, *item);
            QVERIFY(!edit<QWidget>());
            commit(&box);
            commit(nullptr);
        }
        const QStandardItemModel foreign(1, 2);
        for (const QModelIndex &astray : {QModelIndex(), foreign.index(0, 1)})
            QVERIFY(!host().delegate->createEditor(host().chosen, {}, astray));
        for (const DmlAttrDef *attribute : {&definition(DmlAttrBoolean, "plated"), &definition(9, "odd")}) {
            add<AttrFilterLWI>(*attribute);
            QVERIFY(!edit<QWidget>());
            add<FeatureAttrLWI>(*attribute);
            QVERIFY(!edit<QWidget>());
        }
    }

    void conditionOutsideOfTheLimits()
    {
        const AttrFilterLWI *width = add<AttrFilterLWI>(integer("width", 5, 9, 7));
        record(*width).isSet = record(*width).intLow = 1;
        record(*width).intHigh = 99;
        commit(edit<QWidget>().get());
        QCOMPARE(width->data(DmlAttrValueRole).toPoint(), QPoint(5, 9));
    }

    void optionCondition()
    {
        const AttrFilterLWI *item = add<AttrFilterLWI>(option("colour", 0));
        const auto box = edit<QComboBox>();
        QVERIFY(!box->isEditable());
        for (int index : {0, 2, -1}) { // the box opens on the first entry
            box->setCurrentIndex(index);
            commit(box.get());
            QCOMPARE(bytes(*item).left(20), bytesOf(0, int(DmlAttrOption), 0, int(index >= 0), index));
            load(box.get());
            QCOMPARE(box->currentIndex(), qMax(index, 0));
            QCOMPARE(box->count(), 3);
        }
    }

    void textCondition()
    {
        const AttrFilterLWI *item = add<AttrFilterLWI>(text("note", "x", 3));
        const auto line = edit<QLineEdit>();
        for (const QString &typed :
             {QString(" "), QString("ü").repeated(150), QString(199, 'x'), QString()}) {
            std::memset(record(*item).text, 0x55, 200);
            line->setText(typed);
            commit(line.get());
            const QByteArray head = bytesOf(0, int(DmlAttrText), 0, int(!typed.isEmpty()));
            QCOMPARE(bytes(*item), (head + typed.toUtf8().left(199)).leftJustified(224, '\0'));
        }
        qstrcpy(record(*item).text, "ü");
        QCOMPARE(edit<QLineEdit>()->text(), QString("ü"));
    }

    void rangeEditorsHaveLabelledBoxes()
    {
        const QStringList expected{"From:", "_From", "To:", "_To"};
        for (const DmlAttrDef *attribute : {&integer("width", 5, 9, 7), &real("depth", -1, 9.5, 0)}) {
            add<AttrFilterLWI>(*attribute);
            const auto editor = edit<QWidget>();
            QStringList parts;
            for (int i = 0; i < editor->layout()->count(); ++i) {
                const auto *label = qobject_cast<QLabel *>(editor->layout()->itemAt(i)->widget());
                const QString name = editor->layout()->itemAt(i)->widget()->objectName();
                parts << (label ? label->text() : name.mid(name.indexOf('_')));
            }
            QCOMPARE(parts, expected);
            QVERIFY(editor->autoFillBackground()); // the text of the cell must not shine through
        }
    }

    void floatConditions()
    {
        for (int units : {-1, 0, 1, 2}) { // no code of display units changes a condition
            AttrFilterLWI *depth = add<AttrFilterLWI>(real("depth", -1, 9.5, 0));
            depth->setDisplayUnits(units);
            const auto editor = edit<QWidget>();
            QDoubleSpinBox *to = editor->findChild<QDoubleSpinBox *>("doubleSpinBox_To");
            QCOMPARE(to->text(), QLocale().toString(9.5, 'f', 3));
            editor->findChild<QDoubleSpinBox *>("doubleSpinBox_From")->setValue(7.1);
            to->setValue(-0.3);
            commit(editor.get());
            QCOMPARE(depth->data(DmlAttrValueRole), QVariant(QPointF(double(-0.3f), double(7.1f))));
        }
        QCOMPARE(host().called("conv"), QStringList());
    }

    void untouchedValues()
    {
        const auto check = [this](const DmlAttrDef &attribute, const QVariant &held, const QVariant &stored) {
            FeatureAttrLWI *item = add<FeatureAttrLWI>(attribute);
            item->setAttrValue(held);
            commit(edit<QWidget>().get());
            QCOMPARE(item->attrValue(), stored);
            QCOMPARE(item->attrValue().userType(), stored.userType());
        };
        const DmlAttrDef &note = text("note", nullptr), &choice = text("note", nullptr, 1);
        check(integer("width", 5, 9, 7), 99, 9);
        check(real("depth", 0, 9, 0), 1.23456f, 1.235);
        check(note, QString(), "");
        check(note, QString(300, 'x'), QString(300, 'x'));
        check(choice, QString(), QString()); // an empty box leaves the value
        check(choice, " pink ", " pink ");
        check(choice, " red ", "red");
        check(option("colour", -1), " deep green ", "deep green");
        check(option("colour", -1), "Deep Green", "red");
        check(option("colour", -1), QVariant(), QVariant());
        QCOMPARE(host().called("conv"), QStringList());
    }

    void listsThatAreMissingOrOfNegativeSize()
    {
        DmlAttrDef &missing = option("colour", 1), &negative = option("colour", 0);
        DmlAttrDef &choices = text("note", nullptr, 5);
        missing.optionList = choices.optionList = nullptr;
        negative.optionCount = -5;
        for (const DmlAttrDef *attribute : {&missing, &negative, &choices}) {
            const FeatureAttrLWI *value = add<FeatureAttrLWI>(*attribute);
            const QVariant held = value->attrValue();
            const auto box = edit<QComboBox>();
            QCOMPARE(box->count(), 0);
            commit(box.get());
            QCOMPARE(value->attrValue(), held);
        }
    }

    /// Limits are rounded: the largest entry is above that of the definition, as docs/host-contract.md says.
    void floatInDisplayUnits()
    {
        FeatureAttrLWI *item = add<FeatureAttrLWI>(real("gap", 0.005, 0.1, 0.05f, 2));
        item->setDisplayUnits(1);
        const auto box = edit<QDoubleSpinBox>();
        QCOMPARE(box->text(), QLocale().toString(0.002, 'f', 3));
        QCOMPARE(box->minimum(), 0.0);
        QCOMPARE(box->maximum(), 0.004);
        commit(box.get());
        QCOMPARE(host().calls, QStringList({"convert_2 0.005 2 1", "convert_2 0.1 2 1", "convert_2 0.05 2 1",
                                            "convert null 2 1", "convert_f 0.002 2 101"}));
        QCOMPARE(item->attrValue().userType(), int(QMetaType::Double));
        QCOMPARE(item->attrValue().toFloat(), 0.0508f);
        box->setValue(box->maximum());
        commit(box.get());
        QCOMPARE(item->attrValue().toFloat(), 0.1016f);
    }

    void foreignEditorLeavesTheItem()
    {
        QWidget widget;
        QLineEdit line("foreign");
        for (const DmlAttrDef *attribute : eachType()) {
            QWidget *foreign = attribute->type == DmlAttrText ? &widget : &line;
            const AttrFilterLWI *condition = add<AttrFilterLWI>(*attribute);
            const QByteArray record = bytes(*condition);
            load(foreign);
            commit(foreign);
            QCOMPARE(bytes(*condition), record);
            const FeatureAttrLWI *value = add<FeatureAttrLWI>(*attribute);
            const QVariant held = value->attrValue();
            load(foreign);
            commit(foreign);
            QCOMPARE(value->attrValue(), held);
        }
    }

    void rangeInPlainView_data()
    {
        // Keys after F2 in column 1; 0 is a click on a button, 1 a click on the label of To.
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<QPoint>("stored");      // low and high bound; null if no condition is set
        QTest::addColumn<QString>("focusOwner"); // afterwards

        const int tab = Qt::Key_Tab, back = Qt::Key_Backtab, five = Qt::Key_5, nine = Qt::Key_9;
        QTest::newRow("button") << QList<int>{five, tab, nine, 0} << QPoint(5, 9) << "button";
        QTest::newRow("Enter in To") << QList<int>{five, tab, nine, Qt::Key_Return} << QPoint(5, 9)
                                     << "table";
        QTest::newRow("Escape in To") << QList<int>{five, tab, nine, Qt::Key_Escape} << QPoint() << "table";
        QTest::newRow("back to From") << QList<int>{tab, nine, back, five, 0} << QPoint(5, 9) << "button";
        QTest::newRow("Tab from To") << QList<int>{five, tab, nine, tab} << QPoint(5, 9)
                                     << "editor of column 0";
        QTest::newRow("Backtab from From") << QList<int>{five, back} << QPoint(5, 99) << "editor of column 0";
        QTest::newRow("label") << QList<int>{five, tab, nine, 1} << QPoint() << "editor of column 1";
    }

    /// The simplest base that a host can have: a QTableWidget with the delegate in it.
    void rangeInPlainView()
    {
        QFETCH(QList<int>, keys);
        const AttrFilterLWI *width = add<AttrFilterLWI>(integer("width", 1, 99, 7));
        QPushButton button(m_dialog.get());
        button.move(300, 300);
        QTableWidget *table = openRange();
        QVERIFY(table);
        const QLabel *label = table->findChild<QLabel *>("label_To");
        QVERIFY(label);
        for (int key : std::as_const(keys)) {
            if (key == 0)
                QTest::mouseClick(&button, Qt::LeftButton);
            else if (key == 1) // through the window, which changes the focus as a user's click does
                QTest::mouseClick(m_dialog->windowHandle(), Qt::LeftButton, {},
                                  label->mapTo(m_dialog.get(), label->rect().center()));
            else
                QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
            QCoreApplication::processEvents(); // the delegate ends an edit by a queued call on Enter
        }
        QTEST(width->data(DmlAttrValueRole).toPoint(), "stored");
        const QWidget *focus = QApplication::focusWidget();
        QString owner = QString("editor of column %1").arg(table->currentColumn());
        if (focus == &button)
            owner = "button";
        else if (focus == table)
            owner = "table";
        QTEST(owner, "focusOwner");
    }

    /// Boxes are deleted one after the other: the focus must have left the second before the first is deleted.
    void rangeDeletedWhileInTo()
    {
        add<AttrFilterLWI>(integer("width", 1, 99, 7));
        QTableWidget *table = openRange();
        QVERIFY(table);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QPointer<QWidget> to = QApplication::focusWidget();
        QCOMPARE(to->objectName(), QString("spinBox_To"));
        table->setRowCount(0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!to);
    }

private:
    /// Shows the dialog with the delegate in its table, and presses F2 in column 1 of the first row. Returns null if the
    /// dialog does not become the active window.
    QTableWidget *openRange()
    {
        QTableWidget *table = host().chosen;
        table->setItemDelegate(host().delegate);
        table->resize(400, 200);
        m_dialog->resize(400, 400);
        m_dialog->show();
        if (!QTest::qWaitForWindowActive(m_dialog.get()))
            return nullptr;
        table->setFocus();
        table->setCurrentCell(0, 1);
        QTest::keyClick(table, Qt::Key_F2);
        return table;
    }
    template <class Item>
    static Item *add(const DmlAttrDef &definition)
    {
        Item item;
        item.setDmlAttribute(pointer(&definition));
        return static_cast<Item *>(appendRow(host().chosen, item));
    }
    static QModelIndex index() { return host().chosen->model()->index(host().chosen->rowCount() - 1, 0); }
    template <class Editor>
    static std::unique_ptr<Editor> edit()
    {
        QWidget *made = host().delegate->createEditor(host().chosen, {}, index());
        load(made);
        return std::unique_ptr<Editor>(static_cast<Editor *>(made));
    }
    static void load(QWidget *editor) { host().delegate->setEditorData(editor, index()); }
    static void commit(QWidget *editor)
    {
        const QSignalSpy changes(host().chosen->model(), &QAbstractItemModel::dataChanged);
        host().delegate->setModelData(editor, host().chosen->model(), index());
        QCOMPARE(int(changes.count()), 0);
    }

    std::unique_ptr<AttributesFilterDialog> m_dialog;
};

QTEST_MAIN(EditingTest)
#include "tst_editing.moc"
