#pragma once

#include "swplay/SWDataSource.h"
#include "swplay/SWDataSourceListener.h"
#include "swplay/SWPlayer.h"
#include "swplay/VideoDisplayWinBase.h"

#include <QElapsedTimer>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <atomic>
#include <memory>
#include <mutex>

// A client of the streaming runtime as the device window is one, with everything that happens to it recorded.
// Used from one thread; the runtime calls the recording parts from its own.
class StreamClient
{
public:
    // The session as the service granted it.
    struct Session
    {
        QString ip;
        quint16 port = 0;
        int userId = -1;
        QString sessionId;
        QString padCode;
    };

    explicit StreamClient(const Session &session);
    ~StreamClient();

    SWDataSource &source() { return *m_source; }

    int pictures() const { return m_display.pictures; }
    int connects() const { return m_listener.connects; }
    int reconnectAttempts() const { return m_listener.reconnecting; }
    // Reason of the final end, -1 while there is none.
    int endReason() const { return m_listener.endReason; }
    // Milliseconds since the client was made, of the last picture or the last attempt to reconnect; -1:
    // never.
    qint64 lastPictureMs() const { return m_display.lastPictureMs; }
    qint64 lastReconnectMs() const { return m_listener.lastReconnectMs; }
    qint64 nowMs() const { return m_clock.elapsed(); }
    // Of every picture since the last call of forgetWorst: the longest time from its capture at the gateway
    // to its arrival here, and the longest time between two. Exact, since both ends read one machine's clock.
    int worstDelayMs() const { return m_display.worstDelayMs; }
    int worstGapMs() const { return m_display.worstGapMs; }
    void forgetWorst();
    // Every stream information so far, oldest first.
    QVector<QJsonObject> streamInfos() const;
    // Mean colour of the newest picture's middle, as 0xRRGGBB; -1 while there is none.
    int middleColour();

private:
    struct Display : VideoDisplayWinBase
    {
        explicit Display(const QElapsedTimer &clockToUse)
            : clock(clockToUse)
        { }
        int render(VideoFrame *frame) override;
        void onFrameArrival() override;

        const QElapsedTimer &clock;
        std::atomic<int> pictures{0};
        std::atomic<int> worstDelayMs{0};
        std::atomic<int> worstGapMs{0};
        std::atomic<qint64> lastPictureMs{-1};
    };
    struct Listener : SWDataSourceListener
    {
        explicit Listener(const QElapsedTimer &clockToUse)
            : clock(clockToUse)
        { }
        void onConnected() override;
        void onReconnecting(int attempt) override;
        void onDisconnected(int reason) override;
        void onStreamInfo(const char *info) override;

        const QElapsedTimer &clock;
        std::atomic<int> connects{0};
        std::atomic<int> reconnecting{0};
        std::atomic<int> endReason{-1};
        std::atomic<qint64> lastReconnectMs{-1};
        mutable std::mutex lock; // guards infos
        QVector<QJsonObject> infos;
    };

    QElapsedTimer m_clock;
    Listener m_listener;
    Display m_display;
    std::shared_ptr<SWDataSource> m_source;
    std::unique_ptr<SWPlayer> m_player;
};
