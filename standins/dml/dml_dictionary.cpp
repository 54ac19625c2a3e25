#include "gdm/host/dml_dictionary.h"

#include "dml/dictionary_store.h"
#include "gen/gen_control.h"

namespace
{

enum WalkStatus { WalkOk = 0, WalkBadCall = 1, WalkNoDictionary = 2, WalkBadCursor = 3 };

WalkStatus fail(WalkStatus status, int did, const char *reason)
{
    const QString note = QStringLiteral("dictionary %1: %2").arg(did).arg(QLatin1String(reason));
    Zudunmaf::gen::noteFailure(note.toUtf8().constData());
    return status;
}

} // namespace

int dml__atr_next(int did, int, unsigned int entityMask, int *cursor, DmlAttrDef **definition)
{
    if (!cursor || !definition)
        return fail(WalkBadCall, did, "the walk was called without a cursor or a place for the definition");
    Zudunmaf::dml::Dictionary *dictionary = Zudunmaf::dml::DictionaryStore::instance().find(did);
    if (!dictionary)
        return fail(WalkNoDictionary, did, "it is not loaded");
    if (*cursor < 0 || *cursor > dictionary->count())
        return fail(WalkBadCursor, did, "the cursor of the walk is not one of this dictionary");
    *definition = dictionary->next(entityMask, *cursor);
    return WalkOk;
}
