#pragma once

#include "device/App.h"

namespace orvane::cloud {

// Flips the whole screen between two colours at every finger that comes down: what end-to-end delay is
// measured with. Draws next to nothing, so that drawing does not count.
class LatencyApp : public App
{
public:
    using App::App;

    void draw(QPainter &painter, const QRect &clip) override;
    bool isDark() const override { return m_flips % 2 == 0; }
    void describe(QJsonObject &state) const override;
    void touchDown(const Pointer &pointer) override;

private:
    int m_flips = 0;
};

} // namespace orvane::cloud
