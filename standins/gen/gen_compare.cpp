#include "gdm/host/gen_services.h"

#include "common/wildcards.h"

#include <QString>

int gen__str_cmp_nc(const char *a, const char *b)
{
    return qstricmp(a ? a : "", b ? b : "");
}

bool gen__str_cmp_reg(const char *text, const char *pattern)
{
    // A fill passes the same pattern for each attribute. It is compared decoded, because the same bytes are a
    // different pattern in a different encoding.
    static QString last;
    static QRegularExpression expression;
    const QString wanted = QString::fromLocal8Bit(pattern);
    if (last != wanted) {
        last = wanted;
        expression = Zudunmaf::standins::wildcardExpression(wanted);
    }
    return expression.pattern().isEmpty() || expression.match(QString::fromUtf8(text)).hasMatch();
}
