#pragma once

#include <QSize>

namespace bench {

// Size of the video in a device window, pixels.
constexpr QSize viewSize(340, 600);

// What one flip of the Latency app costs when its stages are called directly one after another in one thread:
// encode (as the gateway does), decode, convert to 720 x 1280 BGRA, paint at the view's size. Median of many,
// in milliseconds of wall time.
double floorMs();

} // namespace bench
