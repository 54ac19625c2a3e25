#ifndef COMMON_MESSAGE_CATALOGUE_H
#define COMMON_MESSAGE_CATALOGUE_H

#include <cstddef>
#include <cstring>
#include <libintl.h>

/// How the stand-ins find the text of a message: in the gettext catalogues of one domain, by the whole key.
///
/// Only a look-up, so that each stand-in can have its own copy. Which language is spoken and where the
/// catalogues lie is the process's: the services' stand-in sets both (gen/gen_control.h). Without it the
/// English text stands.
namespace Zudunmaf
{
namespace standins
{

constexpr char CatalogueDomain[] = "zudunmaf";

/// Field 4 of a key such as "@$@#gdm_qt@$@#GENERAL@$@#967@$@#Name", inside the key itself; null where the key
/// does not have four fields. `key` is not null.
inline const char *englishTextOf(const char *key)
{
    constexpr char marker[] = "@$@#";
    constexpr std::size_t width = sizeof marker - 1;

    if (std::strncmp(key, marker, width) != 0)
        return nullptr;
    const char *text = key + width;
    for (int field = 2; field <= 4; ++field) {
        text = std::strstr(text, marker);
        if (!text)
            return nullptr;
        text += width;
    }
    return text;
}

/// The translation of `text`, or `text` itself where there is none. Neither null nor freed by anyone.
inline const char *translationOf(const char *text)
{
    // gettext answers the empty text with the header of its catalogue.
    return *text ? dgettext(CatalogueDomain, text) : text;
}

/// The text to show for a message key, in UTF-8: the translation, else field 4, and never null. A key that is
/// malformed is its own text; a null key has the empty one. The key must outlive the answer.
inline const char *messageOf(const char *key)
{
    if (!key)
        return "";
    const char *english = englishTextOf(key);
    if (!english)
        return key;
    const char *text = translationOf(key);
    return text == key ? english : text;
}

} // namespace standins
} // namespace Zudunmaf

#endif
