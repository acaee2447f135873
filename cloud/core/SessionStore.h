#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cloud {

// One granted streaming session. It outlives a restart of the service.
struct StreamSession
{
    std::string sessionId;
    std::string padCode;
    std::int32_t userId = -1;
};

enum class SessionState {
    Valid,
    Unknown, // never granted, or given back
    Expired, // the device's time is over
};

// Where the gateway looks up the sessions that the HTTP API granted. Implemented by the API side over SQLite;
// every operation may be called from any thread.
class SessionStore
{
public:
    virtual ~SessionStore() = default;

    // Whether the client that names these three values may stream.
    virtual SessionState check(const StreamSession &session) = 0;
};

} // namespace orvane::cloud
