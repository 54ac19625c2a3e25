#include "contract_test.h"
#include "json_table.h"

using namespace Zudunmaf;

/// Both kinds of items: their records, texts, values and descriptions.
class ItemsTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    void priming()
    {
        const QByteArray payloads[] = {"", "", bytesOf(-1), bytesOf(5, 9), bytesOf(-1.5, 0.1), ""};
        AttrFilterLWI item;
        QCOMPARE(bytes(item), QByteArray(224, '\0'));
        const QList<DmlAttrDef *> definitions = eachType();
        for (int i = 0; i < definitions.size(); ++i) {
            std::memset(static_cast<void *>(&record(item)), 0x77, 224);
            item.setDmlAttribute(pointer(definitions[i]));
            const QByteArray head = bytesOf(0, definitions[i]->type, 0, 0);
            QCOMPARE(bytes(item), (head + payloads[i]).leftJustified(224, '\0'));
        }
    }

    void conditionTexts()
    {
        for (const DmlAttrDef *unset : eachType())
            checkTexts(*unset, {}, "", unset->type == 9 ? "" : "%L", {});
        const DmlAttrDef &note = text("note", "x"), &colour = option("colour", 0);
        const DmlAttrDef &width = integer("width", 5, 9, 7), &depth = real("depth", -9, 9, 0);
        checkTexts(definition(DmlAttrBoolean, "plated"), "", "", "%L", true);
        checkTexts(note, " ü%1 ", " ü%1 ", "%L =  ü%1 ", " ü%1 ");
        checkTexts(note, "", "", "%L", "");
        checkTexts(text("a%1b", "x"), "y", "y", "%L = y", "y");
        checkTexts(colour, bytesOf(2), "deep green", "%L = deep green", "deep green");
        checkTexts(colour, bytesOf(1), "", "%L", "");
        for (int outside : {-1, 3, 2147483647})
            checkTexts(colour, bytesOf(outside), "", "%L", {});
        checkTexts(width, bytesOf(-5, 2000000), "-5 to 2000000", "-5 <= %L <= 2000000", QPoint(-5, 2000000));
        checkTexts(width, bytesOf(0, 0), "0 to 0", "0 <= %L <= 0", QPoint(0, 0));
        checkTexts(integer("a%1b", 0, 9, 0), bytesOf(5, 9), "5 to 9", "5 <= a9b <= %3", QPoint(5, 9));
        checkTexts(depth, bytesOf(-1.5, 1234.56789), "-1.500 to 1234.568", "-1.500 <= %L <= 1234.568",
                   QPointF(-1.5, 1234.56789));
        checkTexts(definition(9, "odd"), "", "", "", {});
    }

    void filterItemOwnsItsRecord()
    {
        AttrFilterLWI item;
        const void *own = &record(item);
        for (const QVariant &ignored : {QVariant(), pointer(nullptr), pointer(own)}) {
            item.setAttrValue(ignored);
            QCOMPARE(bytes(item), QByteArray(224, '\0'));
        }
        const QByteArray condition(224, 0x11);
        item.setAttrValue(pointer(condition.constData()));
        item.setDisplayUnits(2);
        item.setDisplayPrompt(true);
        item.setFlags(Qt::NoItemFlags);
        const std::unique_ptr<DmlAttrLWI> clone(
            static_cast<DmlAttrLWI *>(item.clone())); // without a definition
        QCOMPARE(bytes(*clone), condition);
        QCOMPARE(&record(item), own);
        QCOMPARE(int(host().memory.size()), 2);
        QVERIFY(clone->displayValue());
        QVERIFY(clone->displayPrompt());
        QVERIFY(clone->flags() & Qt::ItemIsEditable);
        QCOMPARE(clone->displayUnits(), -1);
    }

    /// From any kind of item, through a reference to the base class.
    void filterItemIsAssignedThroughItsBase()
    {
        AttrFilterLWI item, other, unset;
        FeatureAttrLWI feature;
        other.setDmlAttribute(pointer(&integer("width", 5, 9, 7)));
        record(other).isSet = 1;
        record(other).intLow = 6;
        const QByteArray condition = bytes(other);
        const DmlAttrDef &depth = real("depth", -1.5, 0.1, 0);
        feature.setDmlAttribute(pointer(&depth));
        unset.setDmlAttribute(pointer(&depth));

        DmlAttrLWI &base = item;
        const void *own = &record(item);
        const DmlAttrLWI sliced(item), empty;
        const QPair<const DmlAttrLWI *, QByteArray> steps[] = {{&other, condition},      {&sliced, condition},
                                                               {&item, condition},       {&empty, condition},
                                                               {&feature, bytes(unset)}, {&other, condition}};
        for (const auto &[source, expected] : steps) {
            base = *source;
            QCOMPARE(&record(item), own);
            const std::unique_ptr<DmlAttrLWI> clone(static_cast<DmlAttrLWI *>(item.clone()));
            const AttrFilterLWI copy(item);
            for (const DmlAttrLWI *made : QList<const DmlAttrLWI *>{&item, clone.get(), &copy}) {
                QCOMPARE(bytes(*made), expected);
                QCOMPARE(made->dmlAttribute(), source->dmlAttribute());
            }
        }
        record(item).intLow = 8;
        QCOMPARE(bytes(other), condition);
    }

    void fieldsWithoutNulEndAtTheirWidth()
    {
        DmlAttrDef &attribute = definition(DmlAttrBoolean, "");
        std::memset(attribute.name, 'n', sizeof attribute.name);
        std::memset(attribute.prompt, 'p', sizeof attribute.prompt);
        std::memset(attribute.group, 'g', sizeof attribute.group);
        FeatureAttrLWI item;
        item.setDmlAttribute(pointer(&attribute));
        QCOMPARE(item.data(DmlAttrNameRole).toString(), QString(65, 'n'));
        QCOMPARE(item.data(DmlAttrPromptRole).toString(), QString(65, 'p'));
        QVERIFY(item.data(Qt::ToolTipRole).toString().contains(": " + QString(66, 'g') + '\n'));
    }

    void roles()
    {
        AttrFilterLWI filter;
        FeatureAttrLWI feature;
        for (DmlAttrLWI *item : QList<DmlAttrLWI *>{&filter, &feature}) {
            QCOMPARE(item->type(), 1000);
            QCOMPARE(int(item->itemType()), item == &filter ? 1 : 2);
            QCOMPARE(item->displayUnits(), -1);
            item->setDmlAttribute(pointer(nullptr));
            QCOMPARE(item->getDmlAttrType(), 0);
            for (int role : {0, 3, 137, 138, 139, 140, 141, 142}) {
                item->setData(role, role);
                QCOMPARE(item->data(role).toInt(), role);
                item->setData(role, QVariant());
            }
            item->setDmlAttribute(pointer(&integer("width", 5, 9, 7)));
            QCOMPARE(item->getDmlAttrType(), 3);
            QCOMPARE(item->data(139), QVariant(3));
            QCOMPARE(item->data(141), item->dmlAttribute());
        }
        QCOMPARE(feature.data(140), QVariant(7));
        QVERIFY(!feature.data(142).isValid());
        QCOMPARE(filter.data(Qt::ToolTipRole), QVariant("Prompt"));
        filter.setDisplayPrompt(true);
        QVERIFY(!filter.data(Qt::ToolTipRole).isValid());
    }

    void defaults()
    {
        FeatureAttrLWI item;
        const auto check = [&item](const DmlAttrDef &definition, const QVariant &expected) {
            item.setDmlAttribute(pointer(&definition));
            QCOMPARE(item.attrValue(), expected);
            QCOMPARE(item.attrValue().userType(), expected.userType());
            QCOMPARE(item.attrValue().toString().isNull(), expected.toString().isNull());
            QCOMPARE(item.data(DmlAttrValueRole).isValid(), !expected.toString().isNull());
        };
        DmlAttrDef &plated = definition(DmlAttrBoolean, "plated");
        for (int flag : {2, 0}) {
            plated.defaultBool = flag;
            check(plated, flag != 0);
        }
        check(text("t", nullptr), QString());
        check(text("t", ""), "");
        check(option("o", 2), "deep green");
        check(option("o", -1), "");
        check(option("o", 3), "");
        check(integer("i", 5, 9, -7), -7);
        check(real("f", 0, 1, 0.1f), double(0.1f));
        check(definition(9, "u"), double(0.1f)); // unchanged
    }

    void featureCells()
    {
        FeatureAttrLWI source;
        source.setDmlAttribute(pointer(&integer("width", 5, 9, 7)));
        source.setDisplayPrompt(true);
        QTableWidget table(0, 2);
        FeatureAttrLWI *item = static_cast<FeatureAttrLWI *>(appendRow(&table, source));
        QCOMPARE(table.item(0, 0)->text(), QString("Prompt"));
        QCOMPARE(item->toString(), QString("7"));
        item->setDisplayValue(false);
        QCOMPARE(item->toString(), QString());
        table.selectRow(0);
        QCOMPARE(item->toString(), QString("7"));
        item->setAttrValue(QVariant());
        QCOMPARE(item->toString(), QString());
    }

    void writtenValues()
    {
        for (const QJsonValue row : jsonTable("values.json")["written"].toArray()) {
            const auto item = newValue(row, row["value"].toVariant());
            QCOMPARE(item->valueAsString(), row["text"].toString());
            QCOMPARE(host().calls, textsOf(row["calls"]));
            QVERIFY(!item->valueAsString().isNull());
        }
    }

    void readValues()
    {
        for (const QJsonValue row : jsonTable("values.json")["read"].toArray()) {
            const auto item = newValue(row, QByteArray("as it was"));
            item->setValueFromString(row["text"].toString());
            const QVariant value = item->attrValue();
            QCOMPARE(value.typeName() + QString(" " + value.toString()), row["value"].toString());
            QCOMPARE(host().calls, textsOf(row["calls"]));
        }
    }

    void descriptions()
    {
        const QString text = "text\ndefault val. : ", option = "option\ndefault val. : ";
        const QString range = "\ndefault val. : %1\nrange        : %2", units = "\nunits        : ";
        checkDescription(definition(DmlAttrBoolean, "a%1b"), "1744", "boolean");
        checkDescription(this->text("a%1b", "x %1 y", 3), "1747 1748", text + "x %1 y");
        checkDescription(this->text("a%1b", ""), "1747 1748", text);
        checkDescription(this->text("a%1b", nullptr), "1747 1748 1748n", text + "N/A");
        checkDescription(this->option("a%1b", 0), "1751 1752", option + "red");
        checkDescription(this->option("a%1b", 1), "1751 1752", option);
        checkDescription(this->option("a%1b", -1), "1751 1752 1752n", option + "N/A");
        checkDescription(this->option("a%1b", 3), "1751 1752 1752n", option + "N/A");
        checkDescription(integer("a%1b", -5, 1234567, 7), "1755 1756 1757",
                         "integer" + range.arg("7", "[-5..1234567]"));
        checkDescription(real("a%1b", -1.5, 1234567.0, 0.25f), "1760 1761 1768 1770",
                         "float" + range.arg("0.25", "[-1.5..1.23457e+06]") + units);
        checkDescription(definition(5, "a%1b"), "", "");
        checkDescription(definition(-1, "a%1b"), "", "");

        QVERIFY(describe(real("a", -1, 2, 1), 2).endsWith(range.arg("1", "[-25.4..50.8]") + units + "mm"));
        QCOMPARE(host().called("c"), QStringList({"convert_2 -1 1 2", "convert_2 2 1 2", "cur_units 1 2"}));
        // The order of the placeholders in the translation counts.
        host().translations["@$@#gdm_qt@$@#GENERAL@$@#1757@$@#range        : [%1..%2]"] = "bis %2, ab %1 µ";
        QVERIFY(describe(integer("a", 5, 9, 7), 2).endsWith("\nbis 9, ab 5 µ"));
    }

