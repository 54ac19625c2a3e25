// The text of a dictionary file. A dictionary that is loaded can be walked to its end, and one that is refused gives the
// reason.
#include "dml/dml_control.h"
#include "gdm/host/dml_dictionary.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    QString error;
    const QByteArray json(reinterpret_cast<const char *>(data), int(size));
    const bool taken = Zudunmaf::dml::loadJson(json, QStringLiteral("fuzz"), &error);
    if (taken != error.isEmpty() || taken == Zudunmaf::dml::loadedIds().isEmpty())
        __builtin_trap();
    for (int id : Zudunmaf::dml::loadedIds()) {
        int cursor = 0;
        int count = 0;
        DmlAttrDef *definition = nullptr;
        while (dml__atr_next(id, 1, 0xFFFFFFFF, &cursor, &definition) == 0 && definition)
            ++count;
        if (count != Zudunmaf::dml::attributeCount(id))
            __builtin_trap();
    }
    Zudunmaf::dml::unloadAll();
    return 0;
}
