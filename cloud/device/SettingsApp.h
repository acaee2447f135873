#pragma once

#include "device/App.h"

#include <vector>

namespace orvane::cloud {

// Turns the screen, sets the volume and tells about the device. Everything fits on the screen in either
// shape; nothing scrolls. Used by the device's thread, owned by the shell.
class SettingsApp : public App
{
public:
    using App::App;

    void draw(QPainter &painter, const QRect &clip) override;
    void describe(QJsonObject &state) const override;
    void touchDown(const Pointer &pointer) override;
    void touchUp(const Pointer &pointer) override;
    void touchCancel(int id) override;
    void systemChanged() override { invalidateAll(); }

protected:
    void layout() override;

private:
    // Something that can be touched.
    struct Control
    {
        QString name; // in the state
        QRect area;
        std::function<void()> act;
        int pointer = 0; // finger that presses it, 0 = none
    };

    void layoutScreenCard();
    void layoutSoundCard();
    void drawCard(QPainter &painter, const QRect &card, const QString &title) const;
    void drawTurnTile(QPainter &painter, int rotation) const;
    void drawSound(QPainter &painter) const;
    void drawAbout(QPainter &painter) const;
    Control *pressedBy(int pointerId);

    QRect m_screenCard;
    QRect m_soundCard;
    QRect m_aboutCard;
    std::vector<Control> m_controls; // the four rotations, then quieter and louder
};

} // namespace orvane::cloud
