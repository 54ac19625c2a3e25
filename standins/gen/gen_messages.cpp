#include "gdm/host/gen_services.h"

#include "common/message_catalogue.h"
#include "gen/gen_control.h"

#include <clocale>
#include <cstring>
#include <libintl.h>

#include <QCoreApplication>
#include <QSet>

namespace
{

/// In the locale "C" gettext translates nothing, whatever language is asked for.
void leaveUntranslatedLocale()
{
    const char *locale = std::setlocale(LC_MESSAGES, nullptr);
    if (locale && std::strcmp(locale, "C") != 0 && std::strcmp(locale, "POSIX") != 0)
        return;
    for (const char *candidate : {"C.UTF-8", "C.utf8", "en_US.UTF-8"}) {
        if (std::setlocale(LC_MESSAGES, candidate))
            return;
    }
}

/// gettext keeps the translations that it has found until it is told that the language may be another.
void forgetFoundTranslations()
{
    textdomain(textdomain(nullptr));
}

bool isLanguageChosen = false;

void makeChoiceCount()
{
    if (isLanguageChosen)
        leaveUntranslatedLocale();
}

/// The text, which is UTF-8, in the local 8-bit encoding of the running Qt. Catalogues give UTF-8, since the
/// C library's locale and Qt's codec can differ. The pool is keyed by the encoded bytes, so that an earlier
/// answer stays valid after a change of language or codec.
const char *localTextOf(const char *text)
{
    const QByteArray encoded = QString::fromUtf8(text).toLocal8Bit();
    if (encoded == text)
        return text;
    static QSet<QByteArray> pool;
    return pool.insert(encoded)->constData();
}

} // namespace

void Zudunmaf::gen::setLanguage(const QString &language)
{
    static const QByteArray languageOfUser = qgetenv("LANGUAGE");
    // An application object that is made later sets the whole locale anew.
    static const bool isHooked = (qAddPreRoutine(makeChoiceCount), true);
    Q_UNUSED(isHooked)

    isLanguageChosen = !language.isEmpty();
    qputenv("LANGUAGE", isLanguageChosen ? language.toLatin1() : languageOfUser);
    if (!isLanguageChosen)
        std::setlocale(LC_MESSAGES, "");
    makeChoiceCount();
    forgetFoundTranslations();
}

void Zudunmaf::gen::setCatalogueDirectory(const QString &directory)
{
    Zudunmaf::standins::bindCatalogues(directory);
    forgetFoundTranslations();
}

const char *gen__nls_nlst(const char *key)
{
    return localTextOf(Zudunmaf::standins::messageOf(key));
}

// In UTF-8 like the dictionary's own texts, which gen__str_cmp_reg() reads in the same way.
const char *gen__nls_nlsa_get_att_prompt(const char *name, const char *prompt)
{
    if (prompt && *prompt)
        return Zudunmaf::standins::translationOf(prompt);
    return name ? name : "";
}
