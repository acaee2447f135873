#include "DemoRun.h"

#include "Desktop.h"
#include "Pages.h"
#include "Screens.h"
#include "Waiting.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QJsonArray>

#include <cmath>
#include <cstdio>

using e2e::Desktop;
using e2e::settledPage;
using e2e::settledPicture;
using e2e::StepFailed;
using e2e::waitUntil;

namespace {

constexpr QSize deviceScreen(720, 1280);
constexpr int shadowMargin = 10;
constexpr int titleBarHeight = 40;
constexpr int menuBarWidth = 50;
constexpr int workingWidth = 1000; // the main window is at least this wide after sign-in
constexpr int TabsToOpen = 2; // from the search field over its clear button
constexpr int TabsToOpenInPage = TabsToOpen + 1; // the button beside "Open"
// In the device window.
constexpr int menuButtonHeight = 45;
constexpr int CaptureButton = 3; // in the menu bar
constexpr int RotateButton = 4;
constexpr int KeyEditingButton = 5;
// In the device window while the key mapping is edited, which has that width then.
constexpr int editingWidth = 640 + 2 * shadowMargin;
constexpr QPoint schemeBox(480, 114);
constexpr QPoint firstScheme(400, 145); // of the open list
constexpr QPoint tutorialButton(378, 30);
constexpr QPoint exitButton(542, 30);
constexpr QPoint walkingKey(100, 514); // of the first scheme
constexpr QPoint resumeButton(170, 320); // in the video's area
constexpr int longestStandbyWaitMs = 90000;
// In the main window at its working size.
constexpr QPoint devicesItem(75, 90);
constexpr QPoint groupsItem(75, 134);
constexpr QPoint settingsItem(75, 178);
constexpr QPoint oneMinute(329, 519);
constexpr QPoint german(379, 291);
constexpr QPoint arabic(379, 379);
constexpr QPoint englishOfArabic(761, 203); // the Arabic page is mirrored
// In the web device window.
constexpr QPoint captureButton(368, 310);
constexpr QPoint webCloseButton(366, 20);

QString program(const char *name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}

} // namespace

DemoRun::DemoRun(const QString &outputDir)
    : m_outputDir(outputDir)
    , m_service(program("orvane-cloud"))
    , m_client(program("orvane"))
{ }

bool DemoRun::run()
{
    QDir(m_outputDir).removeRecursively();
    QDir().mkpath(m_outputDir);
    try {
        m_service.start();
        say(QStringLiteral("the local service answers at %1").arg(m_service.apiBaseUrl()));
        m_client.setApiBaseUrl(m_service.apiBaseUrl());
        m_client.setVariable(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(TEST_PLUGIN_PATH));
        m_client.start();
        signIn();
        chooseStandbyTime();
        openDevice();
        paint();
        writeNotes();
        scrollList();
        turn();
        editKeys();
        play();
        showCamera();
        captureDevice();
        showGroups();
        openGroup();
        playGroup();
        promoteTile();
        saveGroup();
        changeLanguage();
        enterStandby();
        closeDevice();
        openWebDevice();
        capturePage();
        closeWebDevice();
        offerUpdate();
        downloadUpdate();
        deferUpdate();
        checkLog();
        updateAtExit();
        say(QStringLiteral("done: %1 pictures in %2").arg(m_step).arg(QDir(m_outputDir).absolutePath()));
        return true;
    } catch (const StepFailed &failure) {
        std::fprintf(stderr, "FAILED: %s\n", failure.what());
        Desktop::screenshot().save(m_outputDir + QStringLiteral("/failed.png"));
        std::fprintf(stderr, "--- client log ---\n%s\n--- client output ---\n%s\n--- service ---\n%s\n",
            qPrintable(m_client.log().right(6000)), qPrintable(m_client.output().right(3000)),
            qPrintable(m_service.output().right(3000)));
        return false;
    }
}

