#pragma once

#include <QImage>
#include <QSize>

namespace orvane::cloud {

// The picture behind home screen and recent apps. Drawn once per orientation for the whole process and
// shared; any thread.
const QImage &wallpaper(QSize screen);

} // namespace orvane::cloud
