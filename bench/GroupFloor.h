#pragma once

#include <QSize>

namespace bench {

// CPU time of one picture, in milliseconds, when decoding, converting and painting are called directly one
// after another in one thread. Means over many pictures.
struct PictureCost
{
    double keyFrameMs = 0; // decoding and converting the first of a stream
    double decodeMs = 0;
    double convertMs = 0;
    double paintMs = 0;
};

// Of the Video app's pictures at five a second, as the gateway encodes them at `level`, converted to `buffer`
// and painted at `view` (all pixels).
PictureCost pictureCost(QSize level, int kbitPerSec, QSize buffer, QSize view);

} // namespace bench