void DemoRun::signIn()
{
    waitUntil(QStringLiteral("the sign-in window is open"),
        [] { return !Desktop::window(mainWindowTitle).isEmpty(); });
    save(QStringLiteral("sign-in"),
        settledPicture(
            QStringLiteral("the sign-in page is painted"), Desktop::window(mainWindowTitle), 30000));

    // The account field has the focus.
    Desktop::activate(mainWindowTitle);
    Desktop::type(QStringLiteral("demo"));
    Desktop::key(QStringLiteral("Tab"));
    Desktop::type(QStringLiteral("orvane-demo"));
    save(QStringLiteral("sign-in-filled"),
        settledPicture(QStringLiteral("the fields are filled in"), Desktop::window(mainWindowTitle)));
    Desktop::key(QStringLiteral("Return"));

    waitUntil(QStringLiteral("the window grows to its working size"),
        [] { return Desktop::window(mainWindowTitle).width() >= workingWidth; });
    save(QStringLiteral("devices"), settledPage(e2e::DevicesPage, 30000));
    say(QStringLiteral("signed in as demo; the device list is shown"));
}

void DemoRun::openDevice()
{
    const QJsonArray devices = m_service.admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
                                   .value(QLatin1String("devices"))
                                   .toArray();
    const QJsonObject device = devices.at(0).toObject();
    m_deviceName = device.value(QLatin1String("alias_name")).toString();
    m_pad = device.value(QLatin1String("pad_code")).toString();

    // From the search field, which has the focus, to the "Open" of the one card that is left.
    Desktop::type(m_deviceName);
    settledPicture(QStringLiteral("the search has ended"), Desktop::window(mainWindowTitle));
    for (int i = 0; i < TabsToOpen; ++i)
        Desktop::key(QStringLiteral("Tab"));
    Desktop::key(QStringLiteral("Return"));
    waitUntil(QStringLiteral("the window of device '%1' is open").arg(m_deviceName),
        [this] { return !Desktop::window(m_deviceName).isEmpty(); });
    waitUntil(QStringLiteral("the device's screen is shown"),
        [this] { return e2e::colourCount(Desktop::screenshot(videoArea()), 200) >= 200; });
    const QImage picture
        = settledPicture(QStringLiteral("the picture is sharp"), Desktop::window(m_deviceName));
    save(QStringLiteral("device"), picture);
    say(QStringLiteral("'%1' is live; sharpness %2")
            .arg(m_deviceName)
            .arg(e2e::sharpness(picture), 0, 'f', 1));
}

void DemoRun::launch(const QString &app)
{
    m_service.openApp(m_pad, QStringLiteral("Home"));
    const auto icons = [this] { return m_service.appState(m_pad).value(QLatin1String("icons")).toObject(); };
    waitUntil(QStringLiteral("the launcher is in front"), [&] { return icons().contains(app); });
    settledPicture(QStringLiteral("the launcher is shown"), videoArea());
    const QJsonArray centre = icons().value(app).toArray();
    Desktop::click(onScreen({centre.at(0).toInt(), centre.at(1).toInt()}));
    waitUntil(QStringLiteral("%1 is in front").arg(app),
        [&] { return m_service.appState(m_pad).value(QLatin1String("app")).toString() == app; });
}

void DemoRun::paint()
{
    launch(QStringLiteral("Paint"));
    settledPicture(QStringLiteral("Paint is shown"), videoArea());
    // A spiral and a zigzag.
    QVector<QPoint> spiral;
    for (int i = 0; i <= 40; ++i) {
        const double angle = i * 0.35;
        const double radius = 30 + i * 4.5;
        spiral << onScreen({qRound(360 + radius * std::cos(angle)), qRound(500 + radius * std::sin(angle))});
    }
    Desktop::drag(spiral);
    QVector<QPoint> zigzag;
    for (int i = 0; i <= 8; ++i)
        zigzag << onScreen({100 + i * 65, i % 2 ? 860 : 1000});
    Desktop::drag(zigzag);
    waitUntil(QStringLiteral("Paint has two strokes"),
        [this] { return m_service.appState(m_pad).value(QLatin1String("strokes")).toInt() == 2; });
    save(QStringLiteral("paint"),
        settledPicture(QStringLiteral("the strokes are shown"), Desktop::window(m_deviceName)));
    say(QStringLiteral("drew 2 strokes in Paint by dragging"));
}

