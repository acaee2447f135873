#include "gateway/Viewer.h"

#include "gateway/GatewayLog.h"

#include <algorithm>
#include <stdexcept>

namespace orvane::cloud {

using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

// A still picture is sharpened after this time: step by step at the level's frame rate, so that no step is
// larger than a frame, until it is sharp or steps bring next to nothing. One step is made even for a picture
// that is sharp on the whole, unless it is nearly perfect: a blurred line of text does not show in the mean.
constexpr milliseconds RefinementDelay{300};
constexpr int MaxRefinements = 20;
constexpr int RefinementQuantizer = 20;
constexpr double SharpPsnr = 42;
constexpr double PerfectPsnr = 48;
constexpr double WorthwhileGain = 0.1; // dB
// A key frame that left so recently and has not arrived answers a request that was made without knowing of
// it.
constexpr milliseconds KeyFrameOnItsWay{500};
// What is known about the path's rate is used for so long.
constexpr seconds RateMemory{2};
// The start code and the head of the first unit are left alone, so that damage shows in the picture and not
// in the framing.
constexpr std::size_t UndamagedBytes = 8;

// A session id opens a device: the log gets enough of it to tell sessions apart, and no more.
std::string shortened(const std::string &sessionId)
{
    constexpr std::size_t shown = 6;
    return sessionId.size() > 2 * shown ? sessionId.substr(0, shown) + "..." : "...";
}

} // namespace

Viewer::Viewer(
    std::string sessionId, std::shared_ptr<ClientLink> link, std::shared_ptr<SessionCounters> counters)
    : m_sessionId(std::move(sessionId))
    , m_link(std::move(link))
    , m_counters(std::move(counters))
{
    resetAutomatic();
}

void Viewer::setLevels(const client::VideoLevels &levels)
{
    m_selection.setTable(levels.levels);
    resetAutomatic();
}

void Viewer::choose(const client::ChooseRow &choice)
{
    if (!m_selection.chooseRow(choice.row)) {
        qCInfo(gatewayLog, "session %s: there is no row %d in its level table, the choice is ignored",
            shortened(m_sessionId).c_str(), choice.row);
    }
}

void Viewer::choose(const client::ChooseCustom &choice)
{
    m_selection.chooseCustom(choice.level);
}

void Viewer::setCastMode(CastMode mode)
{
    m_selection.setCastMode(mode);
    m_counters->castMode = static_cast<int>(mode);
    if (mode == CastMode::Paused) {
        m_encoder.reset(); // the next picture is a key frame then
    }
}

void Viewer::requestKeyFrame(TimePoint now)
{
    const bool onItsWay = m_lastKeyFrameId > m_ackedFrameId && now - m_lastKeyFrameAt < KeyFrameOnItsWay;
    m_keyFrameWanted = m_keyFrameWanted || !onItsWay;
}

void Viewer::acknowledge(std::uint64_t frameId, TimePoint now)
{
    const auto ack = m_window.acknowledged(frameId, now);
    if (!ack) {
        return; // of an earlier picture, or of one that was never sent: nothing to learn
    }
    m_ackedFrameId = frameId;
    if (ack->kbitPerSec > 0) {
        m_knownKbitPerSec = ack->kbitPerSec;
        m_rateKnownAt = now;
    }
    observeQuality(now, ack->congested);
}

void Viewer::screenChanged(FrameCause cause)
{
    if (!isWatching()) {
        return;
    }
    if (m_changed) {
        ++m_counters->framesDropped;
    }
    m_changed = true;
    m_cause = std::max(m_cause, cause);
    m_refinements = 0;
}

std::optional<QSize> Viewer::pictureSize() const
{
    return isWatching() && m_announced
        ? std::optional(QSize(m_announced->level.width, m_announced->level.height))
        : std::nullopt;
}

void Viewer::resetAutomatic()
{
    m_quality.setRows(
        m_selection.firstAutomaticRow(), m_selection.lastAutomaticRow(), m_selection.bitRates());
}

void Viewer::observeQuality(TimePoint now, bool congested)
{
    m_evaluatedAt = now;
    if (!m_selection.isAutomatic() || !isWatching()) {
        return;
    }
    const int before = m_quality.row();
    const int kbitPerSec = now - m_rateKnownAt < RateMemory ? m_knownKbitPerSec : 0;
    if (m_quality.observe(now, congested, kbitPerSec)) {
        qCInfo(gatewayLog, "session %s: automatic level goes from row %d to row %d (%d kbit/s measured)",
            shortened(m_sessionId).c_str(), before, m_quality.row(), kbitPerSec);
    }
}

void Viewer::applyLevel()
{
    const LevelSelection::Effective effective = m_selection.effective(m_quality.row());
    if (m_announced == effective) {
        return;
    }
    m_announced = effective;
    m_counters->levelRow = effective.row;
    m_counters->automatic = effective.automatic;
    m_link->sendControl(server::videoLevelResult(effective));
    const Level &level = effective.level;
    m_pacer.setFrameRate(level.frameRate);
    const bool keeps = m_encoder && m_encoder->settings().width == level.width
        && m_encoder->settings().height == level.height
        && m_encoder->setRates(level.frameRate, level.bitRate);
    if (!keeps) {
        m_encoder.reset();
    }
    m_changed = true; // the new level shows at once
    m_refinements = 0;
}

