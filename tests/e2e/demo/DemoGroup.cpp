// The demo's steps in the group's window.

#include "DemoRun.h"

#include "Desktop.h"
#include "Screens.h"
#include "Waiting.h"

#include <QJsonArray>

#include <cmath>

using e2e::Desktop;
using e2e::settledPicture;
using e2e::waitUntil;

namespace {

// In the main window at its working size.
constexpr QPoint openSecondGroup(1034, 285);
// In the group's window, which is as large for every group.
const QString groupTitle = QStringLiteral("Guild raid");
const QString savedGroupTitle = QStringLiteral("Evening raid");
constexpr int groupDevices = 4;
constexpr QPoint masterVideo(107, 50); // upper left corner
constexpr QPoint firstTile(487, 74);
constexpr int tilePitch = 192;
constexpr QPoint setAsMasterEntry(86, 87); // in a tile
constexpr QPoint saveGroupButton(50, 90);
constexpr QPoint groupCloseButton(1230, 30);

} // namespace

void DemoRun::clickInGroup(const QPoint &position)
{
    Desktop::activate(groupTitle);
    Desktop::click(Desktop::window(groupTitle).topLeft() + position);
}

QStringList DemoRun::groupPads() const
{
    QStringList pads;
    const QJsonArray sessions = m_service.admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"))
                                    .value(QLatin1String("sessions"))
                                    .toArray();
    for (const QJsonValue &session : sessions)
        pads << session.toObject().value(QLatin1String("pad_code")).toString();
    pads.removeAll(m_pad);
    return pads;
}

// The one whose devices have no window of their own.
void DemoRun::openGroup()
{
    clickInMainWindow(openSecondGroup);
    waitUntil(
        QStringLiteral("the group's window is open"), [] { return !Desktop::window(groupTitle).isEmpty(); });
    waitUntil(QStringLiteral("the group's devices are connected"),
        [this] { return groupPads().size() == groupDevices; });
    const QPoint origin = Desktop::window(groupTitle).topLeft();
    for (int i = 0; i < groupDevices - 1; ++i) {
        const QRect tile(origin + firstTile + QPoint(i * tilePitch, 0), QSize(172, 240));
        waitUntil(QStringLiteral("tile %1 shows its device").arg(i + 1),
            [&] { return e2e::colourCount(Desktop::screenshot(tile), 60) >= 60; });
    }
    save(QStringLiteral("group"),
        settledPicture(QStringLiteral("the group is shown"), Desktop::window(groupTitle)));
    say(QStringLiteral("opened the group '%1': %2 devices are live").arg(groupTitle).arg(groupDevices));
}

void DemoRun::playGroup()
{
    const QStringList pads = groupPads();
    for (const QString &pad : pads)
        m_service.openApp(pad, QStringLiteral("Paint"));
    settledPicture(QStringLiteral("Paint is shown"), Desktop::window(groupTitle));
    const QPoint video = Desktop::window(groupTitle).topLeft() + masterVideo;
    QVector<QPoint> heart;
    for (int i = 0; i <= 40; ++i) {
        const double t = i * 2 * 3.14159265 / 40;
        const double x = 16 * std::pow(std::sin(t), 3);
        const double y = 13 * std::cos(t) - 5 * std::cos(2 * t) - 2 * std::cos(3 * t) - std::cos(4 * t);
        heart << video + QPoint(qRound(173 + 7 * x), qRound(290 - 7 * y));
    }
    Desktop::drag(heart);
    for (const QString &pad : pads)
        waitUntil(QStringLiteral("the stroke is on %1").arg(pad),
            [&] { return m_service.appState(pad).value(QLatin1String("strokes")).toInt() == 1; });
    save(QStringLiteral("group-played"),
        settledPicture(QStringLiteral("the strokes are shown"), Desktop::window(groupTitle)));
    say(QStringLiteral("drew one stroke on the master; all %1 devices have it").arg(pads.size()));
}

void DemoRun::promoteTile()
{
    const QPoint tile = Desktop::window(groupTitle).topLeft() + firstTile + QPoint(tilePitch, 0);
    Desktop::moveTo(tile + QPoint(10, 10));
    save(QStringLiteral("group-menu"),
        settledPicture(QStringLiteral("the tile's menu is shown"), Desktop::window(groupTitle)));
    Desktop::click(tile + setAsMasterEntry);
    Desktop::moveTo(Desktop::window(groupTitle).topLeft() + masterVideo);
    save(QStringLiteral("group-promoted"),
        settledPicture(QStringLiteral("the new master is shown"), Desktop::window(groupTitle)));
    say(QStringLiteral("made the second tile the master"));
}

void DemoRun::saveGroup()
{
    clickInGroup(saveGroupButton);
    Desktop::type(savedGroupTitle);
    save(QStringLiteral("group-save"),
        settledPicture(QStringLiteral("the name is asked for"), Desktop::window(groupTitle)));
    Desktop::key(QStringLiteral("Return"));
    waitUntil(
        QStringLiteral("the group has its name"), [] { return !Desktop::window(savedGroupTitle).isEmpty(); });
    Desktop::activate(savedGroupTitle);
    Desktop::click(Desktop::window(savedGroupTitle).topLeft() + groupCloseButton);
    waitUntil(QStringLiteral("the group's window is closed"),
        [] { return Desktop::window(savedGroupTitle).isEmpty(); });
    say(QStringLiteral("saved the group as '%1' and closed it").arg(savedGroupTitle));
}
