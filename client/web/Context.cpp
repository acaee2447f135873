#include "web/Context.h"

#include <limits>
#include <utility>

Context::Context(QJsonObject object)
    : m_object(std::move(object))
{ }

QVariant Context::value(const QString &key) const
{
    const QJsonValue found = m_object.value(key);
    return found.isUndefined() ? QVariant() : found.toVariant();
}

int Context::intValue(const QString &key) const
{
    const QVariant found = value(key);
    // The conversion of a number that no int holds is undefined.
    const double number = found.toDouble();
    constexpr double half = 0.5;
    const bool fits
        = number > std::numeric_limits<int>::min() - half && number < std::numeric_limits<int>::max() + half;
    return fits ? found.toInt() : 0;
}

QString Context::stringValue(const QString &key) const
{
    return value(key).toString();
}

QString Context::callback() const
{
    return m_object.value(QLatin1String("callback")).toString();
}