bool Viewer::needsRefinement() const
{
    const double wanted = m_refinements == 0 ? PerfectPsnr : SharpPsnr;
    return m_encoder && !m_settled && m_psnr < wanted && m_refinements < MaxRefinements;
}

bool Viewer::isRefinementDue(TimePoint now) const
{
    return needsRefinement() && m_window.isEmpty() && now >= refinementTime();
}

TimePoint Viewer::refinementTime() const
{
    return m_refinements == 0
        ? m_lastFrameAt + RefinementDelay
        : m_lastFrameAt + std::chrono::microseconds(1'000'000 / m_announced->level.frameRate);
}

bool Viewer::evaluatesQuality() const
{
    return m_selection.isAutomatic() && (m_quality.needsEvaluation() || !m_window.isEmpty());
}

void Viewer::pump(TimePoint now, const PictureSource &source)
{
    if (evaluatesQuality() && now - m_evaluatedAt >= QualityControl::evaluationPeriod()) {
        observeQuality(now, m_window.isCongested(now));
    }
    applyLevel();
    if (!isWatching()) {
        return;
    }
    const bool wanted = wantsFrame();
    const bool hurry = m_keyFrameWanted || !m_encoder;
    if (!wanted && !isRefinementDue(now)) {
        return;
    }
    if (wanted && !hurry && m_pacer.nextFrameTime(m_cause, now) > now) {
        return;
    }
    if (!m_window.isOpen()) {
        m_window.noteDemand();
        return;
    }
    try {
        sendFrame(now, source, !wanted);
    } catch (const std::runtime_error &error) {
        qCWarning(gatewayLog, "session %s: no picture: %s", shortened(m_sessionId).c_str(), error.what());
        m_selection.setCastMode(CastMode::Paused);
        m_encoder.reset();
        m_link->end(EndCode::ProtocolError, "the level cannot be encoded");
    }
}

std::optional<TimePoint> Viewer::nextPump(TimePoint now) const
{
    if (!isWatching()) {
        return std::nullopt;
    }
    std::optional<TimePoint> next;
    const auto consider = [&](TimePoint time) { next = next ? std::min(*next, time) : time; };
    if (wantsFrame() && m_window.isOpen()) {
        consider(m_pacer.nextFrameTime(m_cause, now));
    }
    if (!wantsFrame() && needsRefinement() && m_window.isEmpty()) {
        consider(refinementTime());
    }
    if (evaluatesQuality()) {
        consider(m_evaluatedAt + QualityControl::evaluationPeriod());
    }
    return next;
}

H264Encoder::AccessUnit Viewer::encode(const PictureSource &source, bool refinement)
{
    const Level &level = m_announced->level;
    if (!m_encoder) {
        m_encoder = std::make_unique<H264Encoder>(
            H264Encoder::Settings{level.width, level.height, level.frameRate, level.bitRate});
        m_keyFrameWanted = true;
    }
    H264Encoder::Request request;
    request.keyFrame = m_keyFrameWanted;
    if (refinement) {
        request.quantizer = RefinementQuantizer;
    }
    return m_encoder->encode(source({level.width, level.height}), request);
}

void Viewer::sendFrame(TimePoint now, const PictureSource &source, bool refinement)
{
    H264Encoder::AccessUnit unit = encode(source, refinement);
    const std::uint64_t id = ++m_lastFrameId;
    if (unit.keyFrame) {
        m_lastKeyFrameId = id;
        m_lastKeyFrameAt = now;
    }
    m_settled = refinement && m_refinements > 0 && unit.psnr - m_psnr < WorthwhileGain;
    m_refinements = refinement ? m_refinements + 1 : 0;
    m_psnr = unit.psnr;
    m_changed = false;
    m_keyFrameWanted = false;
    m_lastFrameAt = now;
    if (!refinement) {
        m_pacer.frameSent(m_cause, now);
    }
    m_cause = FrameCause::Animation;
    damageIfAsked(unit.data);
    const Level &level = m_announced->level;
    std::string message = server::videoFrame(
        id, toMicroseconds(now), unit.keyFrame, std::move(unit.data), level.width, level.height);
    m_window.sent(id, message.size(), now);
    ++m_counters->framesSent;
    m_link->sendVideo(std::move(message));
}

void Viewer::damageIfAsked(std::string &accessUnit)
{
    int left = m_counters->corruptNext.load();
    while (left > 0 && !m_counters->corruptNext.compare_exchange_weak(left, left - 1)) { }
    if (left <= 0) {
        return;
    }
    for (std::size_t i = UndamagedBytes; i < accessUnit.size(); i += 5) {
        accessUnit[i] = static_cast<char>(accessUnit[i] ^ 0x5a);
    }
}

} // namespace orvane::cloud
