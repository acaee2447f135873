#include "InputCollector.h"

#include "Report.h"
#include "Service.h"
#include "Waiting.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QUrl>

#include <chrono>

namespace bench {

namespace {
constexpr std::chrono::seconds interval(4); // what comes meanwhile is well below what the service remembers
constexpr std::chrono::milliseconds nap(50);
constexpr int answerTimeoutMs = 5000;

// The sequence number of the last event of an answer, or `before` if there is none.
qint64 lastSequence(const QByteArray &answer, qint64 before)
{
    const QByteArray member("\"sequence\":");
    const int at = answer.lastIndexOf(member);
    if (at < 0)
        return before;
    const int begin = at + member.size();
    int end = begin;
    while (end < answer.size() && answer.at(end) >= '0' && answer.at(end) <= '9')
        ++end;
    return answer.mid(begin, end - begin).toLongLong();
}

void appendTouches(const QByteArray &answer, std::vector<ReceivedTouch> &touches)
{
    const QByteArray body = answer.mid(answer.indexOf("\r\n\r\n") + 4);
    const QJsonObject data = QJsonDocument::fromJson(body).object().value(QLatin1String("data")).toObject();
    const QJsonArray events = data.value(QLatin1String("events")).toArray();
    for (const QJsonValue &entry : events) {
        const QJsonObject event = entry.toObject().value(QLatin1String("event")).toObject();
        if (event.value(QLatin1String("type")) != QLatin1String("touch"))
            continue;
        ReceivedTouch touch;
        const double microseconds = entry.toObject().value(QLatin1String("time_us")).toDouble();
        touch.timeNs = static_cast<qint64>(microseconds * 1e3);
        touch.action = event.value(QLatin1String("action")).toInt();
        const QJsonArray points = event.value(QLatin1String("points")).toArray();
        for (const QJsonValue &point : points)
            touch.xs.push_back(point.toArray().at(0).toInt());
        touches.push_back(std::move(touch));
    }
}

} // namespace

InputCollector::InputCollector(const e2e::Service &service, const QString &pad)
    : m_host(QUrl(service.apiBaseUrl()).host())
    , m_port(static_cast<quint16>(QUrl(service.apiBaseUrl()).port()))
    , m_path(QStringLiteral("/admin/devices/%1/input?since=").arg(pad))
{
    fetch();
    m_answers.clear();
    m_thread = std::thread([this] { run(); });
}

InputCollector::~InputCollector()
{
    m_mustEnd = true;
    if (m_thread.joinable())
        m_thread.join();
}

std::vector<ReceivedTouch> InputCollector::take()
{
    m_mustEnd = true;
    m_thread.join();
    fetch();
    if (m_hasFailed)
        throw e2e::StepFailed(QStringLiteral("the service did not tell what the device has received"));
    std::vector<ReceivedTouch> touches;
    for (const QByteArray &answer : m_answers)
        appendTouches(answer, touches);
    return touches;
}

void InputCollector::run()
{
    auto next = std::chrono::steady_clock::now() + interval;
    while (!m_mustEnd) {
        std::this_thread::sleep_for(nap);
        if (std::chrono::steady_clock::now() < next)
            continue;
        fetch();
        m_cpuMs = threadCpuMs();
        next += interval;
    }
}

void InputCollector::fetch()
{
    QTcpSocket socket;
    socket.connectToHost(m_host, m_port);
    socket.write(QStringLiteral("GET %1%2 HTTP/1.1\r\nHost: %3:%4\r\nConnection: close\r\n\r\n")
                     .arg(m_path)
                     .arg(m_last)
                     .arg(m_host)
                     .arg(m_port)
                     .toUtf8());
    QByteArray answer;
    while (socket.state() != QAbstractSocket::UnconnectedState && socket.waitForReadyRead(answerTimeoutMs))
        answer += socket.readAll();
    answer += socket.readAll();
    if (!answer.startsWith("HTTP/1.1 200") || !answer.endsWith('}'))
        m_hasFailed = true;
    m_last = lastSequence(answer, m_last);
    m_answers.push_back(answer);
}

} // namespace bench
