#ifndef COMMON_MESSAGE_CATALOGUE_H
#define COMMON_MESSAGE_CATALOGUE_H

#include <QString>

/// @file
/// The texts of messages, from the gettext catalogues of one domain. The base dialog's and the services' stand-in each
/// contain a copy of this code, so that neither needs the other.
///
/// A catalogue maps a whole message key to its translation. The directory of the catalogues is bound to the domain for
/// the process: by gen::setCatalogueDirectory(), or at the first message to the directory that was installed or built
/// with the stand-ins. The language is that of LC_MESSAGES and LANGUAGE, which gen::setLanguage() sets.
namespace Zudunmaf
{
namespace standins
{

/// Returns the text of a message key in UTF-8: the translation, or field 4 of the key if there is none. Returns the key
/// itself if it has fewer than four fields, an empty text for null, and never null. The key must outlive the answer.
const char *messageOf(const char *key);

/// Returns the translation of `text` in UTF-8, or `text` itself if there is none. `text` must not be null.
const char *translationOf(const char *text);

/// Reads the catalogues from `directory`. An empty text stands for the directory that was installed or built with the
/// stand-ins.
void bindCatalogues(const QString &directory);

} // namespace standins
} // namespace Zudunmaf

#endif
