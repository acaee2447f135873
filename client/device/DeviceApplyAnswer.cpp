#include "device/DeviceApplyAnswer.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

namespace {

quint16 portOf(const QJsonValue &value)
{
    const int port = value.toInt(0);
    if (port >= 0 && port <= std::numeric_limits<quint16>::max())
        return static_cast<quint16>(port);
    qWarning() << "the service names no valid port:" << port;
    return 0;
}

} // namespace

stream::StreamingData streamingDataOf(const QJsonValue &data, const QString &serviceId)
{
    const QJsonValue result = data[QStringLiteral("resultInfo")];
    const QJsonValue control = result[QStringLiteral("controlList")][0];
    const QJsonValue address = control[QStringLiteral("controlInfoList")][0];

    stream::StreamingData streaming;
    streaming.controlPort = portOf(address[QStringLiteral("controlPort")]);
    streaming.userId = result[QStringLiteral("userId")].toInt(-1);
    streaming.serviceId = serviceId;
    streaming.padCode = data[QStringLiteral("padCode")].toString();
    streaming.controlIp = address[QStringLiteral("controlIp")].toString();
    streaming.sessionId = result[QStringLiteral("sessionId")].toString();
    return streaming;
}

QString applyLogText(const QJsonValue &data)
{
    const QJsonDocument document = QJsonDocument::fromVariant(data.toVariant());
    return document.isNull() ? data.toVariant().toString()
                             : QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}
