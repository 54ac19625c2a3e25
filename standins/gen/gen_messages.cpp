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

/// Sets another locale if that of messages is "C", in which gettext ignores LANGUAGE and translates nothing.
void replaceUntranslatedLocale()
{
    const char *locale = std::setlocale(LC_MESSAGES, nullptr);
    if (locale && std::strcmp(locale, "C") != 0 && std::strcmp(locale, "POSIX") != 0)
        return;
    for (const char *candidate : {"C.UTF-8", "C.utf8", "en_US.UTF-8"}) {
        if (std::setlocale(LC_MESSAGES, candidate))
            return;
    }
}

/// Clears the cache of translations. gettext does so in textdomain() and not when LANGUAGE changes.
void clearCachedTranslations()
{
    textdomain(textdomain(nullptr));
}

bool isLanguageSet = false;

void applyLanguage()
{
    if (isLanguageSet)
        replaceUntranslatedLocale();
}

/// Returns a UTF-8 text in the local 8-bit encoding of Qt, whose codec can differ from the locale of the C library.
/// Keeps each encoded text, so that earlier results stay valid after a change of language or codec.
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
    // The constructor of QCoreApplication sets the locale again.
    static const bool isHooked = (qAddPreRoutine(applyLanguage), true);
    Q_UNUSED(isHooked)

    isLanguageSet = !language.isEmpty();
    qputenv("LANGUAGE", isLanguageSet ? language.toLatin1() : languageOfUser);
    if (!isLanguageSet)
        std::setlocale(LC_MESSAGES, "");
    applyLanguage();
    clearCachedTranslations();
}

void Zudunmaf::gen::setCatalogueDirectory(const QString &directory)
{
    Zudunmaf::standins::bindCatalogues(directory);
    clearCachedTranslations();
}

const char *gen__nls_nlst(const char *key)
{
    return localTextOf(Zudunmaf::standins::messageOf(key));
}

// Returns UTF-8, as the texts of the dictionary are, because gen__str_cmp_reg() reads both.
const char *gen__nls_nlsa_get_att_prompt(const char *name, const char *prompt)
{
    if (prompt && *prompt)
        return Zudunmaf::standins::translationOf(prompt);
    return name ? name : "";
}
