#include "TestHttpServer.h"

#include <QHostAddress>
#include <QTcpSocket>

#include <utility>

namespace {

// Reads what came so far; false while the request is not whole.
bool parseRequest(const QByteArray &received, TestHttpServer::Request *request)
{
    const int headEnd = received.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    QList<QByteArray> lines = received.left(headEnd).replace("\r\n", "\n").split('\n');
    const QList<QByteArray> requestLine = lines.takeFirst().split(' ');
    request->method = requestLine.value(0);
    request->path = requestLine.value(1);
    for (const QByteArray &line : qAsConst(lines)) {
        const int colon = line.indexOf(':');
        request->headers.append({line.left(colon), line.mid(colon + 1).trimmed()});
    }
    request->body = received.mid(headEnd + 4);
    return request->body.size() >= request->header("content-length").toInt();
}

} // namespace

QByteArray TestHttpServer::Request::header(const QByteArray &name) const
{
    for (const auto &header : headers) {
        if (header.first.compare(name, Qt::CaseInsensitive) == 0)
            return header.second.isNull() ? QByteArray("") : header.second;
    }
    return {};
}

TestHttpServer::TestHttpServer(QObject *parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &TestHttpServer::onNewConnection);
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("the test server cannot listen: %s", qPrintable(m_server.errorString()));
}

TestHttpServer::~TestHttpServer()
{
    // The sockets die after the members that their handlers use; an open one reports its end while it dies.
    for (QTcpSocket *socket : m_server.findChildren<QTcpSocket *>())
        socket->disconnect(this);
}

QString TestHttpServer::baseUrl() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort());
}

void TestHttpServer::setAnswer(const QByteArray &body, int status)
{
    m_body = body;
    m_status = status;
}

void TestHttpServer::setAnswerHeaders(const QByteArray &lines)
{
    m_headerLines = lines;
}

void TestHttpServer::hold()
{
    m_holding = true;
}

void TestHttpServer::release()
{
    m_holding = false;
    const QVector<QTcpSocket *> waiting = std::exchange(m_waiting, {});
    for (QTcpSocket *socket : waiting)
        answer(socket);
}

void TestHttpServer::dropWaiting()
{
    const QVector<QTcpSocket *> waiting = std::exchange(m_waiting, {});
    for (QTcpSocket *socket : waiting)
        socket->abort();
}

void TestHttpServer::onNewConnection()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_received.remove(socket);
            m_waiting.removeAll(socket);
            socket->deleteLater();
        });
    }
}

void TestHttpServer::onReadyRead(QTcpSocket *socket)
{
    QByteArray &received = m_received[socket];
    received += socket->readAll();
    Request request;
    if (!parseRequest(received, &request))
        return;
    received.clear();
    m_requests.append(request);
    emit requestReceived();
    if (m_holding)
        m_waiting.append(socket);
    else
        answer(socket);
}

void TestHttpServer::answer(QTcpSocket *socket)
{
    socket->write("HTTP/1.1 " + QByteArray::number(m_status)
        + " Answer\r\nContent-Type: application/json\r\n"
          "Content-Length: "
        + QByteArray::number(m_body.size()) + "\r\nConnection: close\r\n" + m_headerLines + "\r\n" + m_body);
    socket->disconnectFromHost();
}
