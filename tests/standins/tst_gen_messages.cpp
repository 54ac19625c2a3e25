#include "gdm/host/gen_services.h"
#include "gdm/host/message_keys.h"
#include "gen/gen_control.h"
#include "local_encoding.h"

#include <QTest>

using namespace Zudunmaf;

class TestGenMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("LANGUAGE", "de"); }

    void cleanup()
    {
        gen::setLanguage(QString());
        gen::setCatalogueDirectory(QString());
        setLocalEncoding("UTF-8");
    }

    void withoutTranslation()
    {
        const char *const texts[][2] = {{keys::FilterHeaderName, "Name"},
                                        {keys::TipIntegerRange, "range        : [%1..%2]"},
                                        {"@$@#m@$@#S@$@#1@$@#a@$@#b", "a@$@#b"},
                                        {"@$@#m@$@#S@$@#1@$@#", ""},
                                        {"@$@#m@$@#S@$@#1", "@$@#m@$@#S@$@#1"},
                                        {"Name", "Name"},
                                        {"", ""},
                                        {nullptr, ""}};
        gen::setCatalogueDirectory("/nowhere");
        for (const char *language : {"en", "xx", "de"}) {
            gen::setLanguage(language);
            for (const auto &[key, text] : texts)
                QCOMPARE(gen__nls_nlst(key), text);
        }
    }

    void messagesAreInTheLocalEncoding()
    {
        QVector<QPair<const char *, QByteArray>> answers;
        for (const QByteArray &encoding : localEncodings()) {
            setLocalEncoding(encoding);
            const QString german = encoding == "ISO-8859-5" ? "Bedingung l?schen" : "Bedingung löschen";
            for (const char *language : {"de", "en"}) {
                gen::setLanguage(language);
                const char *answer = gen__nls_nlst(keys::FilterClearCondition);
                QCOMPARE(QString::fromLocal8Bit(answer), language[0] == 'd' ? german : "Clear Condition");
                answers << qMakePair(answer, QByteArray(answer));
            }
        }
        for (const auto &[answer, text] : answers)
            QCOMPARE(answer, text);
    }

    void languageIsKeptWhenAnApplicationStarts()
    {
        qputenv("LC_ALL", "C");
        gen::setLanguage("de");
        int argc = 1;
        char name[] = "tst", *argv[] = {name, nullptr};
        QCoreApplication application(argc, argv);
        QCOMPARE(gen__nls_nlst(keys::FilterHeaderCondition), "Bedingung");
        // In the user's own locale "C", LANGUAGE has no effect.
        gen::setLanguage(QString());
        QCOMPARE(gen__nls_nlst(keys::FilterHeaderCondition), "Condition");
        qputenv("LC_ALL", "C.UTF-8");
    }

    void prompts()
    {
        gen::setLanguage("de");
        QCOMPARE(gen__nls_nlsa_get_att_prompt("width", "Line width"), "Line width");
        QCOMPARE(gen__nls_nlsa_get_att_prompt("width", ""), "width");
        QCOMPARE(gen__nls_nlsa_get_att_prompt("width", nullptr), "width");
        QCOMPARE(gen__nls_nlsa_get_att_prompt(nullptr, nullptr), "");
        // A message of the catalogue, since the catalogue has no prompts.
        QCOMPARE(gen__nls_nlsa_get_att_prompt("width", keys::FilterHeaderCondition), "Bedingung");
    }
};

QTEST_APPLESS_MAIN(TestGenMessages)
#include "tst_gen_messages.moc"
