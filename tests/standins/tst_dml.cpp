#include "dml/dml_control.h"
#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"
#include "gdm/items/attr_records.h"
#include "gdm/items/attr_roles.h"
#include "json_table.h"

#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Zudunmaf;
using Definitions = QList<DmlAttrDef *>;

namespace
{

/// The definitions of a walk in its order, and a null pointer after them if a call failed.
Definitions walk(int did, unsigned int entities = EntityAll)
{
    Definitions definitions;
    int cursor = 0, status = 0;
    DmlAttrDef *definition = nullptr;
    while ((status = dml__atr_next(did, 1, entities, &cursor, &definition)) == 0 && definition)
        definitions << definition;
    return status == 0 ? definitions : definitions << nullptr;
}

QJsonObject flag(const char *name, const QJsonValue &entities = "all")
{
    return {{"name", name}, {"type", "boolean"}, {"default", true}, {"entities", entities}};
}

/// A file of dictionaries with these attributes, numbered from `firstId`.
QByteArray file(int firstId, const QList<QJsonArray> &dictionaries)
{
    QJsonArray all;
    for (const QJsonArray &attributes : dictionaries)
        all << QJsonObject{{"id", firstId + int(all.size())}, {"attributes", attributes}};
    return QJsonDocument(QJsonObject{{"dictionaries", all}}).toJson();
}

/// All fields of a definition, as one text.
QString written(const DmlAttrDef &record)
{
    QStringList parts{QString::number(record.type), record.name, record.prompt, record.group};
    parts << QString::number(record.entityMask, 16);
    if (record.type == DmlAttrText)
        parts << QString(record.defaultText ? record.defaultText : "none") +
                     QString::number(record.textChoiceCount);
    else if (record.type == DmlAttrFloat)
        parts << QString("%1 in %2..%3")
                     .arg(record.defaultFloat == 0.7f)
                     .arg(record.floatMin)
                     .arg(record.floatMax);
    else if (record.type == DmlAttrInteger)
        parts << QString("%1 in %2..%3").arg(record.defaultInt).arg(record.intMin).arg(record.intMax);
    else
        parts << QString::number(record.defaultInt);
    const bool hasList = record.type == DmlAttrText || record.type == DmlAttrOption;
    for (int i = 0; hasList && i < record.optionCount; ++i)
        parts << record.optionList[i];
    const bool isUnitless = record.unitsClass == -1;
    return (parts << (isUnitless ? "unitless" : gen__torvex_cur_units_str(record.unitsClass, -1))).join('|');
}

} // namespace

