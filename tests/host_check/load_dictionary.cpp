#include "dml/dml_control.h"

/// What a host does before its first dialog: opens its dictionary.
extern "C" GDM_EXPORT int loadDictionary()
{
    return Zudunmaf::dml::loadFile(QStringLiteral(ZUDUNMAF_DICTIONARY)) ? 0 : 1;
}