void DemoRun::writeNotes()
{
    launch(QStringLiteral("Notes"));
    settledPicture(QStringLiteral("Notes is shown"), videoArea());
    Desktop::type(QStringLiteral("hello"));
    Desktop::key(QStringLiteral("space"));
    Desktop::type(QStringLiteral("A7x"));
    Desktop::key(QStringLiteral("BackSpace"));
    Desktop::key(QStringLiteral("Return"));
    QGuiApplication::clipboard()->setText(QStringLiteral("你好 مرحبا"));
    Desktop::key(QStringLiteral("ctrl+v"));

    const QString expected = QStringLiteral("hello A7\n你好 مرحبا");
    const auto text = [this] { return m_service.appState(m_pad).value(QLatin1String("text")).toString(); };
    try {
        waitUntil(QStringLiteral("Notes holds the text"), [&] { return text() == expected; });
    } catch (const StepFailed &) {
        throw StepFailed(QStringLiteral("Notes holds '%1' instead of '%2'").arg(text(), expected));
    }
    save(QStringLiteral("notes"),
        settledPicture(QStringLiteral("the text is shown"), Desktop::window(m_deviceName)));
    say(QStringLiteral("typed and pasted into Notes: \"%1\"")
            .arg(text().replace(QLatin1Char('\n'), QStringLiteral("\\n"))));
}

void DemoRun::scrollList()
{
    launch(QStringLiteral("List"));
    settledPicture(QStringLiteral("List is shown"), videoArea());
    const auto value = [this](const char *name) {
        return m_service.appState(m_pad).value(QLatin1String(name)).toDouble();
    };
    const QPoint centre = videoArea().center();

    const double offset = value("offset");
    Desktop::wheel(centre, -3);
    waitUntil(QStringLiteral("the list has scrolled"), [&] { return value("offset") > offset + 50; });
    save(QStringLiteral("list-scrolled"),
        settledPicture(QStringLiteral("the scrolled list is shown"), Desktop::window(m_deviceName)));
    say(QStringLiteral("scrolled the list by wheel: from %1 to %2 pixels").arg(offset).arg(value("offset")));

    const double zoom = value("zoom");
    Desktop::wheel(centre, 2, true);
    waitUntil(QStringLiteral("the list has zoomed in"), [&] { return value("zoom") > zoom * 1.05; });
    save(QStringLiteral("list-pinched"),
        settledPicture(QStringLiteral("the zoomed list is shown"), Desktop::window(m_deviceName)));
    say(QStringLiteral("pinched by Ctrl + wheel: zoom from %1 to %2").arg(zoom).arg(value("zoom")));
}

void DemoRun::turn()
{
    const auto turnTo = [this](const QString &where, const std::function<bool(const QSize &)> &isSo) {
        Desktop::click(menuButton(RotateButton));
        waitUntil(QStringLiteral("the window is in %1").arg(where),
            [&] { return isSo(Desktop::window(m_deviceName).size()); });
        return settledPicture(QStringLiteral("the turned picture is shown"), Desktop::window(m_deviceName));
    };
    m_service.rotate(m_pad, 1);
    waitUntil(QStringLiteral("the window has followed the device"), [this] {
        const QSize size = Desktop::window(m_deviceName).size();
        return size.width() > size.height();
    });
    save(QStringLiteral("turned-by-the-device"),
        settledPicture(QStringLiteral("the turned picture is shown"), Desktop::window(m_deviceName)));
    turnTo(QStringLiteral("portrait"), [](const QSize &size) { return size.width() < size.height(); });
    save(QStringLiteral("turned-by-the-button"),
        turnTo(QStringLiteral("landscape"), [](const QSize &size) { return size.width() > size.height(); }));
    m_service.rotate(m_pad, 0);
    waitUntil(QStringLiteral("the window is upright again"), [this] {
        const QSize size = Desktop::window(m_deviceName).size();
        return size.width() < size.height();
    });
    settledPicture(QStringLiteral("the upright picture is shown"), Desktop::window(m_deviceName));
    say(QStringLiteral("turned the window from the device's side and by the button"));
}

