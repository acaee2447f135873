#pragma once

#include "core/DeviceFleet.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace orvane::cloud {

// The newest input events of one device. Thread-compatible, owned by the device.
class InputLog
{
public:
    static constexpr std::size_t MaxRecords = 20'000;
    // The oldest records go when their texts are larger than this together; the newest record always stays.
    static constexpr std::size_t MaxBytes = std::size_t{8} * 1024 * 1024;

    // `json`: the event as a compact JSON object.
    void add(std::chrono::steady_clock::time_point time, const std::string &session, std::string json);
    // Records after `sequence`, oldest first.
    std::vector<InputRecord> since(std::uint64_t sequence) const;

private:
    std::deque<InputRecord> m_records;
    std::uint64_t m_lastSequence = 0;
    std::size_t m_bytes = 0; // of session ids and JSON
};

} // namespace orvane::cloud
