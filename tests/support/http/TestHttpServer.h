#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QPair>
#include <QString>
#include <QTcpServer>
#include <QVector>

class QTcpSocket;

// A small HTTP/1.1 server on a free port of 127.0.0.1 that records each request as it came over the wire and
// gives the answer that the test chose. One connection carries one request.
//
// Used on the thread whose event loop it lives in; owned by the test.
class TestHttpServer : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        QByteArray method;
        QByteArray path;
        QVector<QPair<QByteArray, QByteArray>> headers; // in the order in which they came, names as they came
        QByteArray body;

        // Value of the first header of that name, whatever its case; null if there is none.
        QByteArray header(const QByteArray &name) const;
    };

    explicit TestHttpServer(QObject *parent = nullptr);
    ~TestHttpServer() override;

    // "http://127.0.0.1:<port>", without a trailing slash.
    QString baseUrl() const;

    // The answer to every request from now on; at first 200 with an empty JSON object.
    void setAnswer(const QByteArray &body, int status = 200);
    // Further header lines of every answer from now on, each ending in "\r\n"; none at first.
    void setAnswerHeaders(const QByteArray &lines);
    // Keeps the requests that come from now on waiting.
    void hold();
    // Gives the answer to the waiting requests and stops holding.
    void release();
    // Closes the connections of waiting requests without an answer.
    void dropWaiting();

    const QVector<Request> &requests() const { return m_requests; }

signals:
    // A whole request has come; it is the last of requests(). Emitted before the answer is sent.
    void requestReceived();

private:
    void onNewConnection();
    void onReadyRead(QTcpSocket *socket);
    void answer(QTcpSocket *socket);

    QTcpServer m_server;
    QHash<QTcpSocket *, QByteArray> m_received; // what came so far of requests that are not whole
    QVector<QTcpSocket *> m_waiting;
    QVector<Request> m_requests;
    QByteArray m_body = "{}";
    QByteArray m_headerLines;
    int m_status = 200;
    bool m_holding = false;
};
