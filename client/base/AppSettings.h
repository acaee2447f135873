#pragma once

#include "base/AppPaths.h"

#include <QSettings>
#include <QString>
#include <QVariant>

// The client's settings file: the group "config" of an INI file. Each object reads the file afresh, so a
// change made by hand is seen by the next one.
//
// A value on the stack of whoever needs it; objects of different threads may be used at the same time.
class AppSettings
{
public:
    explicit AppSettings(const QString &file = AppPaths::settingsFile());

    // The value of a key, or the default when it is missing or the file cannot be read (which is logged when
    // the object is made).
    QVariant value(const QString &key, const QVariant &defaultValue = {}) const;
    // Stores a value at once, creating the file and its folder. False, with a log line, if it could not be
    // written.
    bool setValue(const QString &key, const QVariant &value);

private:
    bool isHealthy(const char *operation) const;

    QSettings m_settings;
};
