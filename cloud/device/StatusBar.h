#pragma once

#include <QColor>
#include <QSize>
#include <QString>

class QPainter;

namespace orvane::cloud {

// Draws the line at the top of the screen: time, network and battery. `time`: as shown; `batteryPercent`: 0
// to 100; `colour`: of all signs. The background is the app's.
void drawStatusBar(
    QPainter &painter, QSize screen, const QString &time, int batteryPercent, const QColor &colour);

} // namespace orvane::cloud
