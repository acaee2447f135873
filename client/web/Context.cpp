#include "web/Context.h"

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
    return m_object.value(key).toInt();
}

QString Context::stringValue(const QString &key) const
{
    return m_object.value(key).toString();
}

QString Context::callback() const
{
    return stringValue(QStringLiteral("callback"));
}
