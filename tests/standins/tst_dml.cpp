#include "dml/dml_control.h"
#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"
#include "gdm/items/attr_records.h"
#include "gdm/items/attr_roles.h"

#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using namespace Zudunmaf;
using Definitions = QList<DmlAttrDef *>;

namespace
{

/// What a walk gives, in its order. A failure ends it with a null definition.
Definitions walk(int did, unsigned int mask = EntityAll)
{
    Definitions definitions;
    int cursor = 0, status = 0;
    DmlAttrDef *definition = nullptr;
    while ((status = dml__atr_next(did, 1, mask, &cursor, &definition)) == 0 && definition)
        definitions << definition;
    return status == 0 ? definitions : definitions << nullptr;
}

QString names(int did, unsigned int mask = EntityAll)
{
    QString all;
    for (const DmlAttrDef *definition : walk(did, mask))
        all += QString(definition ? definition->name : "failed") + ' ';
    return all;
}

/// JSON that is written with apostrophes.
QByteArray quoted(QByteArray json)
{
    return json.replace('\'', '"');
}

/// A file of one dictionary, or of more where `attributes` closes the first.
QByteArray file(int id, const QByteArray &attributes)
{
    return quoted("{'dictionaries': [{'id': " + QByteArray::number(id) + ", 'attributes': [" + attributes +
                  "]}]}");
}

QByteArray flag(const QByteArray &name, const QByteArray &entities = "'all'")
{
    return "{'name': '" + name + "', 'type': 'boolean', 'default': true, 'entities': " + entities + "}";
}

const char NextDictionary[] = "]}, {'id': 2, 'attributes': [";

/// All that a definition holds, as one text.
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
    return (parts << gen__torvex_cur_units_str(record.unitsClass, -1)).join('|');
}

/// The same of one attribute of a file, or why it was refused.
QString loaded(const QByteArray &attribute)
{
    QString error;
    dml::unloadAll();
    return dml::loadJson(file(3, "{" + attribute + "}"), "one", &error) ? written(*walk(3).constFirst())
                                                                        : error;
}

// 65 bytes in 33 characters.
#define LONG_TEXT "xµµµµµµµµµµµµµµµµµµµµµµµµµµµµµµµµ"

/// Faults of a file, and what the message has to hold, each piece between bars.
const char *const fileFaults[][2] = {
    {"", "line 1, column 1: expected JSON"},
    {"{\n 'ä': 1,\n  ]", "line 3, column 3: expected JSON"},
    {"{'dictionaries': []}\n\n  x", "line 3, column 3|garbage"},
    {"[]", "expected an object, found a list"},
    {"{'dictionaries': [{}], 'more': 1}", "dictionaries, found 'more'"},
    {"{}", "field 'dictionaries'|found nothing"},
    {"{'dictionaries': []}", "field 'dictionaries'|at least one|found []"},
    {"{'dictionaries': [5]}", "dictionary #1: expected an object, found 5"},
    {"{'dictionaries': [{'id': -1, 'attributes': []}]}", "dictionary #1, field 'id'|from 0|found -1"},
    {"{'dictionaries': [{'id': 1, 'attributes': [], 'x': 0}]}", "id, title, attributes|'x'"},
    {"{'dictionaries': [{'id': 4, 'attributes': []}, {'id': 4, 'attributes': []}]}", "#2|of its own|found 4"},
    {"{'dictionaries': [{'id': 4, 'attributes': [null]}]}", "attribute #1: expected an object, found null"},
    {"{'dictionaries': [{'id': 4, 'attributes': []}, {'id': 8, 'attributes': []}]}",
     "#2|'id'|not loaded yet"},
};

