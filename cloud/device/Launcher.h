#pragma once

#include "device/AppCatalog.h"

#include <QDateTime>

#include <functional>
#include <vector>

namespace orvane::cloud {

// The home screen: time, date, the device's name and the installed apps.
class Launcher : public App
{
public:
    using Open = std::function<void(AppKind)>;

    // `open` is called when an app's icon is touched.
    Launcher(Host host, QString deviceName, Open open);

    void setTime(const QDateTime &time);

    void draw(QPainter &painter, const QRect &clip) override;
    bool isDark() const override { return true; }
    void describe(QJsonObject &state) const override;
    void touchDown(const Pointer &pointer) override;
    void touchUp(const Pointer &pointer) override;
    void touchCancel(int id) override;

protected:
    void layout() override;

private:
    struct Entry
    {
        AppKind kind;
        QRect cell; // what can be touched
        QRect icon;
        int pointer = 0; // finger that presses it, 0 = none
    };

    QRect clockArea() const;
    void drawClock(QPainter &painter) const;

    const QString m_deviceName;
    const Open m_open;
    QDateTime m_time;
    QRect m_panel; // behind the icons
    std::vector<Entry> m_entries;
};

} // namespace orvane::cloud
