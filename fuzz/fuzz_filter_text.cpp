// A filter text and a label, separated by the first NUL. The visibility agrees with QRegExp, and the fill rule survives.
#include "gdm/dialogs/fill_rule.h"
#include "gdm/dialogs/filter_pattern.h"
#include "gdm/items/attr_records.h"

#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const QString text = QString::fromUtf8(input.left(input.indexOf('\0')));
    const QByteArray label = input.mid(text.isEmpty() ? 0 : input.indexOf('\0') + 1).left(64);

    DmlAttrDef definition;
    std::memset(&definition, 0xFF, sizeof definition);
    std::memcpy(definition.name, label.constData(), size_t(label.size()));
    (void)Zudunmaf::FillRule(1, QString(), true, text, false, true).accepts(definition);

    const Zudunmaf::FilterPattern pattern(text);
    // QRegExp takes cubic time for a run of stars, so only short texts are compared.
    const bool isShort = text.size() <= 12;
    const QRegExp expected(isShort ? "*" + text + "*" : QString(), Qt::CaseInsensitive, QRegExp::Wildcard);
    for (const QByteArray &shown : {QByteArray(label.constData()), text.toUpper().toUtf8()}) {
        const bool matches = pattern.matches(shown.constData());
        if (isShort && matches != (text.isEmpty() || expected.indexIn(QString(shown)) != -1))
            __builtin_trap();
    }
    return 0;
}