/// The same of the second attribute of a dictionary, which may give its name, type and entities anew: of a field that
/// stands twice, the last counts.
const char *const attributeFaults[][2] = {
    {"'name': ''", "field 'name'|found ''"},
    {"'name': '" LONG_TEXT "'", "field 'name'|1 to 64 bytes|found 'xµ"},
    {"'prompt': '" LONG_TEXT "'", "'a', field 'prompt'|0 to 64 bytes"},
    {"'group': 'g" LONG_TEXT "'", "'a', field 'group'|0 to 65 bytes"},
    {"'name': 'first'", "'first', field 'name'|of its own"},
    {"'name': 'a\\u0000b'", "field 'name'|without NUL"},
    {"'default': 'a\\u0000b'", "field 'default'|without NUL, or null"},
    {"'type': 'colour'", "'type'|boolean, text, option, integer, float, found 'colour'"},
    {"'entities': 'layer'", "field 'entities'|a list or 'all', found 'layer'"},
    {"'entities': ['net', 'board']", "'entities'|job, step|found 'board'"},
    {"'entities': ['net', 'net']", "'entities'|each once|found 'net'"},
    {"'min': 1", "'a': expected|choices, found 'min'"},
    {"'type': 'boolean', 'default': 1", "'default': expected true or false, found 1"},
    {"'choices': ['a', 2]", "field 'choices'|found 2"},
    {"'type': 'option'", "field 'options'|at least one entry, found nothing"},
    {"'type': 'option', 'options': ['b', 'c', 'b']", "'options'|each once, found 'b'"},
    {"'type': 'option', 'options': ['b'], 'default': 'c'", "'default'|the options|found 'c'"},
    {"'type': 'integer', 'min': 1, 'max': 2", "field 'default'|found nothing"},
    {"'type': 'integer', 'min': 1.5, 'max': 2, 'default': 2", "'min'|whole number|found 1.5"},
    {"'type': 'integer', 'min': 1, 'max': 2147483648, 'default': 2", "'max'|found 2147483648"},
    {"'type': 'integer', 'min': 9, 'max': 5, 'default': 7", "'max'|'min', which is 9, found 5"},
    {"'type': 'integer', 'min': 5, 'max': 9, 'default': 4", "'default'|from 5 to 9, found 4"},
    {"'type': 'float', 'min': 0.2, 'max': 0.1, 'default': 0.1", "'max'|which is 0.2, found 0.1"},
    {"'type': 'float', 'min': 0, 'max': 1e39, 'default': 0", "'max'|single precision"},
    {"'type': 'float', 'min': 0, 'max': 1, 'default': 0, 'units': 'ell'", "'units'|mil|found 'ell'"},
};

} // namespace

