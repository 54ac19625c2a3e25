#include "common/wildcards.h"
#include "gdm/dialogs/filter_pattern.h"
#include "gdm/host/gen_services.h"
#include "json_table.h"
#include "local_encoding.h"

#include <QRegExp>
#include <QTest>

#include <random>

using namespace Zudunmaf;
using standins::wildcardExpression;

/// A filter text decides which rows are visible (FilterPattern), which attributes are filled (gen__str_cmp_reg), and
/// what is marked in a name (wildcardExpression). The three must agree.
class TestWildcards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setLocalEncoding("UTF-8"); }

    /// "marked" is the label with each match in braces; null if nothing matches. QRegExp takes a wildcard after a backslash
    /// literally, and doubles a backslash before any other character.
    void textsAndLabels_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("marked");
        const QJsonArray rows = jsonTable("wildcards.json")["labels"].toArray();
        for (const QJsonValue row : rows)
            QTest::newRow(qPrintable(row["case"].toString()))
                << row["text"].toString() << row["label"].toString() << row["marked"].toString();
    }
    void textsAndLabels()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, label);
        QFETCH(const QString, marked);
        QCOMPARE(FilterPattern(text).matches(qPrintable(label)), !marked.isNull());
        QCOMPARE(gen__str_cmp_reg(qPrintable(label), qPrintable(text)), !marked.isNull());
        QCOMPARE(withMarks(label, text), marked);
    }

    /// A label is in UTF-8, and a text as it is typed.
    void textsInLocalEncodings()
    {
        for (const QByteArray &encoding : localEncodings()) {
            setLocalEncoding(encoding);
            const QString text = QString::fromUtf8("üBER");
            if (QString::fromLocal8Bit(text.toLocal8Bit()) == text)
                QVERIFY2(gen__str_cmp_reg("Überzug", qPrintable(text)), encoding.constData());
            QVERIFY2(!gen__str_cmp_reg("Überzug", "\xC3"), encoding.constData());
        }
    }

    void randomTextsMatchLikeQRegExp()
    {
        const QStringList lettersOfTexts{"ab[]^-*?", "ab\\*?[]", "a.+$(){}|^*?", "aäÄß*?", "a\t\x7f *?"};
        for (const QString &letters : lettersOfTexts) {
            for (int round = 0; round < 2000; ++round) {
                QString text = any(letters, 7);
                if (round % 10 == 0) // FilterPattern shortens long runs of stars
                    text.replace('*', QString(20, '*'));
                const QString label = any(letters, 9);
                const QRegExp expected('*' + text + '*', Qt::CaseInsensitive, QRegExp::Wildcard);
                const bool isVisible = expected.indexIn(label) != -1;
                const QString context = text + " on " + label;
                QVERIFY2(FilterPattern(text).matches(qPrintable(label)) == isVisible, qPrintable(context));
                QVERIFY2(gen__str_cmp_reg(qPrintable(label), qPrintable(text)) == isVisible,
                         qPrintable(context));
                QVERIFY2(withMarks(label, text).isNull() != isVisible, qPrintable(context));
            }
        }
    }

    /// A matcher that tried every way to share the label out among the stars would not come back.
    void timeIsBounded()
    {
        const QByteArray label(5000, 'a');
        const QByteArray parts = QByteArray("a*").repeated(2000) + 'b';
        QVERIFY(!gen__str_cmp_reg(label.constData(), parts.constData()));
        QVERIFY(withMarks(label, parts).isNull());
        QVERIFY(!FilterPattern(parts).matches(label.constData()));
        QVERIFY(!FilterPattern(QString(2000, '*') + 'b').matches("äa"));
        QVERIFY(gen__str_cmp_reg(label.constData(), QByteArray(20000, '*') + 'a'));
    }

    void oddArguments()
    {
        QVERIFY(gen__str_cmp_reg(nullptr, "*"));
        QVERIFY(gen__str_cmp_reg("a", nullptr));
        QVERIFY(!gen__str_cmp_reg(nullptr, "a"));
        QCOMPARE(gen__str_cmp_nc("", nullptr), 0);
        QVERIFY(gen__str_cmp_nc(nullptr, "a") != 0);
        const QString halfOfPair(QChar(0xD83D));
        QVERIFY(withMarks("a", halfOfPair).isNull());
    }

private:
    /// The label with each match in braces; null if the text does not match.
    static QString withMarks(const QString &label, const QString &text)
    {
        const QRegularExpression expression = wildcardExpression(text);
        if (!expression.match(label).hasMatch())
            return QString();
        QString marked = "";
        int end = 0;
        auto matches = expression.globalMatch(label);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            marked += label.mid(end, int(match.capturedStart()) - end);
            if (match.capturedLength() > 0)
                marked += '{' + match.captured() + '}';
            end = int(match.capturedEnd());
        }
        return marked + label.mid(end);
    }
    QString any(const QString &letters, unsigned longest)
    {
        QString text;
        for (unsigned length = unsigned(m_random()) % (longest + 1); length > 0; --length)
            text += letters.at(int(m_random() % unsigned(letters.size())));
        return text;
    }

    std::minstd_rand m_random{4711};
};

QTEST_APPLESS_MAIN(TestWildcards)
#include "tst_wildcards.moc"
