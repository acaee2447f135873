#pragma once

#include "gateway/Clock.h"

#include <optional>
#include <vector>

namespace orvane::cloud {

// Automatic quality of one session: moves between rows of the client's level table. Down when the path has
// been congested for more than half a second, straight to the row that the path can carry; up one row after a
// calm while. When a move up turns out to be too much, the next one is tried later and later.
//
// Pure logic, time is passed in; used by one thread at a time (Viewer).
class QualityControl
{
public:
    QualityControl();

    // Rows `best` to `worst` (best <= worst) may be used; it starts with the best.
    // `bitRates`: kbit/s of every row of the table.
    void setRows(int best, int worst, std::vector<int> bitRates);
    int row() const { return m_row; }

    // What is seen now: `congested` = the path does not carry what this row wants to send, `kbitPerSec` =
    // what it carries, 0 = not known. Call it with every acknowledgement and at least every
    // evaluationPeriod() while needsEvaluation(). True when the row has changed.
    bool observe(TimePoint now, bool congested, int kbitPerSec);

    // Time alone may change the row: there is a better row to try.
    bool needsEvaluation() const { return m_row > m_best; }
    static std::chrono::milliseconds evaluationPeriod();

private:
    bool stepDown(TimePoint now, int kbitPerSec);
    bool stepUp(TimePoint now);
    int rowFor(int kbitPerSec) const;

    int m_best = 0;
    int m_worst = 0;
    int m_row = 0;
    std::vector<int> m_bitRates;
    std::optional<TimePoint> m_lastObservation;
    bool m_wasCongested = false;
    // Time spent congested, less time spent not congested.
    std::chrono::microseconds m_congestion{0};
    TimePoint m_calmSince{};
    TimePoint m_ignoreUntil{}; // frames of the row before are still on their way
    std::optional<TimePoint> m_lastStepUp;
    std::chrono::milliseconds m_calmNeeded;
};

} // namespace orvane::cloud
