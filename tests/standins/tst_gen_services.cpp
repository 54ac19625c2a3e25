#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "gen/gen_control.h"
#include "json_table.h"
#include "local_encoding.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <random>
#include <unistd.h>

using namespace Zudunmaf;
using gen::UnitInfo;
using gen::units;

/// Configuration, memory, units and reports. tst_wildcards.cpp tests the comparison of texts.
class TestGenServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        gen::setConfigurationFile(QString());
        setLocalEncoding("UTF-8");
    }

    void configuredValues()
    {
        for (const QJsonValue row : m_tables["configurations"].toArray()) {
            const QJsonArray files = row["files"].toArray();
            for (const QJsonValue file : files)
                check(file.toString().toUtf8(), row["reads"].toInt());
        }
    }

    void configurationCannotBeRead()
    {
        for (const char *unknown : {"edt_no_such_key", static_cast<const char *>(nullptr)})
            QCOMPARE(read(unknown), -1);
        gen::setConfigurationFile(m_directory.path());
        QCOMPARE(read(), -1);
    }

    void changedConfigurationIsRead()
    {
        const QString path = write("edt_show_obsolete_attrs=true\n");
        gen::setConfigurationFile(path);
        QCOMPARE(read(), 11);
        write("edt_show_obsolete_attrs=false\n");
        QCOMPARE(read(), 10);
        write("[broken\nx\n");
        QCOMPARE(read(), -1);
        QVERIFY(QFile::remove(path));
        QCOMPARE(read(), -1);
        write("edt_show_obsolete_attrs=1\n");
        QCOMPARE(read(), 11);
    }

    /// No block overlaps another one, in any order of being freed.
    void memoryBlocks()
    {
        std::mt19937 random(1);
        std::vector<QPair<char *, QByteArray>> blocks;
        for (int step = 0; step < 3000; ++step) {
            const QByteArray content(step % 500 == 0 ? 100000 : int(random() % 400), char(step));
            auto *block = static_cast<char *>(gen__mem_malloc(size_t(content.size()), 1, __FILE__, __LINE__));
            QCOMPARE(quintptr(block) % alignof(std::max_align_t), quintptr(0));
            std::copy(content.begin(), content.end(), block);
            blocks.insert(blocks.begin() + random() % (blocks.size() + 1), {block, content});
            for (size_t left = step % 1000 == 999 ? 0 : blocks.size() - random() % 2; blocks.size() > left;) {
                QCOMPARE(QByteArray(blocks.back().first, blocks.back().second.size()), blocks.back().second);
                gen__mem_free(blocks.back().first, 1, __FILE__, __LINE__);
                blocks.pop_back();
            }
        }
        QVERIFY(blocks.empty());
    }

    /// The page has a row for each unit: text, dimension, names in any case, names as written.
    void unitSpellings()
    {
        QFile page(ZUDUNMAF_PAGES "/dictionary-format.md");
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QStringList rows = QString::fromUtf8(page.readAll()).section("\n## Units", 1).split("\n| `");
        QCOMPARE(rows.size() - 1, units().size());
        for (const QByteArray &encoding : localEncodings()) {
            setLocalEncoding(encoding);
            for (const UnitInfo &unit : units()) {
                const QStringList cells = ("`" + rows[unit.code + 1]).section('\n', 0, 0).split(" |");
                QCOMPARE(namesIn(cells[0]) << cells[1].trimmed(), QStringList({unit.text, unit.dimension}));
                QCOMPARE(gen__torvex_cur_units_str(unit.code, -1), qPrintable(unit.text));
                QCOMPARE(gen__torvex_get_str_units(qPrintable(unit.text)), unit.code);
                for (const QString &name : namesIn(cells[2])) {
                    for (const QString &typed : {name, name.toUpper(), name.toLower()})
                        QVERIFY2(isReadAs(typed, unit.code), qPrintable(typed));
                }
                const QStringList asWritten = namesIn(cells[3]);
                for (const QString &name : asWritten) {
                    QVERIFY2(isReadAs(name, unit.code), qPrintable(name));
                    for (const QString &typed : {name.toUpper(), name.toLower()})
                        QVERIFY2(asWritten.contains(typed) || codeOf(typed) != unit.code, qPrintable(typed));
                }
            }
            for (const char *unknown : {"MOHM", "MOHMS", "MV", "MF", "MA", "MH", "MS", "Ms", "mhz", "mHz",
                                        "M", "k", "", "furlong", " mm"})
                QCOMPARE(codeOf(unknown), -1);
        }
    }

    /// Each row in both directions, and as an editor stores what it shows: from the display units into those of the
    /// definition.
    void unitsConvert()
    {
        for (const QString &row : textsOf(m_tables["conversions"])) {
            const QStringList parts = row.split(' ');
            const int source = gen__torvex_get_str_units(qPrintable(parts[1]));
            const int target = gen__torvex_get_str_units(qPrintable(parts[3]));
            const float value = parts[0].toFloat(), expected = parts[2].toFloat();
            QVERIFY2(isNear(converted(value, source, target), expected), qPrintable(row));
            QVERIFY2(isNear(converted(expected, target, source), value), qPrintable(row));
            QVERIFY2(isNear(stored(expected, source, target), value), qPrintable(row));
        }
    }

    void unitsOfAnotherDimensionAreNotShown()
    {
        const int mm = gen__torvex_get_str_units("mm"), ohm = gen__torvex_get_str_units("ohm");
        QCOMPARE(converted(1.5f, mm, ohm), 1.5f);
        QCOMPARE(stored(1.5f, mm, ohm), 1.5f);
        QCOMPARE(gen__torvex_cur_units_str(mm, ohm), "mm");
    }

    void failuresAreReportedOnStandardError()
    {
        QFile written(m_directory.filePath("stderr"));
        QVERIFY(written.open(QIODevice::ReadWrite));
        const int standardError = dup(STDERR_FILENO);
        dup2(written.handle(), STDERR_FILENO);
        gen::noteFailure("dictionary 9: it is not loaded");
        gen__log_status_check("fill.cpp", 7);
        gen__log_status_check(nullptr, 8);
        dup2(standardError, STDERR_FILENO);
        close(standardError);
        written.seek(0);
        QCOMPARE(written.readAll(), QByteArray("zudunmaf: dictionary 9: it is not loaded (fill.cpp:7)\n"
                                               "zudunmaf: a service failed without saying why (?:8)\n"));
    }

