#include "contract_test.h"
#include "json_table.h"

#include <QMenu>

using namespace Zudunmaf;

/// Each of the two dialogs on a foreign base.
class DialogsTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("feature");
        QTest::newRow("filter") << false;
        QTest::newRow("feature") << true;
    }
    void init()
    {
        ContractTest::init();
        QFETCH_GLOBAL(bool, feature);
        m_feature = feature;
        host().mask = feature ? int(EntityFeature) : -1;
    }

    void construction()
    {
        const FeatureAttributesDialog feature(-7, QApplication::activeWindow(), Qt::Tool);
        QCOMPARE(feature.windowTitle(), QString("Assign Attributes"));
        QVERIFY(feature.windowFlags() & Qt::Tool);
        QVERIFY(AttributesFilterDialog().windowTitle().isEmpty());
        QCOMPARE(host().called("base "), QStringList({"base -7", "base -1"}));
        host().dictionary << &integer("width", 5, 9, 7);
        host().entities.clear();
        host().calls.clear();
        const QMetaObject &meta = *make()->metaObject();
        QVERIFY(meta.superClass() == &TvxAttributesSelectionDialog::staticMetaObject);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), "contextMenu_triggered(QAction*)");
        const QJsonObject expected =
            jsonTable("construction.json")[m_feature ? "feature" : "filter"].toObject();
        QStringList keys;
        for (const QString &call : host().called("nls "))
            keys << call.section("@$@#", 3, 3);
        QCOMPARE(keys.join(' '), expected["messages"].toString());
        QCOMPARE(host().calls.filter(QRegularExpression("^(?!nls)")), textsOf(expected["calls"]));
        QCOMPARE(host().entities, textsOf(expected["entities"]));
    }

    void groups()
    {
        translate("1015", "1318", "Board");
        // These are invalid UTF-8 and decode to the same text.
        host().dictionary << &definition(9, "ff", "x", "\xff") << &definition(9, "fe", "x", "\xfe");
        for (int did : {-1, -2, 0}) { // -2 walks the groups, and no attributes
            host().did = did;
            makeWithSome();
            QCOMPARE(host().called("fillGroupsList").isEmpty(), did == -1);
            QCOMPARE(host().called("fillAttributeList").isEmpty(), did != 0);
            host().calls.clear();
        }
        const QString found = "Board|\uFFFD|board|OBSOLETE|Obsoletes";
        QCOMPARE(host().groups.join('|'), m_feature ? found : found + '|');
    }

    /// "filled" are the attributes that get a row, "visible" those whose row is shown. A fill ignores the group's case,
    /// leaves out obsolete attributes, and the host matches the text: here the whole text, case-sensitively.
    void fillAndVisibility_data()
    {
        QTest::addColumn<QJsonObject>("criteria");
        const QJsonArray rows = jsonTable("criteria.json")["criteria"].toArray();
        for (const QJsonValue row : rows)
            QTest::newRow(qPrintable(row["case"].toString())) << row.toObject();
    }
    void fillAndVisibility()
    {
        QFETCH(QJsonObject, criteria);
        host().mask = criteria["entities"].toInt(-1);
        host().group = criteria["group"].toString("All Groups");
        host().text = criteria["text"].toString();
        host().byPrompt = criteria["byPrompt"].toBool();
        host().showObsolete = criteria["showObsolete"].toBool();
        const auto made = makeWithSome();
        QCOMPARE(rows(), criteria["filled"].toString());
        host().top->setRowCount(0);
        for (const DmlAttrDef *attribute : host().dictionary)
            appendRow(host().top, *newItem(m_feature, pointer(attribute)));
        made->filterAttributeList();
        QCOMPARE(rows(true), criteria["visible"].toString());
    }

    /// Criteria in the language of the user and in the order of the calls, and what each item gets of the configuration.
    void fill()
    {
        const auto made = makeWithSome();
        const auto filled = [&made](const char *group, const QString &text) {
            host().group = group;
            host().text = text;
            host().calls.clear();
            made->setDisplayUnits(2);
            return rows();
        };
        QCOMPARE(filled("all groups", ""), QString());
        QCOMPARE(host().called("match"), QStringList()); // mask, group and obsolete come before the text
        QCOMPARE(filled("All Groups", QString("ü").repeated(50)), QString());
        QCOMPARE(host().called("match").first(), "match width " + QString("ü").repeated(32)); // 64 bytes
        host().showObsolete = true;
        host().byPrompt = true;
        QCOMPARE(filled("All Groups", "host:Breite"), QString("width old"));
        QCOMPARE(host().called("prompt").first(), QString("prompt width Breite"));
        auto *item = dynamic_cast<DmlAttrLWI *>(host().top->item(0, 1));
        QVERIFY(item->displayPrompt());
        QVERIFY(item->displayValue());
        const auto kind = m_feature ? DmlAttrLWI::ItemType_FeatureAttr : DmlAttrLWI::ItemType_AttrFilter;
        QCOMPARE(item->itemType(), kind);
        QCOMPARE(item->displayUnits(), m_feature ? 2 : -1);
        host().mask = 1;
        translate("1055", "1358", "ä");
        QCOMPARE(filled("All Groups", ""), QString());
        QCOMPARE(filled("ä", ""), QString("Layer_width older"));
    }

    /// A pass does not read the configuration of obsolete attributes.
    void visibleRows()
    {
        host().showObsolete = host().shuffle = true;
        const auto made = makeWithSome();
        const QString all = rows();
        const auto shown = [&made](const char *group, const char *text) {
            host().showObsolete = false;
            host().group = group;
            host().text = text;
            host().calls.clear();
            made->filterAttributeList();
            return rows(true);
        };
        QCOMPARE(shown("All Groups", ""), all);
        const QString chosen = m_feature ? "getChosenList " : "";
        QCOMPARE(host().calls.mid(0, m_feature ? 5 : 4).join(' '),
                 "getSelectedGroupName getSelectedEntityMask " + chosen +
                     "getTopListItems 0 cfg edt_disp_attr_by_prompt");
        QCOMPARE(host().calls.last(), QString("setFirstVisibleItemAsCurrent"));
        host().byPrompt = true;
        QCOMPARE(shown("All Groups", "breite"), QString("width old"));
        // Chosen attributes are found by name, also with prompts as labels. A fill shows them until the next pass.
        appendRow(host().chosen, *host().top->item(0, 1));
        appendRow(host().chosen, *newItem(!m_feature, pointer(host().dictionary.at(2))));
        QCOMPARE(shown("All Groups", "breite"), QString(m_feature ? "old" : "width old"));
        host().text.clear();
        host().mask = 8;
        translate("1233", "1524", "ä");
        made->setDisplayUnits(1);
        QCOMPARE(rows(true), QString("width older"));
        QCOMPARE(shown("All Groups", ""), QString());
        QCOMPARE(shown("ä", ""), QString(m_feature ? "older" : "width older"));
    }

    void rowsOfOtherKindsStay()
    {
        const auto made = make();
        appendRow(host().top, *newItem(m_feature, QVariant()));
        appendRow(host().top, *newItem(m_feature, pointer(nullptr)));
        appendRow(host().top, *newItem(!m_feature, pointer(&definition(9, "odd"))));
        appendRow(host().top, QTableWidgetItem());
        host().mask = 0;
        made->filterAttributeList();
        QCOMPARE(host().called("setTopViewRowsVisiblity"), QStringList());
    }

    void faults()
    {
        host().dictionary = eachType();
        auto made = make();
        const int whole = host().fallible;
        const QString good = host().state();
        QSet<QString> places;
        for (int k = 1; k <= whole; ++k) {
            made.reset();
            host().entities.clear();
            host().groups.clear();
            QVERIFY(isReportedOnce(
                k, [&] { made = make(); }, &places));
            QCOMPARE(host().called("fill").size(), 2); // entities, and the one that did not fail
            QCOMPARE(host().groups.isEmpty(), !rows().isEmpty());
            QCOMPARE(host().called("setHeaderTitle").size(), 2);
            host().entities.clear();
            made->buildInitialLists();
            QCOMPARE(host().state(), good);
        }
        for (int k = 0; k <= int(host().dictionary.size()) + 3; ++k) {
            host().top->setRowHidden(2, true);
            host().top->setCurrentCell(3, 1);
            const QString before = host().state();
            const auto step = [&] { k ? made->setDisplayUnits(2) : made->filterAttributeList(); };
            QVERIFY(isReportedOnce(qMax(k, 1), step, &places));
            QCOMPARE(host().state(), before);
        }
        made->filterAttributeList();
        QCOMPARE(rows(true), QString("plated note colour width depth odd"));
        QCOMPARE(int(places.size()), 5); // groups, two keys and attributes of a fill, the key of a pass
    }

    void menu()
    {
        const auto made = make();
        const QList<QAction *> actions = host().menu->actions();
        QCOMPARE(actions[0]->text(), QString(m_feature ? "Edit attribute value" : "Set Condition"));
        QCOMPARE(actions[1]->text(), QString(m_feature ? "Set default value" : "Clear Condition"));
        const QByteArray set(224, 0x11);
        const QVariant held = m_feature ? QVariant(1.5f) : pointer(set.constData());
        std::vector<std::unique_ptr<DmlAttrLWI>> items;
        QTableWidgetItem stranger;
        if (m_feature)
            host().menuItems << &stranger;
        host().dictionary = eachType() << nullptr;
        for (const DmlAttrDef *attribute : host().dictionary) {
            items.push_back(newItem(m_feature, pointer(attribute)));
            items.back()->setAttrValue(held);
            host().menuItems << items.back().get();
        }
        QMetaObject::invokeMethod(made.get(), "contextMenu_triggered", Q_ARG(QAction *, nullptr));
        host().menu->addAction("other")->setData(3);
        host().menu->actions().last()->trigger();
        QCOMPARE(host().called("edit"), QStringList());
        actions[0]->trigger();
        QCOMPARE(host().called("edit"), QStringList("editCurrentItem"));
        actions[1]->trigger();
        for (const auto &item : items) {
            const auto fresh = newItem(m_feature, item->dmlAttribute());
            if (!item->dmlAttribute().value<void *>() || (m_feature && item->getDmlAttrType() == 9))
                fresh->setAttrValue(held);
            QCOMPARE(item->attrValue().userType(), fresh->attrValue().userType());
            QVERIFY(m_feature ? item->attrValue() == fresh->attrValue() : bytes(*item) == bytes(*fresh));
        }
    }

    /// "Assign Attributes" hides an added attribute and shows a removed one. The filter dialog does not override the hooks.
    void hooksOfAddAndRemove()
    {
        const auto made = makeWithSome();
        const auto callsOf = [&made](auto hook, QTableWidgetItem *item) {
            host().calls.clear();
            (made.get()->*hook)(item);
            return host().calls.filter(QRegularExpression("^(?!add|remove)"));
        };
        const auto add = &TvxAttributesSelectionDialog::addButtonClickedCB;
        const auto remove = &TvxAttributesSelectionDialog::removeButtonClickedCB;
        const auto other = newItem(!m_feature, pointer(host().dictionary.first()));
        const auto unlisted = newItem(m_feature, pointer(&definition(9, "unlisted")));
        const auto own = [this](const QStringList &calls) { return m_feature ? calls : QStringList(); };
        QCOMPARE(callsOf(add, nullptr), QStringList());
        QCOMPARE(callsOf(add, host().top->item(1, 1)),
                 own({"setTopViewRowsVisiblity 1 0", "setFirstVisibleItemAsCurrent"}));
        QCOMPARE(callsOf(remove, nullptr), QStringList());
        QCOMPARE(callsOf(remove, other.get()), QStringList());
        QCOMPARE(callsOf(remove, unlisted.get()), own({"findItemByAttrName unlisted"}));
        QCOMPARE(callsOf(remove, appendRow(host().chosen, *host().top->item(1, 1))),
                 own({"findItemByAttrName Layer_width", "setTopViewRowsVisiblity 1 1",
                      "setTopViewCurrentItem 1"}));
    }

