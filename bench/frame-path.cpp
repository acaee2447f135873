// CPU time of the client's side for each displayed picture of the Video app (network, decode, convert, copy,
// paint at the device window's size), against the bare libavcodec decode of the same bytes in the same run.

#include "DeviceSession.h"
#include "Floor.h"
#include "Report.h"
#include "Waiting.h"

#include "VideoSink.h"
#include "stream/VideoView.h"
#include "swplay/SWDataSource.h"
#include "swplay/SWDataSourceListener.h"
#include "swplay/SWPlayer.h"
#include "swplay/SWRuntime.h"
#include "video/AvHandles.h"

#include <QApplication>

#include <cstdio>
#include <cstring>
#include <mutex>
#include <vector>

namespace {

constexpr int warmUpPictures = 50;
constexpr int measuredPictures = 500;

// Stands between the session and the player and keeps a copy of every access unit.
class RecordingSink : public swplay::VideoSink
{
public:
    void setNext(std::shared_ptr<swplay::VideoSink> next) { m_next = std::move(next); }
    std::vector<std::string> units() const
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        return m_units;
    }
    std::size_t count() const
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        return m_units.size();
    }

    void setFeedback(std::weak_ptr<swplay::VideoFeedback> feedback) override
    {
        m_next->setFeedback(std::move(feedback));
    }
    void accessUnit(swplay::AccessUnit unit) override
    {
        {
            const std::lock_guard<std::mutex> guard(m_lock);
            m_units.push_back(unit.data);
        }
        m_next->accessUnit(std::move(unit));
    }
    void screenRotation(int rotation) override { m_next->screenRotation(rotation); }
    void streamReset() override { m_next->streamReset(); }

private:
    std::shared_ptr<swplay::VideoSink> m_next;
    mutable std::mutex m_lock; // guards m_units
    std::vector<std::string> m_units;
};

// The session's data source with a recording sink in front of the player's.
class RecordingSource : public DataSource
{
public:
    explicit RecordingSource(std::shared_ptr<SWDataSource> source)
        : m_source(std::move(source))
        , m_sink(std::make_shared<RecordingSink>())
    { }
    const RecordingSink &sink() const { return *m_sink; }

    int screenCast(int mode) override { return m_source->screenCast(mode); }
    void stop() override { m_source->stop(); }
    int start() override { return m_source->start(); }
    void attachSink(std::shared_ptr<swplay::VideoSink> sink) override
    {
        if (!sink) {
            // First of all nothing may arrive any more.
            m_source->attachSink(nullptr);
            return;
        }
        m_sink->setNext(std::move(sink));
        m_source->attachSink(m_sink);
    }

private:
    std::shared_ptr<SWDataSource> m_source;
    std::shared_ptr<RecordingSink> m_sink;
};

class CountingView : public VideoView
{
public:
    int painted() const { return m_painted; }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        VideoView::paintEvent(event);
        ++m_painted;
    }

private:
    int m_painted = 0;
};

// CPU milliseconds for each picture of decoding the units from `first` on, after the ones before.
double bareDecodeMs(const std::vector<std::string> &units, std::size_t first)
{
    swplay::CodecContextPtr context(avcodec_alloc_context3(avcodec_find_decoder(AV_CODEC_ID_H264)));
    context->flags |= AV_CODEC_FLAG_LOW_DELAY;
    context->thread_count = 1;
    if (avcodec_open2(context.get(), nullptr, nullptr) < 0)
        return 0;
    swplay::PacketPtr packet(av_packet_alloc());
    swplay::FramePtr frame(av_frame_alloc());
    double begin = 0;
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (i == first)
            begin = bench::threadCpuMs();
        av_new_packet(packet.get(), static_cast<int>(units[i].size()));
        std::memcpy(packet->data, units[i].data(), units[i].size());
        avcodec_send_packet(context.get(), packet.get());
        av_packet_unref(packet.get());
        while (avcodec_receive_frame(context.get(), frame.get()) == 0)
            av_frame_unref(frame.get());
    }
    return (bench::threadCpuMs() - begin) / static_cast<double>(units.size() - first);
}

int run()
{
    bench::DeviceSession session;
    session.openApp(QStringLiteral("Video"));
    SWRuntime::getInstance()->init(0, "");

    SWDataSourceListener listener;
    SWPlayer player;
    const auto source = std::make_shared<SWDataSource>(player.getId(), &listener);
    const stream::StreamingData &data = session.streamingData();
    source->setLoginParams(qUtf8Printable(data.controlIp), data.controlPort, data.userId,
        qUtf8Printable(data.sessionId), qUtf8Printable(data.padCode), 0);
    VideoLevel level{2, 720, 1280, 25, 15, 6144, 100, 0, 0, 100, 50};
    source->setVideoLevels(&level, 1);
    source->setVideoLevel(2, 0, level.width, level.height, 0, level.bitRate, level.frameRate);
    source->screenCast(3);
    const auto recording = std::make_shared<RecordingSource>(source);
    player.setDataSource(recording);
    CountingView view;
    view.resize(bench::viewSize);
    view.setDstFormat(-1, level.width, level.height, 0);
    view.show();
    player.setDisplay(&view);
    player.start();

    e2e::waitUntil(QStringLiteral("video runs"), [&] { return view.painted() >= warmUpPictures; });
    const double cpuBefore = bench::processCpuMs();
    const int paintedBefore = view.painted();
    const std::size_t firstUnit = recording->sink().count();
    QEventLoop loop;
    while (view.painted() - paintedBefore < measuredPictures)
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    const double cpu = bench::processCpuMs() - cpuBefore;
    const int painted = view.painted() - paintedBefore;
    player.stop();
    recording->stop();
    player.setDisplay(nullptr);

    const std::vector<std::string> units = recording->sink().units();
    const double clientMs = cpu / painted;
    const double decodeMs = bareDecodeMs(units, firstUnit);
    const bool written = bench::writeReport(bench::outputFile(),
        {{QStringLiteral("client_cpu_ms_per_frame"), clientMs},
            {QStringLiteral("decode_cpu_ms_per_frame"), decodeMs},
            {QStringLiteral("ratio"), clientMs / decodeMs}, {QStringLiteral("frames"), painted},
            {QStringLiteral("received"), static_cast<int>(units.size() - firstUnit)}});
    SWRuntime::getInstance()->deinit();
    return written ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    try {
        return run();
    } catch (const e2e::StepFailed &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
