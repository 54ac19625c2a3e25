#include "gdm/conditions/number_units.h"

#include "gdm/host/gen_services.h"

#include <QByteArray>

#include <cmath>
#include <limits>

namespace Zudunmaf
{

namespace
{

/// Beyond its range, the conversion to a float is undefined.
float narrowed(double number)
{
    if (std::fabs(number) <= double(std::numeric_limits<float>::max()))
        return static_cast<float>(number);
    return std::isnan(number)
               ? std::numeric_limits<float>::quiet_NaN()
               : std::copysign(std::numeric_limits<float>::infinity(), float(number < 0 ? -1 : 1));
}

} // namespace

QString textOfUnits(int code)
{
    return code == -1 ? QString(QLatin1String("")) : QString(gen__torvex_cur_units_str(code, code));
}

NumberUnits::NumberUnits(int savedCode, const QString &savedText, int target)
    : m_source(savedCode)
    , m_target(target)
    , m_way(Same)
{
    const QString targetText = textOfUnits(target);
    if (savedText == targetText && (!savedText.isEmpty() || savedCode == target))
        return;
    if (!savedText.isEmpty()) {
        m_source = gen__torvex_get_str_units(savedText.toLocal8Bit().constData());
        // The services may answer any code for a text that they do not know.
        if (m_source == -1 || textOfUnits(m_source) != savedText) {
            m_way = Unknown;
            return;
        }
    }
    m_way = wayBetween(m_source, target);
}

NumberUnits::Way NumberUnits::wayBetween(int source, int target)
{
    if (source == target)
        return Same;
    if (source == -1 || target == -1)
        return OneWithout;
    // Units of another dimension are not shown in those of the target.
    return QString(gen__torvex_cur_units_str(source, target)) == textOfUnits(target) ? Known : Unknown;
}

double NumberUnits::converted(double number) const
{
    if (m_way != Known || !std::isfinite(number))
        return number;
    float value = narrowed(number);
    if (std::isfinite(value))
        gen__torvex_units_convert_2(&value, m_source, m_target);
    return double(value);
}

} // namespace Zudunmaf
