#include "DeviceSession.h"

#include "net/HttpHelper.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace bench {

DeviceSession::DeviceSession()
    : m_service(QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1)
{
    m_service.start();
    qputenv("ORVANE_API_BASE_URL", m_service.apiBaseUrl().toUtf8());
    const QJsonObject user = m_service.signIn();
    const QString token = user.value(QLatin1String("access_token")).toString();
    const QString login = user.value(QLatin1String("login_id")).toString();
    HttpHelper::setLoginParams(token, login);

    const QJsonObject devices = m_service.admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"));
    m_serviceId = devices.value(QLatin1String("devices"))
                      .toArray()
                      .at(0)
                      .toObject()
                      .value(QLatin1String("service_id"))
                      .toString();
    const QJsonObject headers{{QStringLiteral("access-token"), token}, {QStringLiteral("login-id"), login}};
    const QJsonObject body{{QStringLiteral("service_id"), m_serviceId},
        {QStringLiteral("action_type"), QStringLiteral("device_apply")}};
    const QJsonObject answer
        = m_service.call(QStringLiteral("POST"), QStringLiteral("/apiv1/device/actionDevice"), body, headers)
              .value(QLatin1String("data"))
              .toObject();
    const QJsonObject info = answer.value(QLatin1String("resultInfo")).toObject();
    const QJsonObject control = info.value(QLatin1String("controlList"))
                                    .toArray()
                                    .at(0)
                                    .toObject()
                                    .value(QLatin1String("controlInfoList"))
                                    .toArray()
                                    .at(0)
                                    .toObject();
    m_data.controlPort = static_cast<quint16>(control.value(QLatin1String("controlPort")).toInt());
    m_data.userId = info.value(QLatin1String("userId")).toInt(-1);
    m_data.serviceId = m_serviceId;
    m_data.padCode = answer.value(QLatin1String("padCode")).toString();
    m_data.controlIp = control.value(QLatin1String("controlIp")).toString();
    m_data.sessionId = info.value(QLatin1String("sessionId")).toString();
}

} // namespace bench
