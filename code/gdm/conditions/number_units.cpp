#include "gdm/conditions/number_units.h"

#include "gdm/host/gen_services.h"

#include <QByteArray>

#include <cmath>
#include <limits>

namespace Zudunmaf
{

float narrowedNumber(double number)
{
    if (std::fabs(number) <= double(std::numeric_limits<float>::max()))
        return static_cast<float>(number);
    if (std::isnan(number))
        return std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    return number < 0 ? -infinity : infinity;
}

QString textOfUnits(int code)
{
    return code == -1 ? QString(QLatin1String("")) : QString(gen__torvex_cur_units_str(code, code));
}

NumberUnits::NumberUnits(int savedCode, const QString &savedText, int target)
    : m_source(savedCode)
    , m_target(target)
    , m_relation(Same)
{
    const QString targetText = textOfUnits(target);
    if (savedText == targetText && (!savedText.isEmpty() || savedCode == target))
        return;
    if (!savedText.isEmpty()) {
        m_source = gen__torvex_get_str_units(savedText.toLocal8Bit().constData());
        // The services can return any code for a text that they do not know.
        if (m_source == -1 || textOfUnits(m_source) != savedText) {
            m_relation = Unknown;
            return;
        }
    }
    m_relation = relationBetween(m_source, target);
}

NumberUnits::Relation NumberUnits::relationBetween(int source, int target)
{
    if (source == target)
        return Same;
    if (source == -1 || target == -1)
        return OneUnitless;
    // The services show a number in the target units only if the dimensions are the same.
    return QString(gen__torvex_cur_units_str(source, target)) == textOfUnits(target) ? Convertible : Unknown;
}

double NumberUnits::converted(double number) const
{
    if (m_relation != Convertible || !std::isfinite(number))
        return number;
    float value = narrowedNumber(number);
    if (std::isfinite(value))
        gen__torvex_units_convert_2(&value, m_source, m_target);
    return double(value);
}

} // namespace Zudunmaf
