#include "foreign_host.h"

#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"

#include <cstdlib>
#include <cstring>

namespace
{

/// Each text overwrites the whole buffer.
const char *answer(char (&buffer)[400], const QByteArray &text)
{
    std::memset(buffer, '#', sizeof buffer);
    return qstrncpy(buffer, text.constData(), sizeof buffer);
}

char g_messages[400];
char g_prompts[400];

bool failsNow()
{
    return ++host().fallible == host().failAt;
}

/// Returns true if a memory service was called with a position in the library.
bool isOwn(int one, const char *file, int line)
{
    return one == 1 && line > 0 && QByteArray(file).startsWith("code/gdm/");
}

/// Units 1, 2 and 3 are inch, mm and mil, and 4 and 5 degC and degF; other codes convert nothing.
double factor(int code)
{
    return code == 2 ? 25.4 : code == 3 ? 1000.0 : 1.0;
}

} // namespace

const char *gen__nls_nlst(const char *key)
{
    host().note("nls", key);
    const QByteArray text(key);
    return answer(g_messages, host().translations.value(text, text.mid(text.lastIndexOf("@$@#") + 4)));
}

int gen__cfg_get(const char *key, unsigned char *value, unsigned char *origin)
{
    host().note("cfg", key);
    const bool flag = qstrcmp(key, "edt_disp_attr_by_prompt") == 0 ? host().byPrompt : host().showObsolete;
    const bool fails = failsNow();
    *value = fails ? 0xA5 : flag ? 0x80 : 0;
    *origin = 0xA5;
    return fails ? host().failStatus : 0;
}

void *gen__mem_malloc(size_t size, int one, const char *file, int line)
{
    if (size != sizeof(DmlAttrValue) || !isOwn(one, file, line))
        host().faults << QString("malloc in ") + file;
    void *memory = std::memset(std::malloc(size), 0xA5, size);
    host().memory.insert(memory);
    return memory;
}

void gen__mem_free(void *memory, int one, const char *file, int line)
{
    if (!host().memory.remove(memory) || !isOwn(one, file, line))
        host().faults << QString("free in ") + file;
    else
        std::free(memory);
}

void gen__torvex_units_convert_2(float *value, int source, int target)
{
    host().note("convert_2", *value, source, target);
    if (source == 5 && target == 4)
        *value = float((double(*value) - 32) / 1.8);
    else if (source != -1 && target != -1)
        *value = float(double(*value) / factor(source) * factor(target));
}

const char *gen__torvex_cur_units_str(int unitsClass, int displayUnits)
{
    host().note("cur_units", unitsClass, displayUnits);
    const char *const texts[] = {"", "inch", "mm", "mil", "degC", "degF"};
    return answer(g_messages,
                  unitsClass < 1 || displayUnits < 1 || displayUnits > 5 ? "" : texts[displayUnits]);
}

int dml__atr_next(int did, int one, unsigned int entityMask, int *cursor, DmlAttrDef **definition)
{
    host().note("next", did, one, QString::number(entityMask, 16));
    *definition = reinterpret_cast<DmlAttrDef *>(quintptr(0xA5A5A5A5));
    if (failsNow())
        return host().failStatus;
    do {
        *definition = host().dictionary.value(*cursor / -3, nullptr);
        *cursor -= 3;
    } while (*definition && !((*definition)->entityMask & entityMask));
    return 0;
}

const char *gen__nls_nlsa_get_att_prompt(const char *name, const char *prompt)
{
    host().note("prompt", name, prompt);
    return answer(g_prompts, QByteArray("host:") + prompt);
}

/// "*" matches every text, and any other pattern only an equal text.
bool gen__str_cmp_reg(const char *text, const char *pattern)
{
    host().note("match", text, pattern);
    return qstrcmp(pattern, "*") == 0 || qstrcmp(pattern, text) == 0;
}

int gen__str_cmp_nc(const char *a, const char *b)
{
    host().note("cmp", a, b);
    return qstricmp(a, b);
}

void gen__torvex_units_convert(void *null, int *code, int displayUnits)
{
    host().note("convert", null ? "?" : "null", *code, displayUnits);
    *code = 100 + displayUnits;
}

void gen__torvex_units_convert_f(float *value, int unitsClass, int code)
{
    host().note("convert_f", *value, unitsClass, code);
    *value = float(double(*value) / factor(code - 100) * factor(unitsClass));
}

int gen__torvex_get_str_units(const char *text)
{
    host().note("get_units", text);
    const QList<QByteArray> known{"inch", "mm", "mil", "degC", "degF"};
    return qstrcmp(text, "furlong") == 0 ? -1 : known.contains(text) ? int(known.indexOf(text)) + 1 : 77;
}

void gen__log_status_check(const char *file, int line)
{
    host().reports << QString("%1 %2").arg(file).arg(line);
}
