#pragma once

#include <QHash>
#include <QNetworkAccessManager>
#include <QObject>
#include <QTcpServer>

class QNetworkReply;
class QTcpSocket;

namespace e2e {

// Passes the requests of the API on to the service, as a server that knows nothing of pages from elsewhere:
// no answer has a header that lets a page of another origin read it, and the question whether a request is
// allowed (OPTIONS) is not answered. On a free port of 127.0.0.1; one connection carries one request.
//
// Used on the thread whose event loop it lives in; owned by the test.
class PlainApiProxy : public QObject
{
    Q_OBJECT

public:
    // `serviceUrl`: root of the service's API, without a trailing slash.
    explicit PlainApiProxy(const QString &serviceUrl, QObject *parent = nullptr);

    // Its own root, without a trailing slash.
    QString apiBaseUrl() const;
    // Requests that were passed on.
    int requestCount() const { return m_requestCount; }

private:
    void onNewConnection();
    void onReadyRead(QTcpSocket *socket);
    void passOn(QTcpSocket *socket, const QByteArray &head, const QByteArray &body);
    static void answer(QTcpSocket *socket, QNetworkReply *reply);

    const QString m_serviceUrl;
    QTcpServer m_server;
    QNetworkAccessManager m_network;
    QHash<QTcpSocket *, QByteArray> m_received; // what came so far of requests that are not whole
    int m_requestCount = 0;
};

} // namespace e2e
