#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QQueue>
#include <QTcpServer>
#include <QTimer>

class QTcpSocket;

// A slow network between a client and the gateway, on loopback: passes bytes on later, no faster than a rate,
// with pauses as loss causes them on TCP. It holds a bounded amount, as a router does, and then lets the
// sender wait. Runs in the thread of its event loop.
class ShapingRelay : public QObject
{
    Q_OBJECT

public:
    explicit ShapingRelay(quint16 gatewayPort, QObject *parent = nullptr);

    ~ShapingRelay() override;

    quint16 port() const { return m_server.serverPort(); }
    // Each way, in milliseconds; 0 = none.
    void setDelay(int ms) { m_delayMs = ms; }
    // From the gateway to the client, in kbit/s; 0 = no limit.
    void setRate(int kbitPerSec) { m_kbitPerSec = kbitPerSec; }
    // Every `everyMs` nothing passes for `forMs`; 0 = never.
    void setStalls(int everyMs, int forMs);
    // Bytes that reached the client.
    qint64 bytesDown() const { return m_bytesDown; }

private:
    struct Chunk
    {
        qint64 dueMs = 0;
        QByteArray data;
    };
    struct Pipe
    {
        QTcpSocket *from = nullptr;
        QTcpSocket *to = nullptr;
        QQueue<Chunk> waiting;
        qint64 held = 0; // bytes in `waiting`
        double credit = 0; // bytes that may pass now
        bool limited = false;
    };

    void accept();
    void pump();
    void removeGone();
    void fill(Pipe &pipe, qint64 now);
    void drain(Pipe &pipe, qint64 now, qint64 elapsedMs);
    bool stalled(qint64 now) const;

    QTcpServer m_server;
    quint16 m_gatewayPort;
    QTimer m_timer;
    QElapsedTimer m_clock;
    QList<Pipe> m_pipes;
    QList<QTcpSocket *> m_gone; // clients whose connection has ended
    qint64 m_lastPump = 0;
    qint64 m_bytesDown = 0;
    int m_delayMs = 0;
    int m_kbitPerSec = 0;
    int m_stallEveryMs = 0;
    int m_stallForMs = 0;
};
