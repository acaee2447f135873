#include "gateway/QualityControl.h"

#include <algorithm>

namespace orvane::cloud {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr milliseconds CongestionToStepDown{600};
constexpr milliseconds CongestionToEndCalm{200};
constexpr milliseconds FirstSightMax{250};
constexpr milliseconds SettlingTime{500};
constexpr milliseconds FirstCalmNeeded = seconds(5);
constexpr milliseconds MaxCalmNeeded = seconds(60);
// A step down this soon after a step up means that the step up was too much.
constexpr seconds ProbeTime{10};
constexpr milliseconds EvaluationPeriod{500};
// Of what the path carries, the part that video may take.
constexpr int UsablePercent = 90;

} // namespace

QualityControl::QualityControl()
    : m_calmNeeded(FirstCalmNeeded)
{ }

void QualityControl::setRows(int best, int worst, std::vector<int> bitRates)
{
    *this = QualityControl();
    m_best = best;
    m_worst = worst;
    m_row = best;
    m_bitRates = std::move(bitRates);
}

milliseconds QualityControl::evaluationPeriod()
{
    return EvaluationPeriod;
}

bool QualityControl::observe(TimePoint now, bool congested, int kbitPerSec)
{
    if (!m_lastObservation) {
        m_calmSince = now;
        m_lastObservation = now;
    }
    const auto elapsed = std::chrono::duration_cast<microseconds>(now - *m_lastObservation);
    m_lastObservation = now;
    if (now < m_ignoreUntil) {
        m_wasCongested = congested;
        return false;
    }
    if (congested) {
        // What shows now began some time since the last look, which may be long ago.
        const auto lasting = m_wasCongested ? elapsed : std::min(elapsed, microseconds(FirstSightMax));
        m_congestion = std::min(m_congestion + lasting, microseconds(seconds(1)));
    } else {
        m_congestion = std::max(m_congestion - elapsed, microseconds(0));
    }
    m_wasCongested = congested;
    if (m_congestion >= CongestionToEndCalm) {
        m_calmSince = now;
    }
    if (m_congestion >= CongestionToStepDown) {
        return stepDown(now, kbitPerSec);
    }
    return now - m_calmSince >= m_calmNeeded && stepUp(now);
}

int QualityControl::rowFor(int kbitPerSec) const
{
    for (int row = m_row + 1; row < m_worst; ++row) {
        if (row < static_cast<int>(m_bitRates.size())
            && m_bitRates[static_cast<std::size_t>(row)] <= kbitPerSec / 100 * UsablePercent) {
            return row;
        }
    }
    return m_worst;
}

bool QualityControl::stepDown(TimePoint now, int kbitPerSec)
{
    m_congestion = microseconds(0);
    m_calmSince = now;
    if (m_lastStepUp && now - *m_lastStepUp < ProbeTime) {
        m_calmNeeded = std::min(m_calmNeeded * 2, MaxCalmNeeded);
        m_lastStepUp.reset();
    }
    if (m_row >= m_worst) {
        return false;
    }
    m_row = kbitPerSec > 0 ? rowFor(kbitPerSec) : m_row + 1;
    m_ignoreUntil = now + SettlingTime;
    return true;
}

bool QualityControl::stepUp(TimePoint now)
{
    if (m_row <= m_best) {
        return false;
    }
    if (m_lastStepUp && now - *m_lastStepUp >= ProbeTime) {
        m_calmNeeded = FirstCalmNeeded; // the last step up has held
    }
    --m_row;
    m_calmSince = now;
    m_lastStepUp = now;
    return true;
}

} // namespace orvane::cloud
