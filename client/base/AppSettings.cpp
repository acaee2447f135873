#include "base/AppSettings.h"

#include <QDebug>

AppSettings::AppSettings(const QString &file)
    : m_settings(file, QSettings::IniFormat)
{
    m_settings.beginGroup(QStringLiteral("config"));
    isHealthy("read");
}

QVariant AppSettings::value(const QString &key, const QVariant &defaultValue) const
{
    return m_settings.value(key, defaultValue);
}

bool AppSettings::setValue(const QString &key, const QVariant &value)
{
    m_settings.setValue(key, value);
    m_settings.sync();
    return isHealthy("written");
}

bool AppSettings::isHealthy(const char *operation) const
{
    if (m_settings.status() == QSettings::NoError)
        return true;
    qWarning().noquote().nospace() << "the settings file could not be " << operation << ": "
                                   << m_settings.fileName()
                                   << (m_settings.status() == QSettings::FormatError ? " (malformed)"
                                                                                     : " (no access)");
    return false;
}
