#pragma once

#include <atomic>
#include <cstdint>

namespace orvane::cloud {

// What is measured about one session. Every member is written by one thread at a time (its comment says
// which) and may be read by any. Owned jointly by the connection and the viewer.
struct SessionCounters
{
    std::atomic<std::uint64_t> bytesSent{0}; // network thread
    std::atomic<std::uint64_t> framesSent{0}; // device strand
    std::atomic<std::uint64_t> framesDropped{0}; // device strand: pictures that a newer one replaced
    std::atomic<int> levelRow{-1}; // device strand
    std::atomic<bool> automatic{false}; // device strand
    std::atomic<int> castMode{0}; // device strand
    std::atomic<int> corruptNext{0}; // set by any thread, counted down on the device strand
};

} // namespace orvane::cloud