private:
    /// Runs a step in which the k-th service call that can fail does. Returns true if one report with a source position was
    /// written, and adds this position.
    template <typename Step>
    static bool isReportedOnce(int k, const Step &step, QSet<QString> *places)
    {
        host().failStatus = k % 2 ? -1 : 256;
        host().failAt = host().fallible + k;
        host().calls.clear();
        host().reports.clear();
        step();
        host().failAt = 0;
        const QString report = host().reports.join(' ');
        *places << report;
        return QRegularExpression("^code/gdm/\\S+ [1-9]\\d*$").match(report).hasMatch();
    }
    std::unique_ptr<TvxAttributesSelectionDialog> make() const
    {
        if (m_feature)
            return std::make_unique<FeatureAttributesDialog>(3);
        return std::make_unique<AttributesFilterDialog>(3);
    }
    std::unique_ptr<TvxAttributesSelectionDialog> makeWithSome()
    {
        host().dictionary << &definition(9, "width", "Breite", "Board", 0x40000008)
                          << &definition(9, "Layer_width", "Lage", "board", 0x40000001)
                          << &definition(9, "old", "Breite", "OBSOLETE", 0x40000000)
                          << &definition(9, "older", "Alt", "Obsoletes", 0x7FFFFFFF)
                          << &definition(9, "nowhere", "x", "Board", 0)
                          << &definition(9, "net", "x", "", 0x10000000);
        return make();
    }
    static std::unique_ptr<DmlAttrLWI> newItem(bool feature, const QVariant &definition)
    {
        std::unique_ptr<DmlAttrLWI> item;
        feature ? item.reset(new FeatureAttrLWI) : item.reset(new AttrFilterLWI);
        item->setDmlAttribute(definition);
        return item;
    }
    /// The names of the rows, or of the visible rows, of the available table.
    static QString rows(bool visibleOnly = false)
    {
        QStringList names;
        for (int row = 0; row < host().top->rowCount(); ++row) {
            if (!visibleOnly || !host().top->isRowHidden(row))
                names << host().top->item(row, 1)->data(DmlAttrNameRole).toString();
        }
        return names.join(' ');
    }
    /// Translates "All Groups" in the message with this number.
    void translate(const char *filterNumber, const char *featureNumber, const char *text) const
    {
        const QByteArray number(m_feature ? featureNumber : filterNumber);
        host().translations["@$@#gdm_qt@$@#GENERAL@$@#" + number + "@$@#All Groups"] = text;
    }

    bool m_feature = false;
};

QTEST_MAIN(DialogsTest)
#include "tst_dialogs.moc"
