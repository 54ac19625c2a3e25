// A value's text as a host hands it in: type, units and display units from the first bytes, the rest is the text.
#include "gdm/gdm_qt.h"

#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size < 3)
        return 0;
    DmlAttrDef definition;
    std::memset(&definition, 0, sizeof definition);
    definition.type = data[0] % 6;
    definition.unitsClass = data[1] % 64 - 1;
    Zudunmaf::FeatureAttrLWI item;
    item.setDmlAttribute(QVariant::fromValue<void *>(&definition));
    item.setDisplayUnits(data[2] % 64 - 1);
    item.setValueFromString(QString::fromUtf8(reinterpret_cast<const char *>(data) + 3, int(size) - 3));

    const QString written = item.valueAsString();
    Zudunmaf::FeatureAttrLWI reader;
    reader.setDmlAttribute(QVariant::fromValue<void *>(&definition));
    reader.setValueFromString(written);
    // Numbers are rounded on their way out; all else comes back as it was.
    if (definition.type != DmlAttrFloat && reader.valueAsString() != written)
        __builtin_trap();
    return 0;
}