class TestDml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { dml::unloadAll(); }

    void attributesAreRead_data()
    {
        QTest::addColumn<QJsonObject>("attribute");
        QTest::addColumn<QString>("reads");
        for (const QJsonValue row : jsonTable("read_attributes.json")["attributes"].toArray())
            QTest::newRow(qPrintable(row["case"].toString()))
                << row["fields"].toObject() << row["reads"].toString();
    }
    void attributesAreRead()
    {
        QFETCH(QJsonObject, attribute);
        QString error;
        QVERIFY2(dml::loadJson(file(3, {QJsonArray{attribute}}), "one", &error), qPrintable(error));
        QTEST(written(*walk(3).constFirst()), "reads");
    }

    void wrongFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("says");
        const QJsonObject table = jsonTable("refused_dictionaries.json");
        for (const QJsonValue row : table["files"].toArray()) {
            const QByteArray json = QJsonDocument::fromVariant(row["file"].toVariant()).toJson();
            QTest::newRow(qPrintable(row["case"].toString()))
                << (row["file"].isString() ? row["file"].toString().toUtf8() : json) << textsOf(row["says"]);
        }
        for (const QJsonValue row : table["attributes"].toArray()) {
            QJsonObject attribute{{"name", "a"}, {"type", "text"}, {"entities", QJsonArray()}};
            attribute.remove(row["without"].toString());
            const QJsonObject fields = row["fields"].toObject();
            for (auto field = fields.begin(); field != fields.end(); ++field)
                attribute[field.key()] = field.value();
            QTest::newRow(qPrintable(row["case"].toString()))
                << file(1, {QJsonArray(), QJsonArray{flag("first"), attribute}})
                << (textsOf(row["says"]) << "dictionary #2, attribute #2");
        }
    }
    void wrongFilesAreRefused()
    {
        QFETCH(QByteArray, json);
        QFETCH(QStringList, says);
        QVERIFY(dml::loadJson(file(8, {QJsonArray{flag("kept")}}), "before"));
        const Definitions before = walk(8);
        QString error;
        QVERIFY(!dml::loadJson(json, "boards.json", &error));
        QVERIFY2(error.startsWith("boards.json: "), qPrintable(error));
        QVERIFY2(!error.contains('\n'), qPrintable(error));
        for (QString &piece : says)
            QVERIFY2(error.contains(piece.replace('\'', '"')), qPrintable(error + " lacks " + piece));
        QCOMPARE(dml::loadedIds(), QVector<int>{8});
        QCOMPARE(walk(8), before);
    }

    void filesAreLoadedAndUnloaded()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("größe.json");
        QString error;
        QVERIFY(!dml::loadFile(path, &error));
        QVERIFY2(error.startsWith(path + ": expected a file that can be read, found "), qPrintable(error));
        QVERIFY(!dml::loadFile(directory.path()));

        QFile json(path);
        QVERIFY(json.open(QIODevice::WriteOnly));
        const QJsonObject note{
            {"name", "note"}, {"type", "text"}, {"entities", "all"}, {"choices", QJsonArray{"a", "b"}}};
        json.write("\xEF\xBB\xBF" +
                   file(1, {{note}, {}}).replace(R"("id": 1)", R"("id": 1, "title": "Größe")"));
        json.close();
        QVERIFY2(dml::loadFile(path, &error), qPrintable(error));
        QCOMPARE(dml::title(1), QString("Größe"));
        QCOMPARE(dml::loadedIds(), QVector<int>({1, 2}));
        const Definitions kept = walk(1);
        const QString text = written(*kept.first());
        QVERIFY(dml::unload(2));
        QVERIFY(!dml::unload(2));
        QCOMPARE(dml::attributeCount(2), -1);
        // Definitions and their texts stay where they are while other dictionaries come and go.
        QVERIFY(dml::loadJson(file(3, {QJsonArray{flag("a"), flag("b")}}), "others"));
        QVERIFY(dml::unload(3));
        QCOMPARE(walk(1), kept);
        QCOMPARE(written(*kept.first()), text);
    }

    void walksListTheOrderOfTheFile()
    {
        const QJsonArray layer{"layer"}, step{"step"}, net{"net"};
        const QJsonArray attributes{flag("z", layer), flag("a", step), flag("m", net), flag("b", layer)};
        QVERIFY(dml::loadJson(file(0, {attributes}), "one"));
        const auto names = [](unsigned int entities) {
            QString joined;
            for (const DmlAttrDef *definition : walk(0, entities))
                joined += definition->name;
            return joined;
        };
        QCOMPARE(names(EntityAll), QString("zamb"));
        QCOMPARE(names(EntityLayer | EntityNet), QString("zmb"));
        QCOMPARE(names(0), QString());
    }

    /// The check of hosts covers the walks that do not fail.
    void wrongWalksFail()
    {
        QVERIFY(dml::loadJson(file(0, {QJsonArray{flag("only")}}), "one"));
        int cursor = 0;
        DmlAttrDef *definition = nullptr;
        QVERIFY(dml__atr_next(1, 1, EntityAll, &cursor, &definition) != 0);
        QVERIFY(dml__atr_next(0, 1, EntityAll, nullptr, &definition) != 0);
        QVERIFY(dml__atr_next(0, 1, EntityAll, &cursor, nullptr) != 0);
        for (int bad : {-1, 2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
            QVERIFY(dml__atr_next(0, 1, EntityAll, &bad, &definition) != 0);
    }
};

QTEST_GUILESS_MAIN(TestDml)

#include "tst_dml.moc"
