#pragma once

#include "device/AppCatalog.h"

#include <QRectF>

class QPainter;

namespace orvane::cloud {

// Draws the icon of an app into a square. `kind`: not Home, which has none.
void drawAppIcon(QPainter &painter, AppKind kind, const QRectF &square);

} // namespace orvane::cloud
