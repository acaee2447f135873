#include "device/FingerTracker.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

namespace orvane::cloud {

namespace {

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
    constexpr int Up = 1;
    ++m_frames;
    const std::vector<Target> targets = this->targets(points);
    const std::vector<Finger> before = m_sessions[session];

    std::vector<int> match; // by target: index in `before`, -1 = new
    if (targets.size() == before.size()) {
        match.resize(targets.size());
        std::iota(match.begin(), match.end(), 0);
    } else {
        match = nearestPairs(before, targets);
    }
    std::vector<bool> lifted(before.size(), true);
    for (const int index : match) {
        if (index >= 0) {
            lifted[static_cast<std::size_t>(index)] = false;
        }
    }
    if (action == Up && targets.size() == before.size()) {
        for (std::size_t i = 0; i < before.size() && before[i].birth == before.front().birth; ++i) {
            lifted[i] = true;
        }
    }

    std::vector<FingerEvent> ups, moves, downs;
    std::vector<Finger> after;
    for (std::size_t t = 0; t < targets.size(); ++t) {
        const Target &target = targets[t];
        Finger finger{0, m_frames, target.position};
        if (match[t] < 0) {
            finger.id = ++m_lastId;
            downs.push_back({FingerEvent::Phase::Down, finger.id, target.position, target.pressure});
        } else {
            const Finger &old = before[static_cast<std::size_t>(match[t])];
            finger.id = old.id;
            finger.birth = old.birth;
            if (old.position != target.position) {
                moves.push_back({FingerEvent::Phase::Move, finger.id, target.position, target.pressure});
            }
            if (lifted[static_cast<std::size_t>(match[t])]) {
                continue; // moved to its end, then lifted below
            }
        }
        after.push_back(finger);
    }
    std::vector<FingerEvent> ends; // fingers that the frame still lists end after their last move
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (!lifted[i]) {
            continue;
        }
        const auto listed = std::find(match.begin(), match.end(), static_cast<int>(i));
        if (listed == match.end()) {
            ups.push_back({FingerEvent::Phase::Up, before[i].id, before[i].position, 1});
        } else {
            const auto t = static_cast<std::size_t>(listed - match.begin());
            ends.push_back({FingerEvent::Phase::Up, before[i].id, targets[t].position, 1});
        }
    }
    if (after.empty()) {
        m_sessions.erase(session);
    } else {
        m_sessions[session] = std::move(after);
    }
    ups.insert(ups.end(), moves.begin(), moves.end());
    ups.insert(ups.end(), ends.begin(), ends.end());
    ups.insert(ups.end(), downs.begin(), downs.end());
    return ups;
}

std::vector<FingerEvent> FingerTracker::lift(const std::string &session)
{
    return frame(session, 1, {});
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
