#include "device/InputLog.h"

#include <algorithm>
#include <utility>

namespace orvane::cloud {

namespace {

std::size_t sizeOf(const InputRecord &record)
{
    return record.sessionId.size() + record.json.size();
}

} // namespace

void InputLog::add(std::chrono::steady_clock::time_point time, const std::string &session, std::string json)
{
    InputRecord record;
    record.sequence = ++m_lastSequence;
    record.timeUs = std::chrono::duration_cast<std::chrono::microseconds>(time.time_since_epoch()).count();
    record.sessionId = session;
    record.json = std::move(json);
    m_bytes += sizeOf(record);
    m_records.push_back(std::move(record));
    while (m_records.size() > MaxRecords || (m_bytes > MaxBytes && m_records.size() > 1)) {
        m_bytes -= sizeOf(m_records.front());
        m_records.pop_front();
    }
}

std::vector<InputRecord> InputLog::since(std::uint64_t sequence) const
{
    const auto first = std::partition_point(m_records.begin(), m_records.end(),
        [sequence](const InputRecord &record) { return record.sequence <= sequence; });
    return {first, m_records.end()};
}

} // namespace orvane::cloud
