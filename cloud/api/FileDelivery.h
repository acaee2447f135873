#pragma once

#include <cstdint>
#include <fstream>
#include <optional>

namespace orvane::cloud {

// A file that is the body of a reply, and how it is delivered: as fast as the client takes it, or disturbed
// as a test wants it. Moved from the worker that opens it to the network thread that sends it.
struct FileDelivery
{
    std::ifstream file; // open, at its beginning
    std::uint64_t bytes = 0; // its size

    std::uint64_t bytesPerSec = 0; // 0 = no limit
    std::optional<std::uint64_t> breakOffAfter; // bytes of the body, then the connection is closed
    std::optional<std::uint64_t> stallAfter; // bytes of the body, then nothing is sent for stallMs
    std::int64_t stallMs = 0;
    bool corrupt = false; // the byte in the middle is another
};

} // namespace orvane::cloud
