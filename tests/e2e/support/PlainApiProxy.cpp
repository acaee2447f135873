#include "PlainApiProxy.h"

#include "Waiting.h"

#include <QNetworkReply>
#include <QPointer>
#include <QTcpSocket>
#include <QUrl>

namespace e2e {

namespace {

// Headers that belong to the one connection and not to the request.
bool isOfTheConnection(const QByteArray &lowerName)
{
    return lowerName == "host" || lowerName == "connection" || lowerName == "content-length"
        || lowerName == "accept-encoding";
}

int contentLength(const QByteArray &head)
{
    for (const QByteArray &line : head.split('\n')) {
        if (line.toLower().startsWith("content-length:"))
            return line.mid(line.indexOf(':') + 1).trimmed().toInt();
    }
    return 0;
}

} // namespace

PlainApiProxy::PlainApiProxy(const QString &serviceUrl, QObject *parent)
    : QObject(parent)
    , m_serviceUrl(serviceUrl)
{
    connect(&m_server, &QTcpServer::newConnection, this, &PlainApiProxy::onNewConnection);
    if (!m_server.listen(QHostAddress::LocalHost))
        throw StepFailed(QStringLiteral("the proxy cannot listen: %1").arg(m_server.errorString()));
}

QString PlainApiProxy::apiBaseUrl() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort());
}

void PlainApiProxy::onNewConnection()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_received.remove(socket);
            socket->deleteLater();
        });
    }
}

void PlainApiProxy::onReadyRead(QTcpSocket *socket)
{
    QByteArray &received = m_received[socket];
    received += socket->readAll();
    const int headEnd = received.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return;
    const QByteArray head = received.left(headEnd);
    const QByteArray body = received.mid(headEnd + 4);
    if (body.size() < contentLength(head))
        return;
    received.clear();
    if (head.startsWith("OPTIONS ")) {
        socket->abort();
        return;
    }
    passOn(socket, head, body);
}

void PlainApiProxy::passOn(QTcpSocket *socket, const QByteArray &head, const QByteArray &body)
{
    QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> requestLine = lines.takeFirst().split(' ');
    QNetworkRequest request{QUrl(m_serviceUrl + QString::fromUtf8(requestLine.value(1)))};
    for (const QByteArray &line : qAsConst(lines)) {
        const QByteArray name = line.left(line.indexOf(':'));
        if (!isOfTheConnection(name.toLower()))
            request.setRawHeader(name, line.mid(name.size() + 1).trimmed());
    }
    ++m_requestCount;
    QNetworkReply *reply = m_network.sendCustomRequest(request, requestLine.value(0), body);
    connect(reply, &QNetworkReply::finished, this, [reply, target = QPointer<QTcpSocket>(socket)] {
        if (target)
            answer(target, reply);
        reply->deleteLater();
    });
}

void PlainApiProxy::answer(QTcpSocket *socket, QNetworkReply *reply)
{
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 0) {
        socket->abort();
        return;
    }
    const QByteArray body = reply->readAll();
    socket->write("HTTP/1.1 " + QByteArray::number(status)
        + " Answer\r\nContent-Type: " + reply->rawHeader("Content-Type")
        + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
    socket->disconnectFromHost();
}

} // namespace e2e
