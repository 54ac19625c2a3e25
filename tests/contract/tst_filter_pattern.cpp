#include "contract_test.h"

#include <QRegExp>

#include <random>

using namespace Zudunmaf;

/// Which rows a filter text shows, against Qt's own wildcard matching of the whole "*text*".
class FilterPatternTest : public ContractTest
{
    Q_OBJECT

private Q_SLOTS:
    void randomTexts()
    {
        const char *const lettersOfLabelsAndTexts[][2] = {{"abAB_-.1", "abAB_?*"},
                                                          {"abc]^-[*", "ab[]^-*?"},
                                                          {"ab\\*?[]", "ab\\*?[]"},
                                                          {"a.+$(){}|^ %1", "a.+$(){}|^ %1*?"},
                                                          {"aäÄßẞµμKKıİi", "aäÄßẞµμKKıİi*?"},
                                                          {"a\n\t\x7f/", "a\n\t\x7f/*?"}};
        for (const auto &[ofLabels, ofTexts] : lettersOfLabelsAndTexts) {
            host().dictionary.clear();
            for (int row = 0; row < 40; ++row)
                host().dictionary << &definition(9, any(ofLabels, 9).toUtf8(), any(ofLabels, 3).toUtf8());
            AttributesFilterDialog dialog;
            for (int round = 0; round < 500 && !QTest::currentTestFailed(); ++round)
                compare(dialog, any(ofTexts, 7), round % 2);
        }
    }

    void oddTexts()
    {
        for (const char *label : {"\\*ba", "\\a", "\\*a", "\\\\*a", "ba", "a*]b", "[a", "ab", "*", "5", ""})
            host().dictionary << &definition(9, label, label);
        AttributesFilterDialog dialog;
        for (const QString text : {"\\*a", "\\**a", "\\***a", "\\\\**a", "*\\*", "[\\**a]", "[#-**-a]", "[%a",
                                   "[%]b", "\\%a", "[a]%b", "%[^b]%", "a%[]b]", "a[%", "]%b", "[^%]%"})
            compare(dialog, QString(text).replace('%', QString(20, '*')), text.size() % 2);
    }

    void manyStarsEnd()
    {
        host().dictionary << &definition(9, QByteArray(64, 'a')) << &definition(9, "äb");
        AttributesFilterDialog dialog;
        host().text = QString(2000, '*') + "a*a*a*a*a*a*a*a*a*b";
        dialog.filterAttributeList();
        QVERIFY(host().top->isRowHidden(0) && host().top->isRowHidden(1));
    }

private:
    static void compare(AttributesFilterDialog &dialog, const QString &text, bool byPrompt)
    {
        host().text = text;
        host().byPrompt = byPrompt;
        dialog.filterAttributeList();
        const QRegExp expected("*" + text + "*", Qt::CaseInsensitive, QRegExp::Wildcard);
        for (int row = 0; row < host().top->rowCount(); ++row) {
            const QString label = host().top->item(row, 1)->data(byPrompt ? 138 : 137).toString();
            const bool shown = text.isEmpty() || expected.indexIn(label) != -1;
            QVERIFY2(host().top->isRowHidden(row) != shown, qPrintable(text + " on " + label));
        }
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

QTEST_MAIN(FilterPatternTest)
#include "tst_filter_pattern.moc"
