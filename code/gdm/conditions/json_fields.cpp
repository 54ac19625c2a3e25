#include "gdm/conditions/json_fields.h"

#if GDM_HAS_JSON

#    include <QStringList>

#    include <cmath>
#    include <limits>

namespace Zudunmaf
{

namespace
{

const char *const typeNames[] = {"boolean", "text", "option", "integer", "float"};

const int typeCount = int(sizeof typeNames / sizeof typeNames[0]);

bool isInt(double number)
{
    return number == std::floor(number) && number >= double(std::numeric_limits<int>::min()) &&
           number <= double(std::numeric_limits<int>::max());
}

/// Numbers that JSON lacks, or that QJsonDocument does not keep.
struct NamedNumber {
    const char *name;
    double number;
};

const NamedNumber namedNumbers[] = {
    {"inf", std::numeric_limits<double>::infinity()},
    {"-inf", -std::numeric_limits<double>::infinity()},
    {"nan", std::numeric_limits<double>::quiet_NaN()},
    {"-0", -0.0},
};

} // namespace

QJsonValue jsonOfNumber(double number)
{
    if (std::isnan(number))
        return QJsonValue(QLatin1String("nan"));
    if (std::isinf(number))
        return QJsonValue(QLatin1String(number > 0 ? "inf" : "-inf"));
    if (number == 0 && std::signbit(number))
        return QJsonValue(QLatin1String("-0"));
    return QJsonValue(number);
}

QJsonValue jsonOfType(int type)
{
    return type >= 0 && type < typeCount ? QJsonValue(QLatin1String(typeNames[type])) : QJsonValue(type);
}

JsonFields::JsonFields(const QJsonObject &object, const QString &place)
    : m_object(object)
    , m_place(place)
{
}

QString JsonFields::text(const char *name)
{
    const QJsonValue value = any(name);
    if (!value.isString())
        refuse(name, QLatin1String("is no text"));
    return value.toString();
}

bool JsonFields::flag(const char *name)
{
    const QJsonValue value = any(name);
    if (!value.isBool())
        refuse(name, QLatin1String("is neither true nor false"));
    return value.toBool();
}

double JsonFields::number(const char *name)
{
    const QJsonValue value = any(name);
    for (const NamedNumber &named : namedNumbers) {
        if (value.isString() && value.toString() == QLatin1String(named.name))
            return named.number;
    }
    if (!value.isDouble())
        refuse(name, QLatin1String("is no number"));
    return value.toDouble();
}

int JsonFields::integer(const char *name)
{
    const QJsonValue value = any(name);
    const double number = value.toDouble();
    if (value.isDouble() && isInt(number))
        return int(number);
    refuse(name, QLatin1String("is no whole number of 32 bits"));
    return 0;
}

int JsonFields::type(const char *name)
{
    if (any(name).isDouble()) {
        const int code = integer(name);
        if (code >= 0 && code < typeCount)
            refuse(name, QLatin1String("is the code of a type that has a name"));
        return code;
    }
    const QString word = text(name);
    for (int code = 0; code < typeCount; ++code) {
        if (word == QLatin1String(typeNames[code]))
            return code;
    }
    refuse(name, QString(QLatin1String("'%1' is no type")).arg(word));
    return -1;
}

QJsonValue JsonFields::any(const char *name)
{
    m_read.insert(QLatin1String(name));
    if (!has(name))
        refuse(name, QLatin1String("is missing"));
    return m_object.value(QLatin1String(name));
}

void JsonFields::refuse(const QString &name, const QString &reason)
{
    if (!m_problem.reason.isEmpty())
        return;
    m_problem.place = m_place.isEmpty() ? name : m_place + QLatin1Char('.') + name;
    m_problem.reason = reason;
}

bool JsonFields::finish(DocumentProblem *problem)
{
    const QStringList names = m_object.keys();
    for (const QString &name : names) {
        if (!m_read.contains(name))
            refuse(name, QLatin1String("is an unknown field"));
    }
    if (m_problem.reason.isEmpty())
        return true;
    *problem = m_problem;
    return false;
}

} // namespace Zudunmaf

#endif