// The service's first scheme is made for the game.
void DemoRun::editKeys()
{
    launch(QStringLiteral("Arena"));
    Desktop::click(menuButton(KeyEditingButton));
    const auto window = [this] { return Desktop::window(m_deviceName); };
    waitUntil(QStringLiteral("the editor is open"), [&] { return window().width() == editingWidth; });
    settledPicture(QStringLiteral("the editor is shown"), window());

    Desktop::click(window().topLeft() + tutorialButton);
    const QString tutorial = QStringLiteral("Key mapping");
    waitUntil(QStringLiteral("the tutorial is open"), [&] { return !Desktop::window(tutorial).isEmpty(); });
    save(QStringLiteral("tutorial"),
        settledPicture(QStringLiteral("the tutorial is shown"), Desktop::window(tutorial)));
    Desktop::activate(tutorial);
    Desktop::key(QStringLiteral("Escape"));
    waitUntil(QStringLiteral("the tutorial is closed"), [&] { return Desktop::window(tutorial).isEmpty(); });

    const QRect key(window().topLeft() + walkingKey - QPoint(40, 40), QSize(80, 80));
    const QImage without = Desktop::screenshot(key);
    Desktop::activate(m_deviceName);
    const QRect listed(window().topLeft() + firstScheme - QPoint(60, 10), QSize(120, 20));
    const QImage unlisted = Desktop::screenshot(listed);
    Desktop::click(window().topLeft() + schemeBox);
    waitUntil(QStringLiteral("the list of schemes is open"),
        [&] { return e2e::difference(Desktop::screenshot(listed), unlisted) > 0.1; });
    settledPicture(QStringLiteral("the schemes are shown"), window());
    Desktop::click(window().topLeft() + firstScheme);
    waitUntil(QStringLiteral("the scheme's keys lie over the video"),
        [&] { return e2e::difference(Desktop::screenshot(key), without) > 0.2; });
    Desktop::moveTo(window().topLeft() + tutorialButton + QPoint(-200, 0));
    save(QStringLiteral("key-editing"), settledPicture(QStringLiteral("the keys are shown"), window()));
    Desktop::click(window().topLeft() + exitButton);
    waitUntil(QStringLiteral("the editor is closed"), [&] { return window().width() < editingWidth; });
    settledPicture(QStringLiteral("the game is shown"), window());
    say(QStringLiteral("read the tutorial, and laid the keys of a scheme over the game"));
}

void DemoRun::play()
{
    const auto game
        = [this](const char *what) { return m_service.appState(m_pad).value(QLatin1String(what)); };
    Desktop::keyDown(QStringLiteral("w"));
    waitUntil(
        QStringLiteral("the figure walks"), [&] { return game("position").toArray().at(1).toDouble() > 2; });
    Desktop::keyDown(QStringLiteral("f"));
    waitUntil(QStringLiteral("it shoots"), [&] { return game("shots").toInt() > 0; });
    Desktop::keyUp(QStringLiteral("f"));
    Desktop::key(QStringLiteral("q"));
    const QPoint pointer = videoArea().center() + QPoint(60, 0); // beside where it is held
    waitUntil(QStringLiteral("it looks around"), [&] {
        Desktop::moveTo(pointer);
        const double heading = game("heading").toDouble(); // 0 and 360 are ahead
        return heading > 15 && heading < 345;
    });
    save(QStringLiteral("playing"), Desktop::screenshot(Desktop::window(m_deviceName)));
    Desktop::key(QStringLiteral("q"));
    Desktop::keyUp(QStringLiteral("w"));
    waitUntil(QStringLiteral("every finger has come up"),
        [&] { return game("held").toObject().isEmpty() && !game("walking").toBool(); });
    say(QStringLiteral("played with the keyboard: walked %1 m, shot, and turned to %2 degrees")
            .arg(game("position").toArray().at(1).toDouble(), 0, 'f', 1)
            .arg(game("heading").toDouble(), 0, 'f', 0));
}

// The computer's camera is a test source, so that there is one everywhere.
void DemoRun::showCamera()
{
    launch(QStringLiteral("Camera"));
    const auto pictures
        = [this] { return m_service.appState(m_pad).value(QLatin1String("pictures")).toInt(); };
    waitUntil(QStringLiteral("the device has pictures of the camera"), [&] { return pictures() >= 3; });
    waitUntil(QStringLiteral("the camera's picture is shown"),
        [this] { return e2e::colourCount(Desktop::screenshot(videoArea()), 200) >= 200; });
    save(QStringLiteral("camera"), Desktop::screenshot(Desktop::window(m_deviceName)));
    say(QStringLiteral("the device's camera app has shown %1 pictures").arg(pictures()));
    m_service.openApp(m_pad, QStringLiteral("Home"));
    settledPicture(QStringLiteral("the launcher is shown"), videoArea());
}

