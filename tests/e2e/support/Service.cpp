#include "Service.h"

#include "Waiting.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

namespace e2e {

Service::Service(const QString &program, int devices, const QStringList &options)
    : m_program(program)
    , m_devices(devices)
    , m_options(options)
{
    m_process.setProgram(program);
    QObject::connect(&m_process, &QProcess::readyReadStandardError, &m_process,
        [this] { m_output += m_process.readAllStandardError(); });
}

Service::~Service()
{
    m_process.disconnect();
    m_process.terminate();
    if (!m_process.waitForFinished(5000))
        m_process.kill();
    m_process.waitForFinished(5000);
}

void Service::start()
{
    m_process.setArguments(
        QStringList{QStringLiteral("--http-port"), QString::number(m_httpPort),
            QStringLiteral("--gateway-port"), QString::number(m_gatewayPort), QStringLiteral("--data"),
            m_data.path(), QStringLiteral("--devices"), QString::number(m_devices)}
        + m_options);
    m_process.start();
    waitUntil(
        QStringLiteral("%1 reports that it is ready").arg(m_program),
        [this] { return m_process.canReadLine() || m_process.state() == QProcess::NotRunning; }, 20000);
    const QJsonObject ready = QJsonDocument::fromJson(m_process.readLine()).object();
    m_apiBaseUrl = ready.value(QLatin1String("http")).toString();
    m_httpPort = static_cast<quint16>(QUrl(m_apiBaseUrl).port(0));
    m_gatewayPort = static_cast<quint16>(QUrl(ready.value(QLatin1String("gateway")).toString()).port(0));
    if (m_httpPort == 0 || m_gatewayPort == 0)
        throw StepFailed(QStringLiteral("the service did not start: %1").arg(output()));
}

void Service::kill()
{
    m_process.kill();
    m_process.waitForFinished(5000);
}

QByteArray Service::request(
    const QString &method, const QString &path, const QJsonObject &body, const QJsonObject &headers) const
{
    QNetworkAccessManager manager;
    QNetworkRequest request{QUrl(m_apiBaseUrl + path)};
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    for (auto it = headers.begin(); it != headers.end(); ++it)
        request.setRawHeader(it.key().toUtf8(), it.value().toString().toUtf8());
    QNetworkReply *reply = manager.sendCustomRequest(request, method.toUtf8(),
        method == QLatin1String("GET") ? QByteArray() : QJsonDocument(body).toJson(QJsonDocument::Compact));
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(10000, &loop, &QEventLoop::quit);
    if (!reply->isFinished())
        loop.exec();
    if (!reply->isFinished() || reply->error() != QNetworkReply::NoError)
        throw StepFailed(QStringLiteral("%1 %2: %3").arg(method, path, reply->errorString()));
    return reply->readAll();
}

QJsonObject Service::call(
    const QString &method, const QString &path, const QJsonObject &body, const QJsonObject &headers) const
{
    return QJsonDocument::fromJson(request(method, path, body, headers)).object();
}

QJsonObject Service::admin(const QString &method, const QString &path, const QJsonObject &body) const
{
    const QJsonObject answer = call(method, path, body);
    if (answer.value(QLatin1String("code")).toInt() != 200)
        throw StepFailed(
            QStringLiteral("%1 %2: %3").arg(method, path, answer.value(QLatin1String("msg")).toString()));
    return answer.value(QLatin1String("data")).toObject();
}

QJsonObject Service::signIn()
{
    const QJsonObject body{{QStringLiteral("account"), QStringLiteral("demo")},
        {QStringLiteral("password"), QStringLiteral("orvane-demo")}};
    return call(QStringLiteral("POST"), QStringLiteral("/apiv1/user/login"), body)
        .value(QLatin1String("data"))
        .toObject();
}

QJsonArray Service::devices() const
{
    return admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
        .value(QLatin1String("devices"))
        .toArray();
}

QJsonArray Service::inputRecords(const QString &pad, qint64 since) const
{
    return admin(
        QStringLiteral("GET"), QStringLiteral("/admin/devices/%1/input?since=%2").arg(pad).arg(since))
        .value(QLatin1String("events"))
        .toArray();
}

QJsonArray Service::inputEvents(const QString &pad, qint64 since) const
{
    QJsonArray events;
    const QJsonArray records = inputRecords(pad, since);
    for (const QJsonValue &entry : records)
        events.append(entry.toObject().value(QLatin1String("event")));
    return events;
}

QJsonObject Service::appState(const QString &pad) const
{
    return admin(QStringLiteral("GET"), QStringLiteral("/admin/devices/%1/app").arg(pad));
}

QImage Service::screen(const QString &pad) const
{
    return QImage::fromData(
        request(QStringLiteral("GET"), QStringLiteral("/admin/devices/%1/screen").arg(pad)), "PNG");
}

void Service::rotate(const QString &pad, int rotation) const
{
    admin(QStringLiteral("POST"), QStringLiteral("/admin/devices/%1/rotate").arg(pad),
        {{QStringLiteral("rotation"), rotation}});
}

void Service::setFilmRate(const QString &pad, int picturesPerSecond) const
{
    admin(QStringLiteral("POST"), QStringLiteral("/admin/devices/%1/film").arg(pad),
        {{QStringLiteral("pictures_per_second"), picturesPerSecond}});
}

QJsonObject Service::sessionStats(const QString &pad) const
{
    const QJsonObject stats = admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"));
    for (const QJsonValue &session : stats.value(QLatin1String("sessions")).toArray()) {
        if (session.toObject().value(QLatin1String("pad_code")).toString() == pad)
            return session.toObject();
    }
    return {};
}

void Service::openApp(const QString &pad, const QString &app) const
{
    admin(QStringLiteral("POST"), QStringLiteral("/admin/devices/%1/app").arg(pad),
        {{QStringLiteral("app"), app}});
}

} // namespace e2e
