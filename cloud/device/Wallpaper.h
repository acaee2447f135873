#pragma once

#include <QImage>
#include <QSize>

namespace orvane::cloud {

// The picture behind home screen and recent apps. Drawn once per screen size for the whole process and
// shared, with as long a life; any thread.
const QImage &wallpaper(QSize screen);

} // namespace orvane::cloud
