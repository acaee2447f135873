#include "ShapingRelay.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace {
constexpr int tickMs = 2;
constexpr qint64 capacity = 64 * 1024; // bytes held per direction besides what is merely delayed
constexpr qint64 socketBuffer = 32 * 1024;
} // namespace

ShapingRelay::ShapingRelay(quint16 gatewayPort, QObject *parent)
    : QObject(parent)
    , m_gatewayPort(gatewayPort)
{
    m_clock.start();
    m_server.listen(QHostAddress::LocalHost);
    connect(&m_server, &QTcpServer::newConnection, this, &ShapingRelay::accept);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ShapingRelay::pump);
    m_timer.start(tickMs);
}

ShapingRelay::~ShapingRelay()
{
    for (const Pipe &pipe : qAsConst(m_pipes))
        pipe.from->disconnect();
}

void ShapingRelay::setStalls(int everyMs, int forMs)
{
    m_stallEveryMs = everyMs;
    m_stallForMs = forMs;
}

void ShapingRelay::accept()
{
    while (QTcpSocket *client = m_server.nextPendingConnection()) {
        auto *gateway = new QTcpSocket(client);
        // Without bounds the toolkit would read everything and the sender would never wait.
        client->setReadBufferSize(socketBuffer);
        gateway->setReadBufferSize(socketBuffer);
        for (QTcpSocket *socket : {client, gateway})
            socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        gateway->connectToHost(QHostAddress(QHostAddress::LocalHost), m_gatewayPort);
        connect(gateway, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
        connect(client, &QTcpSocket::disconnected, this, [this, client] { m_gone << client; });
        Pipe up;
        up.from = client;
        up.to = gateway;
        Pipe down;
        down.from = gateway;
        down.to = client;
        down.limited = true;
        m_pipes << up << down;
    }
}

// Not while a pipe is being worked on: a write may find out that its socket is gone.
void ShapingRelay::removeGone()
{
    for (QTcpSocket *client : qAsConst(m_gone)) {
        for (int i = m_pipes.size() - 1; i >= 0; --i) {
            if (m_pipes[i].from == client || m_pipes[i].to == client)
                m_pipes.removeAt(i);
        }
        delete client; // and its gateway's end
    }
    m_gone.clear();
}

bool ShapingRelay::stalled(qint64 now) const
{
    return m_stallEveryMs > 0 && now % m_stallEveryMs < m_stallForMs;
}

void ShapingRelay::pump()
{
    const qint64 now = m_clock.elapsed();
    const qint64 elapsed = now - m_lastPump;
    m_lastPump = now;
    removeGone();
    for (Pipe &pipe : m_pipes) {
        fill(pipe, now);
        if (!stalled(now))
            drain(pipe, now, elapsed);
    }
}

void ShapingRelay::fill(Pipe &pipe, qint64 now)
{
    // What is only delayed does not count against the capacity.
    const qint64 inFlight = static_cast<qint64>(m_delayMs) * (m_kbitPerSec > 0 ? m_kbitPerSec / 8 : 4096);
    const qint64 room = capacity + inFlight - pipe.held;
    if (room <= 0 || pipe.from->bytesAvailable() == 0)
        return;
    Chunk chunk;
    chunk.data = pipe.from->read(room);
    chunk.dueMs = now + m_delayMs;
    pipe.held += chunk.data.size();
    pipe.waiting.enqueue(chunk);
}

void ShapingRelay::drain(Pipe &pipe, qint64 now, qint64 elapsedMs)
{
    const bool limited = pipe.limited && m_kbitPerSec > 0;
    if (limited)
        pipe.credit = qMin(pipe.credit + elapsedMs * m_kbitPerSec / 8.0, 3000.0);
    while (!pipe.waiting.isEmpty() && pipe.waiting.head().dueMs <= now
        && pipe.to->bytesToWrite() < socketBuffer && pipe.to->state() == QAbstractSocket::ConnectedState) {
        Chunk &chunk = pipe.waiting.head();
        const qint64 size
            = limited ? qMin<qint64>(static_cast<qint64>(pipe.credit), chunk.data.size()) : chunk.data.size();
        if (size <= 0)
            return;
        pipe.to->write(chunk.data.left(static_cast<int>(size)));
        pipe.held -= size;
        pipe.credit -= limited ? size : 0;
        if (pipe.limited)
            m_bytesDown += size;
        if (size == chunk.data.size())
            pipe.waiting.dequeue();
        else
            chunk.data.remove(0, static_cast<int>(size));
    }
}
