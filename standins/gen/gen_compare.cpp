#include "gdm/host/gen_services.h"

#include "gen/wildcard_pattern.h"

#include <QString>

int gen__str_cmp_nc(const char *a, const char *b)
{
    return qstricmp(a ? a : "", b ? b : "");
}

bool gen__str_cmp_reg(const char *text, const char *pattern)
{
    using Zudunmaf::gen::WildcardPattern;

    // A walk over the dictionary asks with the same pattern for each attribute. It is compared decoded,
    // because the same bytes are another pattern under another codec.
    static WildcardPattern last(QStringLiteral("*"));
    const QString wanted = QString::fromLocal8Bit(pattern);
    if (last.source() != wanted)
        last = WildcardPattern(wanted);
    return last.matches(QString::fromUtf8(text));
}