class TestDml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { dml::unloadAll(); }

    void records()
    {
        QByteArray head = "'name': 'fitted', 'type': 'boolean', 'default': true, 'entities': ";
        QCOMPARE(loaded(head + "['job', 'step', 'symbol', 'layer']"), QString("0|fitted|fitted||f|1|"));
        QCOMPARE(loaded(head + "['wheel', 'net', 'component', 'feature']"),
                 QString("0|fitted|fitted||70000040|1|"));
        const QByteArray most = QByteArray("µ").repeated(32);
        QCOMPARE(loaded("'type': 'text', 'entities': [], 'name': '" + most +
                        "', 'prompt': '表面処理', 'group': 'g" + most +
                        "', 'choices': ['tin', '', 'µm'], 'default': 'löten'"),
                 QString("1|" + most + "|表面処理|g" + most + "|0|löten3|tin||µm|"));
        QCOMPARE(loaded("'type': 'text', 'entities': [], 'name': 'n', 'default': null"),
                 QString("1|n|n||0|none0|"));
        head = "'name': 'color', 'type': 'option', 'entities': 'all', 'options': ['red', 'grün']";
        QCOMPARE(loaded(head), QString("2|color|color||ffffffff|-1|red|grün|"));
        QCOMPARE(loaded(head + ", 'default': 'grün'"), QString("2|color|color||ffffffff|1|red|grün|"));
        QCOMPARE(loaded("'name': 'width', 'type': 'integer', 'entities': ['layer'], 'default': 7.0, "
                        "'min': -2147483648, 'max': 2147483647"),
                 QString("3|width|width||8|7 in -2147483648..2147483647|"));
        // 0.7 is below 0.7 once it is single precision, and still at its limit.
        head = "'name': 'gap', 'type': 'float', 'entities': [], 'default': 0.7, 'min': 0.7, 'max': 2.5";
        QCOMPARE(loaded(head), QString("4|gap|gap||0|1 in 0.7..2.5|"));
        QCOMPARE(loaded(head + ", 'units': 'mil'"), QString("4|gap|gap||0|1 in 0.7..2.5|mil"));
    }

    void refusals()
    {
        QVERIFY(dml::loadJson(file(8, flag("kept")), "before"));
        const Definitions before = walk(8);
        const auto check = [&before](const QByteArray &json, QString pieces) {
            QString error;
            QVERIFY2(!dml::loadJson(json, "boards.json", &error), json.constData());
            QVERIFY2(error.startsWith("boards.json: ") && !error.contains('\n'), qPrintable(error));
            for (const QString &piece : pieces.replace('\'', '"').split('|'))
                QVERIFY2(error.contains(piece), qPrintable(error + " lacks " + piece));
            QVERIFY(dml::loadedIds() == QVector<int>{8} && walk(8) == before);
        };
        for (const auto &[json, pieces] : fileFaults)
            check(quoted(json), pieces);
        for (const auto &[fields, pieces] : attributeFaults) {
            const QByteArray second =
                QByteArray("{'name': 'a', 'entities': [], 'type': 'text', ") + fields + "}";
            check(file(1, NextDictionary + flag("first") + "," + second),
                  QString("dictionary #2, attribute #2|") + pieces);
        }
        for (const char *missing : {"name", "type", "entities"})
            check(file(1, flag("first") + "," + flag("a").replace(QByteArray(missing) + "'", "group'")),
                  QString("attribute #2|field '%1'|found nothing").arg(missing));
    }

    void filesComeAndGo()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("größe.json");
        QString error;
        QVERIFY(!dml::loadFile(path, &error));
        QVERIFY2(error.startsWith(path + ": expected a file that can be read, found "), qPrintable(error));
        QVERIFY(!dml::loadFile(directory.path()));

        QFile json(path);
        QVERIFY(json.open(QIODevice::WriteOnly));
        json.write("\xEF\xBB\xBF" +
                   file(1, NextDictionary).replace(R"("id": 1)", R"("id": 1, "title": "Größe")"));
        json.close();
        QVERIFY2(dml::loadFile(path, &error), qPrintable(error));
        QCOMPARE(dml::title(1), QString("Größe"));
        QCOMPARE(dml::loadedIds(), QVector<int>({1, 2}));
        QVERIFY(dml::unload(2) && !dml::unload(2));
        QVERIFY(dml::attributeCount(1) == 0 && dml::attributeCount(2) == -1);
    }

    void walksInOrderOfTheFile()
    {
        const QByteArray first = flag("z", "['layer', 'net']") + "," + flag("a", "[]") + "," +
                                 flag("m", "['net']") + "," + flag("b");
        QVERIFY(dml::loadJson(file(0, first + NextDictionary + flag("other")), "two"));
        QCOMPARE(names(0), QString("z a m b "));
        QCOMPARE(names(0, EntityNet), QString("z m b "));
        QCOMPARE(names(0, EntityLayer | EntityJob), QString("z b "));
        QCOMPARE(names(0, 0), QString());
        QCOMPARE(names(2), QString("other "));
    }

    void walkFails()
    {
        QVERIFY(dml::loadJson(file(0, flag("only")), "one"));
        int cursor = 0;
        DmlAttrDef *definition = nullptr;
        QVERIFY(dml__atr_next(1, 1, EntityAll, &cursor, &definition) != 0);
        QVERIFY(dml__atr_next(0, 1, EntityAll, nullptr, &definition) != 0);
        QVERIFY(dml__atr_next(0, 1, EntityAll, &cursor, nullptr) != 0);
        for (int bad : {-1, 2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
            QVERIFY(dml__atr_next(0, 1, EntityAll, &bad, &definition) != 0);
        cursor = 1;
        for (int i = 0; i < 2; ++i) { // the end can be asked for again
            definition = reinterpret_cast<DmlAttrDef *>(this);
            QCOMPARE(dml__atr_next(0, 1, EntityAll, &cursor, &definition), 0);
            QVERIFY(!definition);
        }
    }

    void definitionsStayWhereTheyAre()
    {
        const QByteArray attribute =
            "{'name': 'note', 'type': 'text', 'entities': [], 'choices': ['a', 'b'], "
            "'default': 'a text too long to be kept inside of a small string'}";
        QVERIFY(dml::loadJson(file(0, attribute), "kept"));
        const Definitions kept = walk(0);
        const QString before = written(*kept.first());
        QVERIFY(dml::loadJson(file(1, attribute + NextDictionary + attribute), "others"));
        QVERIFY(dml::unload(1));
        QCOMPARE(walk(0), kept);
        QCOMPARE(written(*kept.first()), before);
    }

    void shippedDictionaryIsVaried()
    {
        QString error;
        QVERIFY2(dml::loadFile(ZUDUNMAF_DEMO_DICTIONARY, &error), qPrintable(error));
        QSet<QString> groups;
        QSet<int> units, layerTypes, featureTypes;
        for (const DmlAttrDef *definition : walk(0)) {
            groups << definition->group;
            units << (definition->type == DmlAttrFloat ? definition->unitsClass : -1);
            (definition->entityMask & EntityLayer ? layerTypes : featureTypes) << definition->type;
        }
        QVERIFY(walk(0).size() >= 80 && groups.size() >= 8 && groups.contains("Obsolete") &&
                units.size() >= 6);
        QVERIFY(layerTypes.size() == 5 && featureTypes.size() == 5);
    }
};

QTEST_GUILESS_MAIN(TestDml)

#include "tst_dml.moc"