void DemoRun::captureDevice()
{
    Desktop::click(menuButton(CaptureButton));
    saveAs(QStringLiteral("device-screenshot"), deviceScreen);
    say(QStringLiteral("saved a screenshot of 720 x 1280 from the device window"));
}

// The minute without input has begun with the last use of the window; the main window was used meanwhile.
void DemoRun::enterStandby()
{
    const auto pictures
        = [this] { return m_service.sessionStats(m_pad).value(QLatin1String("frames_sent")).toInt(); };
    waitUntil(
        QStringLiteral("the window is in stand-by"),
        [this] { return m_service.sessionStats(m_pad).value(QLatin1String("cast_mode")).toInt(1) == 0; },
        longestStandbyWaitMs);
    Desktop::activate(m_deviceName);
    save(QStringLiteral("stand-by"),
        settledPicture(QStringLiteral("the stand-by page is shown"), Desktop::window(m_deviceName)));
    const int before = pictures();
    Desktop::click(videoArea().topLeft() + resumeButton);
    waitUntil(QStringLiteral("pictures come again"), [&] { return pictures() > before; });
    save(QStringLiteral("resumed"),
        settledPicture(QStringLiteral("the device is shown again"), Desktop::window(m_deviceName)));
    say(QStringLiteral("went to stand-by after a minute without input, and resumed"));
}

void DemoRun::closeDevice()
{
    const QRect window = Desktop::window(m_deviceName);
    Desktop::click({window.right() - shadowMargin - 20, window.top() + shadowMargin + titleBarHeight / 2});
    waitUntil(QStringLiteral("the device window is closed"),
        [this] { return Desktop::window(m_deviceName).isEmpty(); });
    waitForNoSession();
    say(QStringLiteral("closed the device window; the service has its session back"));
}

// The page's console ends in the log too. The window system's protocol errors do not count: Qt reports one
// when the window manager has already destroyed the frame of a window that Qt still asks the position of.
void DemoRun::checkLog()
{
    const QStringList lines = m_client.log().split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.contains(QLatin1String("QXcbConnection: XCB error")))
            continue;
        if (line.contains(QLatin1String(" [WARNING]: ")) || line.contains(QLatin1String(" [CRITICAL]: ")))
            throw StepFailed(QStringLiteral("the client's log has: %1").arg(line));
    }
    say(QStringLiteral("the client's log has %1 lines and no warning").arg(lines.size()));
}

void DemoRun::waitForNoSession()
{
    waitUntil(QStringLiteral("the service has the session back"), [this] {
        return m_service.admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"))
            .value(QLatin1String("sessions"))
            .toArray()
            .isEmpty();
    });
}

void DemoRun::clickInMainWindow(const QPoint &position)
{
    Desktop::activate(mainWindowTitle);
    Desktop::click(Desktop::window(mainWindowTitle).topLeft() + position);
}

void DemoRun::openSettings()
{
    clickInMainWindow(settingsItem);
    settledPage(e2e::SettingsPage);
}

void DemoRun::chooseStandbyTime()
{
    openSettings();
    clickInMainWindow(oneMinute);
    settledPicture(QStringLiteral("the time is chosen"), Desktop::window(mainWindowTitle));
    clickInMainWindow(devicesItem);
    settledPage(e2e::DevicesPage);
}

void DemoRun::showGroups()
{
    clickInMainWindow(groupsItem);
    save(QStringLiteral("groups"), settledPage(e2e::GroupsPage));
}

void DemoRun::changeLanguage()
{
    clickInMainWindow(settingsItem);
    save(QStringLiteral("settings"), settledPage(e2e::SettingsPage));
    const auto choose = [this](const QPoint &position, const QString &code, const e2e::Page &page) {
        clickInMainWindow(position);
        waitUntil(QStringLiteral("the client is told the language"),
            [&] { return m_client.log().contains(QStringLiteral("\"lang\":\"%1\"").arg(code)); });
        return settledPage(page);
    };
    save(QStringLiteral("german"), choose(german, QStringLiteral("de"), e2e::SettingsPage));
    save(QStringLiteral("arabic"), choose(arabic, QStringLiteral("ar"), e2e::MirroredSettingsPage));
    choose(englishOfArabic, QStringLiteral("en"), e2e::SettingsPage);
    say(QStringLiteral("changed the language to German, Arabic and back"));
}

