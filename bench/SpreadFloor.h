#pragma once

#include <chrono>
#include <vector>

namespace bench {

// What any program would need on this machine, with what else goes on, to give one event to many receivers:
// one thread writes a small message to one loopback TCP connection after the other, another one reads them.
// Returns the time between the first and the last receiver of each event, in milliseconds. Lasts for `events`
// times `pause`, a little longer on a busy machine. Throws boost::system::system_error when there are no
// sockets.
std::vector<double> spreadFloor(int receivers, int events, std::chrono::milliseconds pause);

} // namespace bench
