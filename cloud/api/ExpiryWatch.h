#pragma once

#include "api/Clocks.h"

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace orvane::cloud {

class DeviceFleet;
struct ServiceData;

// Ends what is over while the service runs: the streams of devices whose time has run out, and old sign-ins
// with their streams, at the latest half a second after their time. A thread of its own sleeps until the next
// device's time is over, but not for longer than that half second, because times may be changed meanwhile.
//
// Owned by ApiService. Operations may be called from any thread.
class ExpiryWatch
{
public:
    ExpiryWatch(ServiceData &data, DeviceFleet &fleet);
    ~ExpiryWatch();
    ExpiryWatch(const ExpiryWatch &) = delete;
    ExpiryWatch &operator=(const ExpiryWatch &) = delete;

    // Starts the thread.
    void start();
    // Looks for what is over and ends it. Throws DatabaseError.
    void check();
    // A device's time is over in so many seconds from now; with 0 its sessions have been ended on return.
    // False when there is no such device. Throws DatabaseError.
    bool expireIn(const std::string &padCode, std::chrono::seconds remaining);

private:
    void run();
    void checkLocked(); // with m_mutex held
    std::chrono::milliseconds timeToNextCheck() const; // with m_mutex held

    ServiceData &m_data;
    DeviceFleet &m_fleet;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    WallTime m_checkedUntil; // m_mutex
    bool m_stopping = false; // m_mutex
    std::thread m_thread; // started and joined by the owner
};

} // namespace orvane::cloud
