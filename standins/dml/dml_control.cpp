#include "dml/dml_control.h"

#include "dml/dictionary_reader.h"
#include "dml/dictionary_store.h"

#include <QDir>
#include <QFile>

namespace Zudunmaf::dml
{

namespace
{

bool accept(const Refusal &refusal, QString *error)
{
    if (refusal.isSet() && error)
        *error = refusal.message();
    return !refusal.isSet();
}

} // namespace

bool loadFile(const QString &fileName, QString *error)
{
    const QString displayName = QDir::toNativeSeparators(fileName);
    QFile file(fileName);
    QByteArray json;
    if (file.open(QIODevice::ReadOnly))
        json = file.readAll();
    // QFile reports an incomplete read only through error().
    if (file.error() == QFileDevice::NoError)
        return loadJson(json, displayName, error);

    Refusal refusal(displayName);
    refusal.refuse({}, QStringLiteral("a file that can be read"), file.errorString());
    return accept(refusal, error);
}

bool loadJson(const QByteArray &json, const QString &displayName, QString *error)
{
    Refusal refusal(displayName);
    std::vector<std::unique_ptr<Dictionary>> dictionaries = DictionaryReader(refusal).read(json);
    if (!refusal.isSet())
        DictionaryStore::instance().add(std::move(dictionaries), refusal);
    return accept(refusal, error);
}

bool unload(int did)
{
    return DictionaryStore::instance().remove(did);
}

void unloadAll()
{
    DictionaryStore::instance().clear();
}

QVector<int> loadedIds()
{
    return DictionaryStore::instance().ids();
}

int attributeCount(int did)
{
    const Dictionary *dictionary = DictionaryStore::instance().find(did);
    return dictionary ? dictionary->count() : -1;
}

QString title(int did)
{
    const Dictionary *dictionary = DictionaryStore::instance().find(did);
    return dictionary ? dictionary->title() : QString();
}

} // namespace Zudunmaf::dml