private:
    /// The names between backquotes.
    static QStringList namesIn(const QString &cell)
    {
        const QStringList parts = cell.split('`');
        QStringList names;
        for (int i = 1; i < parts.size(); i += 2)
            names << parts[i];
        return names;
    }
    static int codeOf(const QString &typed)
    {
        return gen__torvex_get_str_units(typed.toLocal8Bit().constData());
    }
    /// With either character for micro and for ohm, as far as the local encoding has it.
    static bool isReadAs(const QString &name, int code)
    {
        const QString other =
            QString(name).replace(QChar(0xB5), QChar(0x3BC)).replace(QChar(0x3A9), QChar(0x2126));
        const QStringList both{name, other};
        return std::all_of(both.begin(), both.end(), [code](const QString &typed) {
            return QString::fromLocal8Bit(typed.toLocal8Bit()) != typed || codeOf(typed) == code;
        });
    }
    /// Returns the path of the file.
    QString write(const QByteArray &content, const QString &name = "user.ini")
    {
        QFile file(m_directory.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write the test's configuration file");
        return file.fileName();
    }
    /// Returns 0 or 1 for the value, plus 10 if it is from the file; -1 if the call failed.
    static int read(const char *key = keys::ShowObsolete)
    {
        unsigned char value = 0xAA, origin = 0xAA;
        return gen__cfg_get(key, &value, &origin) == 0 ? value + 10 * origin : -1;
    }
    /// Reads the file, the defaults, and the file again, so that a broken file is not taken for the one in between.
    void check(const QByteArray &content, int expected)
    {
        const QString path = write(content, QString::number(++m_files));
        for (const QString &file : {path, QString(), path}) {
            gen::setConfigurationFile(file);
            QVERIFY2(read() == (file.isEmpty() ? 0 : expected), content.constData());
        }
    }
    /// Zero must be exact: a rounding error below it would be shown as "-0.000".
    static bool isNear(float value, float expected)
    {
        return std::fabs(value - expected) <= 1e-6f * std::fabs(expected);
    }
    static float converted(float value, int source, int target)
    {
        gen__torvex_units_convert_2(&value, source, target);
        return value;
    }
    /// What an editor stores if it shows `value` in `displayUnits`.
    static float stored(float value, int unitsClass, int displayUnits)
    {
        int code = unitsClass;
        gen__torvex_units_convert(nullptr, &code, displayUnits);
        gen__torvex_units_convert_f(&value, unitsClass, code);
        return value;
    }
    const QJsonObject m_tables = jsonTable("gen_services.json");
    QTemporaryDir m_directory;
    int m_files = 0;
};

QTEST_APPLESS_MAIN(TestGenServices)
#include "tst_gen_services.moc"
