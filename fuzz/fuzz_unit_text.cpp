// A text as a unit, also in capitals, and two texts, parted by the first NUL, as a text and a pattern.
#include "gdm/host/gen_services.h"

#include <cmath>
#include <cstring>
#include <string>

#include <QString>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const std::string input(reinterpret_cast<const char *>(data), size);
    const char *text = input.c_str();
    const char *pattern = text + std::strlen(text) + (std::strlen(text) < size);
    const int code = gen__torvex_get_str_units(text);
    if (code != -1 && gen__torvex_get_str_units(gen__torvex_cur_units_str(code, code)) != code)
        __builtin_trap();
    const QString capitals = QString::fromLocal8Bit(text).toUpper();
    const int inCapitals = gen__torvex_get_str_units(capitals.toLocal8Bit().constData());
    if (code != -1 && inCapitals != -1 && inCapitals != code)
        __builtin_trap();
    float value = float(size);
    gen__torvex_units_convert_2(&value, code, gen__torvex_get_str_units(pattern));
    if (!std::isfinite(value) || !gen__str_cmp_reg(text, "*"))
        __builtin_trap();
    (void)gen__str_cmp_reg(text, pattern);
    (void)gen__str_cmp_nc(text, pattern);
    return 0;
}
