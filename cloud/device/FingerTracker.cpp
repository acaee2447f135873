#include "device/FingerTracker.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

namespace orvane::cloud {

namespace {

constexpr int Up = 1; // action of a touch frame

// For each of `to` the index of the element of `from` that it continues, or -1: nearest pairs first, each
// used once.
template <typename From, typename To>
std::vector<int> nearestPairs(const std::vector<From> &from, const std::vector<To> &to)
{
    std::vector<std::tuple<int, std::size_t, std::size_t>> pairs; // squared distance, index in to, in from
    for (std::size_t t = 0; t < to.size(); ++t) {
        for (std::size_t f = 0; f < from.size(); ++f) {
            const QPoint way = to[t].position - from[f].position;
            pairs.emplace_back(QPoint::dotProduct(way, way), t, f);
        }
    }
    std::sort(pairs.begin(), pairs.end());
    std::vector<int> match(to.size(), -1);
    std::vector<bool> used(from.size(), false);
    for (const auto &[distance, t, f] : pairs) {
        if (match[t] < 0 && !used[f]) {
            match[t] = static_cast<int>(f);
            used[f] = true;
        }
    }
    return match;
}

std::vector<int> inOrder(std::size_t count)
{
    std::vector<int> match(count);
    std::iota(match.begin(), match.end(), 0);
    return match;
}

// Which of `fingers` the frame lifts: those it no longer lists, and with an up frame at least one.
template <typename Finger>
std::vector<bool> liftedFingers(int action, const std::vector<Finger> &fingers, const std::vector<int> &match)
{
    std::vector<bool> lifted(fingers.size(), true);
    for (const int index : match) {
        if (index >= 0) {
            lifted[static_cast<std::size_t>(index)] = false;
        }
    }
    if (action == Up && match.size() == fingers.size()) {
        for (std::size_t i = 0; i < fingers.size() && fingers[i].birth == fingers.front().birth; ++i) {
            lifted[i] = true;
        }
    }
    return lifted;
}

} // namespace

FingerTracker::FingerTracker(QSize screen)
    : m_screen(screen)
{ }

std::vector<FingerTracker::Target> FingerTracker::targets(const std::vector<TouchPoint> &points) const
{
    std::vector<Target> targets;
    for (const TouchPoint &point : points) {
        if ((point.x == -1 && point.y == -1) || targets.size() == MaxFingers) {
            continue;
        }
        const QPoint position(
            std::clamp(point.x, 0, m_screen.width() - 1), std::clamp(point.y, 0, m_screen.height() - 1));
        const bool known = std::isfinite(point.pressure) && point.pressure > 0;
        targets.push_back({position, known ? std::min(point.pressure, 1.0F) : 1.0F});
    }
    return targets;
}

std::vector<FingerEvent> FingerTracker::frame(
    const std::string &session, int action, const std::vector<TouchPoint> &points)
{
    ++m_frames;
    const std::vector<Target> targets = this->targets(points);
    const auto known = m_sessions.find(session);
    std::vector<Finger> fingers = known == m_sessions.end() ? std::vector<Finger>() : known->second;
    const std::vector<int> match
        = targets.size() == fingers.size() ? inOrder(targets.size()) : nearestPairs(fingers, targets);
    const std::vector<bool> lifted = liftedFingers(action, fingers, match);

    std::vector<FingerEvent> events;
    std::vector<FingerEvent> downs;
    std::vector<Finger> after; // in the order of the list
    for (std::size_t t = 0; t < targets.size(); ++t) {
        const Target &target = targets[t];
        if (match[t] >= 0) {
            const auto index = static_cast<std::size_t>(match[t]);
            Finger &finger = fingers[index];
            if (finger.position != target.position) {
                finger.position = target.position;
                events.push_back({FingerEvent::Phase::Move, finger.id, target.position, target.pressure});
            }
            if (!lifted[index]) {
                after.push_back(finger);
            }
        } else if (action != Up) {
            after.push_back({++m_lastId, m_frames, target.position});
            downs.push_back({FingerEvent::Phase::Down, m_lastId, target.position, target.pressure});
        }
    }
    for (std::size_t i = 0; i < fingers.size(); ++i) {
        if (lifted[i]) {
            events.push_back({FingerEvent::Phase::Up, fingers[i].id, fingers[i].position, 1});
        }
    }
    events.insert(events.end(), downs.begin(), downs.end());
    if (after.empty()) {
        m_sessions.erase(session);
    } else {
        m_sessions[session] = std::move(after);
    }
    return events;
}

std::vector<FingerEvent> FingerTracker::lift(const std::string &session)
{
    return frame(session, Up, {});
}

void FingerTracker::clear()
{
    m_sessions.clear();
}

int FingerTracker::count() const
{
    return std::accumulate(m_sessions.begin(), m_sessions.end(), 0,
        [](int sum, const auto &entry) { return sum + static_cast<int>(entry.second.size()); });
}

} // namespace orvane::cloud
