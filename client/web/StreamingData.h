#pragma once

#include <QMetaType>
#include <QString>
#include <QUrl>
#include <QVariantMap>

namespace web {

// A device that the front end streams by itself, as its page hands it over. Plain value. (The connection of a
// device that the client streams is stream::StreamingData.)
struct StreamingData
{
    QString deviceId;
    QString serviceId;
    QString nodeType; // kind of machine that the device runs on
    QString payMode;
    QString uuid;
    QString apiHost; // root of the service's API for this device
    QString aliasName;
    QString ttl; // seconds that the user's time with the device lasts

    // The page's object. Members that are missing or neither text nor number are empty.
    static StreamingData fromVariantMap(const QVariantMap &object);
    // The device's page: `page` (with its route) and the record as query items.
    QUrl pageUrl(const QString &page) const;
};

// Lets the page call slots that take the record with a plain object. Idempotent; GUI thread.
void registerStreamingData();

} // namespace web

Q_DECLARE_METATYPE(web::StreamingData)
