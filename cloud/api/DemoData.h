#pragma once

#include <optional>

namespace orvane::cloud {

struct ServiceData;

constexpr int defaultDeviceCount = 12;
constexpr int maxDeviceCount = 1000;

// Fills an empty service with the account "demo" (password "orvane-demo"), its devices, two saved groups of
// them and two key-map schemes, and with the account "second" (password "orvane-second") and two devices of
// its own. An existing service whose demo account has never had these groups or schemes gets them too.
//
// `deviceCount`: how many devices the demo account has, 0 to maxDeviceCount. Without it a new service gets
// defaultDeviceCount and an existing one keeps what it has; with it devices are added or removed at the end
// of the list. Called once at the start, before the devices run. Throws DatabaseError.
void prepareDemoData(ServiceData &data, std::optional<int> deviceCount);

} // namespace orvane::cloud
