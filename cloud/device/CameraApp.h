#pragma once

#include "device/App.h"

#include <QImage>

namespace orvane::cloud {

// Shows the pictures of the user's camera, as large as they fit between the bars and in their own shape, and
// counts them. Wants the camera while it is in front, in the screen's size.
class CameraApp : public App
{
public:
    using App::App;

    void draw(QPainter &painter, const QRect &clip) override;
    bool isDark() const override { return true; }
    void describe(QJsonObject &state) const override;
    void pause() override;
    std::optional<QSize> wantedCamera() const override { return screen(); }
    void cameraPicture(const QImage &picture, QSize nativeSize) override;

private:
    void drawWaiting(QPainter &painter) const;

    QImage m_picture; // the newest; none while waiting for the first
    QSize m_nativeSize{0, 0}; // of m_picture as it came
    int m_count = 0; // since the app came to the front
};

} // namespace orvane::cloud