void DemoRun::openWebDevice()
{
    clickInMainWindow(devicesItem);
    settledPage(e2e::DevicesPage);
    Desktop::type(m_deviceName);
    settledPicture(QStringLiteral("the search has ended"), Desktop::window(mainWindowTitle));
    for (int i = 0; i < TabsToOpenInPage; ++i)
        Desktop::key(QStringLiteral("Tab"));
    Desktop::key(QStringLiteral("Return"));
    waitUntil(QStringLiteral("the web window of device '%1' is open").arg(m_deviceName),
        [this] { return !Desktop::window(m_deviceName).isEmpty(); });
    waitUntil(
        QStringLiteral("the device's screen is shown in the page"),
        [this] { return e2e::colourCount(Desktop::screenshot(Desktop::window(m_deviceName)), 200) >= 200; },
        30000);
    save(QStringLiteral("web-device"),
        settledPicture(QStringLiteral("the page's picture is sharp"), Desktop::window(m_deviceName), 30000));
    say(QStringLiteral("'%1' is live in a web device window").arg(m_deviceName));
}

void DemoRun::capturePage()
{
    Desktop::click(Desktop::window(m_deviceName).topLeft() + captureButton);
    saveAs(QStringLiteral("page-screenshot"), deviceScreen);
    say(QStringLiteral("saved a screenshot of 720 x 1280 from the page"));
}

void DemoRun::saveAs(const QString &name, const QSize &size)
{
    const QString dialog = QStringLiteral("Save File");
    waitUntil(QStringLiteral("the save dialog is open"), [&] { return !Desktop::window(dialog).isEmpty(); });
    settledPicture(QStringLiteral("the save dialog is painted"), Desktop::window(dialog));
    const QString file = QDir(m_outputDir).absoluteFilePath(pictureName(name));
    Desktop::activate(dialog);
    Desktop::key(QStringLiteral("ctrl+a"));
    Desktop::type(file);
    Desktop::key(QStringLiteral("Return"));
    waitUntil(QStringLiteral("the screenshot is on the disk"), [&] { return QImage(file).size() == size; });
}

void DemoRun::closeWebDevice()
{
    Desktop::click(Desktop::window(m_deviceName).topLeft() + webCloseButton);
    waitUntil(QStringLiteral("the web device window is closed"),
        [this] { return Desktop::window(m_deviceName).isEmpty(); });
    waitForNoSession();
    say(QStringLiteral("closed the web device window; the service has its session back"));
}

QRect DemoRun::videoArea() const
{
    return Desktop::window(m_deviceName)
        .adjusted(shadowMargin, shadowMargin + titleBarHeight, -shadowMargin - menuBarWidth, -shadowMargin);
}

QPoint DemoRun::menuButton(int index) const
{
    const QRect video = videoArea();
    return {video.right() + menuBarWidth / 2, video.top() + index * menuButtonHeight + menuButtonHeight / 2};
}

QPoint DemoRun::onScreen(const QPoint &devicePoint) const
{
    const QRect video = videoArea();
    return video.topLeft()
        + QPoint(devicePoint.x() * video.width() / deviceScreen.width(),
            devicePoint.y() * video.height() / deviceScreen.height());
}

QString DemoRun::pictureName(const QString &name)
{
    ++m_step;
    return QStringLiteral("%1-%2.png").arg(m_step, 2, 10, QLatin1Char('0')).arg(name);
}

void DemoRun::save(const QString &name, const QImage &picture)
{
    const QString file = m_outputDir + QLatin1Char('/') + pictureName(name);
    if (!picture.save(file))
        throw StepFailed(QStringLiteral("%1 could not be written").arg(file));
}

void DemoRun::say(const QString &text)
{
    std::printf("  %s\n", qPrintable(text));
    std::fflush(stdout);
}