private:
    /// A condition in both cells of a row: shown always, not shown, shown because the row is selected.
    static void checkTexts(const DmlAttrDef &attribute, const QByteArray &payload, const QString &cell,
                           const QString &line, const QVariant &value)
    {
        AttrFilterLWI source;
        source.setDmlAttribute(pointer(&attribute));
        if (!payload.isNull()) {
            record(source).isSet = -4;
            std::memcpy(record(source).text, payload.leftJustified(200, '\0').constData(), 200);
        }
        QTableWidget table(0, 2);
        appendRow(&table, source);
        for (int round = 0; round < 4; ++round) {
            const QString label = round == 3 && cell.isEmpty() ? attribute.prompt : attribute.name;
            table.setRangeSelected(QTableWidgetSelectionRange(0, 0, 0, 1), round > 1);
            for (int column : {0, 1}) {
                AttrFilterLWI *item = static_cast<AttrFilterLWI *>(table.item(0, column));
                item->setDisplayValue(round == 0);
                item->setDisplayPrompt(label == "Prompt");
                const bool shown = round != 1;
                QCOMPARE(item->text(), column == 0 ? label : shown ? cell : QString());
                QCOMPARE(item->toString(), shown ? QString(line).replace("%L", label) : QString());
                QCOMPARE(item->data(DmlAttrFilterTextRole).toString(), item->toString());
                QCOMPARE(item->data(DmlAttrValueRole).isValid(), value.isValid());
                QCOMPARE(item->data(DmlAttrValueRole), value);
                QVERIFY(item->valueAsString().isNull());
            }
        }
    }

    /// An item that holds the value of an attribute with units, whatever its type.
    std::unique_ptr<FeatureAttrLWI> newValue(const QJsonValue &row, const QVariant &value)
    {
        DmlAttrDef &attribute = real("a", 0, 9, 0, row["units"].toInt(1));
        auto item = std::make_unique<FeatureAttrLWI>();
        item->setDmlAttribute(pointer(&attribute));
        attribute.type = row["type"].toInt();
        item->setAttrValue(value);
        item->setDisplayUnits(row["shown"].toInt(2));
        host().calls.clear();
        return item;
    }

    static QString describe(const DmlAttrDef &definition, int displayUnits)
    {
        FeatureAttrLWI item;
        item.setDmlAttribute(pointer(&definition));
        item.setDisplayUnits(displayUnits);
        item.setDisplayPrompt(true);
        item.setAttrValue(QVariant());
        host().calls.clear();
        return item.data(Qt::ToolTipRole).toString();
    }
    /// `lines` follow the label of the type. `numbers` are the message numbers after the first three.
    static void checkDescription(const DmlAttrDef &definition, const QString &numbers, const QString &lines)
    {
        const QString names = "internal name: a%1b\ndisplay name : Prompt\ngroup        : Board";
        QCOMPARE(describe(definition, -1), lines.isEmpty() ? names : names + "\ntype         : " + lines);
        QString asked;
        for (const QString &call : host().called("nls @$@#gdm_qt@$@#GENERAL@$@#"))
            asked += call.section("@$@#", 3, 3) + (call.endsWith("N/A") ? "n " : " ");
        QCOMPARE(asked.trimmed(), ("1739 1740 1741 " + numbers).trimmed());
    }
};

QTEST_MAIN(ItemsTest)
#include "tst_items.moc"
