#pragma once

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

// The service as far as a device window needs it: takes one request per connection, keeps it, and answers it
// with what the test has set, or only when the test says so.
class ApplyServer : public QTcpServer
{
public:
    ApplyServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, &ApplyServer::accept);
    }

    QString url() const { return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()); }
    // What the next requests are answered; a null status line holds the answer back.
    void setAnswer(const QByteArray &body, const QByteArray &status = "200 OK")
    {
        m_body = body;
        m_status = status;
    }
    // Another answer for the requests to a path that ends so.
    void setAnswerFor(const QByteArray &pathEnd, const QByteArray &body) { m_bodies.insert(pathEnd, body); }
    // Answers the request that is being held back.
    void answerNow()
    {
        if (m_waiting)
            answer(m_waiting);
    }
    // Whether requests are answered by the end of their connection.
    void setDropping(bool dropping) { m_dropping = dropping; }

    QByteArrayList requestLines;
    QList<QJsonObject> bodies;

private:
    void accept()
    {
        QTcpSocket *socket = nextPendingConnection();
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
    }

    void read(QTcpSocket *socket)
    {
        const QByteArray request = socket->peek(socket->bytesAvailable());
        const int headerEnd = request.indexOf("\r\n\r\n");
        if (headerEnd < 0)
            return;
        const QByteArray header = request.left(headerEnd).toLower();
        const int at = header.indexOf("content-length:") + 15;
        const int length = header.mid(at, header.indexOf('\r', at) - at).trimmed().toInt();
        if (request.size() < headerEnd + 4 + length)
            return;
        requestLines.append(request.left(request.indexOf('\r')));
        bodies.append(QJsonDocument::fromJson(request.mid(headerEnd + 4, length)).object());
        m_bodyFor = bodyFor(requestLines.last().split(' ').value(1));
        socket->readAll();
        if (m_dropping) {
            socket->abort();
            return;
        }
        m_waiting = socket;
        if (!m_status.isNull())
            answer(socket);
    }

    // Null if there is none of its own.
    QByteArray bodyFor(const QByteArray &path) const
    {
        for (auto it = m_bodies.cbegin(); it != m_bodies.cend(); ++it) {
            if (path.endsWith(it.key()))
                return it.value();
        }
        return {};
    }

    void answer(QTcpSocket *socket)
    {
        const QByteArray status = m_status.isNull() ? QByteArray("200 OK") : m_status;
        const QByteArray &body = m_bodyFor.isNull() ? m_body : m_bodyFor;
        socket->write("HTTP/1.1 " + status + "\r\nContent-Type: application/json\r\nConnection: close\r\n"
            + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
        socket->disconnectFromHost();
        m_waiting = nullptr;
    }

    bool m_dropping = false;
    QByteArray m_body;
    QByteArray m_bodyFor; // of the newest request
    QHash<QByteArray, QByteArray> m_bodies; // by the end of a path
    QByteArray m_status = "200 OK";
    QPointer<QTcpSocket> m_waiting;
};
