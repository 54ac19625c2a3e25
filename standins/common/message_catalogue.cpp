#include "common/message_catalogue.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstddef>
#include <cstring>
#include <dlfcn.h>
#include <libintl.h>

namespace Zudunmaf
{
namespace standins
{

namespace
{

constexpr char CatalogueDomain[] = "zudunmaf";

/// Returns the directory of the catalogues relative to this library, which is installed or still in the build
/// directory.
QString defaultDirectory()
{
    Dl_info library;
    if (dladdr(reinterpret_cast<const void *>(&CatalogueDomain), &library) == 0)
        return QString();
    const QFileInfo file(QFile::decodeName(library.dli_fname));
    const QDir home(QFileInfo(file.canonicalFilePath()).absolutePath());
    for (const char *path : {ZUDUNMAF_LOCALE_FROM_LIBRARY, ZUDUNMAF_LOCALE_FROM_BUILT_LIBRARY}) {
        const QString directory = home.filePath(QLatin1String(path));
        if (QFileInfo(directory).isDir())
            return QDir::cleanPath(directory);
    }
    return QString();
}

/// Returns true if the process has bound the domain. gettext has no function for it, but answers the same directory for
/// all domains that are not bound.
bool isDomainBound()
{
    const char *directory = bindtextdomain(CatalogueDomain, nullptr);
    const char *directoryOfUnbound = bindtextdomain("zudunmaf-unbound", nullptr);
    return directory && directoryOfUnbound && std::strcmp(directory, directoryOfUnbound) != 0;
}

bool bindUnlessBound()
{
    if (!isDomainBound())
        bindCatalogues(QString());
    return true;
}

/// Returns field 4 of a key such as "@$@#gdm_qt@$@#GENERAL@$@#967@$@#Name", inside the key itself; null if the key has
/// fewer than four fields.
const char *englishTextOf(const char *key)
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

} // namespace

void bindCatalogues(const QString &directory)
{
    const QString bound = directory.isEmpty() ? defaultDirectory() : QDir(directory).absolutePath();
    if (!bound.isEmpty())
        bindtextdomain(CatalogueDomain, QFile::encodeName(bound).constData());
    bind_textdomain_codeset(CatalogueDomain, "UTF-8");
}

const char *translationOf(const char *text)
{
    static const bool isBound = bindUnlessBound();
    Q_UNUSED(isBound)
    // gettext answers an empty text with the header of its catalogue.
    return *text ? dgettext(CatalogueDomain, text) : text;
}

const char *messageOf(const char *key)
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
