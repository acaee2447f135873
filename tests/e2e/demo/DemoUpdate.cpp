// The demo's steps of an update: offered, downloaded, put off, and installed when the client ends.

#include "DemoRun.h"

#include "Desktop.h"
#include "Screens.h"
#include "Waiting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using e2e::Desktop;
using e2e::settledPicture;
using e2e::settledPictureOf;
using e2e::StepFailed;
using e2e::waitUntil;

namespace {

const QString updateDialogTitle = QStringLiteral("Update");
const QString installer = QStringLiteral("Orvane_Setup_1.3.0.exe");
// In the main window at its working size.
constexpr QPoint closeButtonOfPage(-34, 32); // from the right
constexpr QPoint checkForUpdates(340, 660);
constexpr QPoint installUpdate(626, 427);
const QColor accent(0xFF, 0x9B, 0x7A);
// In the update dialog.
constexpr QPoint installLater(50, 170);
constexpr QPoint confirmUpdate(220, 211);

} // namespace

// The installer is a script that leaves a mark; slowly delivered, so that the download can be seen.
void DemoRun::offerUpdate()
{
    m_release.add(installer,
        "#!/bin/sh\necho installed >'" + installerMark().toUtf8() + "'\nexit 0\n"
            + e2e::randomBytes(3'000'000, 5));
    m_release.publish(m_service, QStringLiteral("1.3.0"));
    e2e::ReleaseFiles::setFaults(
        m_service, {{QStringLiteral("file"), installer}, {QStringLiteral("kbit_per_s"), 3000}});
    openSettings();
    clickInMainWindow(checkForUpdates);
    save(QStringLiteral("update-offered"),
        settledPictureOf(
            QStringLiteral("the page offers the update"), mainWindowTitle, installUpdate, accent));
    say(QStringLiteral("the page offers version 1.3.0"));
}

void DemoRun::downloadUpdate()
{
    clickInMainWindow(installUpdate);
    waitUntil(QStringLiteral("the update dialog is open"),
        [] { return !Desktop::window(updateDialogTitle).isEmpty(); });
    const QString pending = m_client.dataDir() + QStringLiteral("/pending/");
    waitUntil(QStringLiteral("half of the installer is there"), [&] {
        return QFile::exists(pending + installer)
            || QFileInfo(pending + QStringLiteral("temp_%1.part").arg(installer)).size() > 1'500'000;
    });
    save(QStringLiteral("update-downloading"), Desktop::screenshot(Desktop::window(updateDialogTitle)));
    waitUntil(
        QStringLiteral("the installer is there"), [&] { return QFile::exists(pending + installer); }, 30000);
    save(QStringLiteral("update-ready"),
        settledPictureOf(
            QStringLiteral("the choice is shown"), updateDialogTitle, confirmUpdate + QPoint(0, 11), accent));
    say(QStringLiteral("downloaded the installer of version 1.3.0"));
}

void DemoRun::deferUpdate()
{
    const QPoint corner = Desktop::window(updateDialogTitle).topLeft();
    Desktop::activate(updateDialogTitle);
    Desktop::click(corner + installLater);
    save(QStringLiteral("update-deferred"),
        settledPicture(QStringLiteral("the other choice is made"), Desktop::window(updateDialogTitle)));
    Desktop::click(corner + confirmUpdate);
    waitUntil(QStringLiteral("the update dialog is closed"),
        [] { return Desktop::window(updateDialogTitle).isEmpty(); });
    waitUntil(QStringLiteral("the choice is in the log"), [this] {
        return m_client.log().contains(QStringLiteral("the installer will be started when the client ends"));
    });
    if (QFile::exists(installerMark()))
        throw StepFailed(QStringLiteral("the installer has run before the client has ended"));
}

void DemoRun::updateAtExit()
{
    const QPoint corner(Desktop::window(mainWindowTitle).width(), 0);
    clickInMainWindow(corner + closeButtonOfPage);
    m_client.waitForExit(30000);
    waitUntil(QStringLiteral("the installer has run"), [this] { return QFile::exists(installerMark()); });
    say(QStringLiteral("the client has ended and started the installer"));
}

QString DemoRun::installerMark() const
{
    return QDir(m_client.dataDir()).absoluteFilePath(QStringLiteral("../installed"));
}
