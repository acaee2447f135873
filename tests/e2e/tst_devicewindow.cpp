#include "Resources.h"
#include "Screens.h"
#include "Service.h"
#include "Waiting.h"

#include "device/MenuBar.h"
#include "device/MenuButton.h"
#include "device/SingleController.h"
#include "device/StandbyWidget.h"
#include "net/HttpHelper.h"
#include "stream/FrameBufferLock.h"
#include "stream/VideoView.h"
#include "swplay/SWRuntime.h"

#include <QApplication>
#include <QJsonArray>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <utility>

using e2e::Resources;
using e2e::Service;
using e2e::StepFailed;
using e2e::waitUntil;

namespace {

constexpr int rotateButton = 4; // in the menu bar
constexpr int turns = 10;
constexpr QSize portraitContent(390, 640);
constexpr QSize landscapeContent(650, 380);
constexpr double samePicture = 0.02; // share of pixels that compression may change clearly

} // namespace

// The device window against the real service: what the device gets and what the person sees.
class TestDeviceWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void turnsFromBothSides();
    void turnsWhileMaximised();
    void pausesInStandbyAndResumes();
    void leavesNothingBehind();

private:
    void openWindow();
    void closeWindow();
    void clickRotate();
    void turnDevice(int rotation);
    // The window's picture is the device's, and a touch on each corner and the centre arrives where it was
    // made.
    void checkPictureAndTouches(const QString &when);
    QVector<QPoint> touchedPoints(const QVector<QPoint> &onView);
    void turn(int number);
    // The window has the size of one that was opened in the view's orientation.
    void waitForContent();
    qint64 bytesSent() const;

    std::unique_ptr<Service> m_service;
    QString m_serviceId;
    QString m_pad;
    std::unique_ptr<SingleController> m_window;
    VideoView *m_view = nullptr;
};

void TestDeviceWindow::initTestCase()
{
    e2e::steps([this] {
        m_service = std::make_unique<Service>(
            QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1);
        m_service->start();
        qputenv("ORVANE_API_BASE_URL", m_service->apiBaseUrl().toUtf8());
        const QJsonObject user = m_service->signIn();
        HttpHelper::setLoginParams(user.value(QLatin1String("access_token")).toString(),
            user.value(QLatin1String("login_id")).toString());
        const QJsonObject device = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
                                       .value(QLatin1String("devices"))
                                       .toArray()
                                       .at(0)
                                       .toObject();
        m_serviceId = device.value(QLatin1String("service_id")).toString();
        m_pad = device.value(QLatin1String("pad_code")).toString();
    });
    SWRuntime::getInstance()->init(0, "");
}

void TestDeviceWindow::cleanupTestCase()
{
    SWRuntime::getInstance()->deinit();
    m_service.reset();
}

void TestDeviceWindow::init()
{
    e2e::steps([this] {
        m_service->rotate(m_pad, 0);
        m_service->openApp(m_pad, QStringLiteral("Home"));
        openWindow();
    });
}

void TestDeviceWindow::cleanup()
{
    if (QTest::currentTestFailed() && m_window)
        m_window->grab().save(
            QStringLiteral("failed-%1.png").arg(QLatin1String(QTest::currentTestFunction())));
    m_window.reset();
}

void TestDeviceWindow::openWindow()
{
    m_window = std::make_unique<SingleController>(m_serviceId, QStringLiteral("Aurora"));
    m_view = m_window->findChild<VideoView *>();
    m_window->show();
    m_window->applyDevice();
    waitUntil(QStringLiteral("the first picture"), [this] { return !m_view->picture().isNull(); });
}

void TestDeviceWindow::closeWindow()
{
    m_window->close();
    m_window.reset();
    waitUntil(QStringLiteral("the gateway has seen the session's end"),
        [this] { return m_service->sessionStats(m_pad).isEmpty(); });
}

void TestDeviceWindow::waitForContent()
{
    const int margins = 2 * m_window->shadowMargin();
    const QSize content
        = m_view->orientation() == ScreenOrientation::Portrait ? portraitContent : landscapeContent;
    waitUntil(QStringLiteral("the window has its size"),
        [&] { return m_window->size() == content + QSize(margins, margins); });
}

qint64 TestDeviceWindow::bytesSent() const
{
    return static_cast<qint64>(
        m_service->sessionStats(m_pad).value(QLatin1String("bytes_sent")).toDouble(-1));
}

void TestDeviceWindow::clickRotate()
{
    auto *button = m_window->findChild<MenuBar *>()->findChildren<MenuButton *>().at(rotateButton);
    QTest::mouseClick(button, Qt::LeftButton);
}

void TestDeviceWindow::turnDevice(int rotation)
{
    const ScreenOrientation expected
        = rotation % 2 != 0 ? ScreenOrientation::Landscape : ScreenOrientation::Portrait;
    m_service->rotate(m_pad, rotation);
    waitUntil(QStringLiteral("the window has followed the device to rotation %1").arg(rotation),
        [&] { return m_view->orientation() == expected; });
}

QVector<QPoint> TestDeviceWindow::touchedPoints(const QVector<QPoint> &onView)
{
    const int before = m_service->inputEvents(m_pad).size();
    for (const QPoint &point : onView)
        QTest::mouseClick(m_view, Qt::LeftButton, {}, point);
    QVector<QPoint> downs;
    waitUntil(QStringLiteral("the device has every touch"), [&] {
        downs.clear();
        int lifts = 0;
        const QJsonArray events = m_service->inputEvents(m_pad);
        for (int i = before; i < events.size(); ++i) {
            const QJsonObject event = events.at(i).toObject();
            if (event.value(QLatin1String("type")) != QLatin1String("touch"))
                continue;
            const QJsonArray point = event.value(QLatin1String("points")).toArray().at(0).toArray();
            if (event.value(QLatin1String("action")).toInt() == 0)
                downs.append({point.at(0).toInt(), point.at(1).toInt()});
            else if (event.value(QLatin1String("action")).toInt() == 1)
                ++lifts;
        }
        return downs.size() == onView.size() && lifts == onView.size();
    });
    return downs;
}

void TestDeviceWindow::checkPictureAndTouches(const QString &when)
{
    const bool portrait = m_view->orientation() == ScreenOrientation::Portrait;
    double worst = 1;
    waitUntil(QStringLiteral("%1: the picture is the device's").arg(when), [&] {
        QImage expected = m_service->screen(m_pad);
        if (!portrait)
            expected = expected.transformed(QTransform().rotate(-90));
        const QImage shown = m_view->grab().toImage();
        worst = e2e::difference(shown.convertToFormat(QImage::Format_RGB32),
            expected.scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32));
        return worst < samePicture;
    });

    const QRect view = m_view->rect().adjusted(1, 1, -1, -1); // (0, 0) means the middle to QTest
    const QVector<QPoint> points{
        view.topLeft(), view.topRight(), view.bottomLeft(), view.bottomRight(), view.center()};
    // The panel's corners as they lie in the view: upright, or turned by a quarter to the left.
    const QVector<QPoint> expected = portrait
        ? QVector<QPoint>{{0, 0}, {719, 0}, {0, 1279}, {719, 1279}, {360, 640}}
        : QVector<QPoint>{{719, 0}, {719, 1279}, {0, 0}, {0, 1279}, {360, 640}};
    const QVector<QPoint> touched = touchedPoints(points);
    // A pixel of the view is several of the panel.
    const int tolerance = qMax(720, 1280) / qMin(view.width(), view.height()) + 2;
    for (int i = 0; i < expected.size(); ++i) {
        if ((touched.at(i) - expected.at(i)).manhattanLength() > 2 * tolerance)
            throw StepFailed(QStringLiteral("%1: the touch at (%2, %3) of the view arrived at (%4, %5)")
                                 .arg(when)
                                 .arg(points.at(i).x())
                                 .arg(points.at(i).y())
                                 .arg(touched.at(i).x())
                                 .arg(touched.at(i).y()));
    }
}

// Odd turns are the device's own, even ones the button's. After the button's the device turns to where the
// window is: it tells of a change only.
void TestDeviceWindow::turn(int number)
{
    const bool toLandscape = m_view->orientation() == ScreenOrientation::Portrait;
    if (number % 2 != 0)
        turnDevice(toLandscape ? 1 : 0);
    else
        clickRotate();
    if ((m_view->orientation() == ScreenOrientation::Landscape) != toLandscape)
        throw StepFailed(QStringLiteral("turn %1 did not turn the picture").arg(number));
}

void TestDeviceWindow::turnsFromBothSides()
{
    e2e::steps([this] {
        m_service->openApp(m_pad, QStringLiteral("Latency")); // touches lead nowhere else
        checkPictureAndTouches(QStringLiteral("before the first turn"));
        for (int number = 1; number <= turns; ++number) {
            turn(number);
            waitForContent();
            checkPictureAndTouches(QStringLiteral("after turn %1").arg(number));
            m_service->rotate(m_pad, m_view->orientation() == ScreenOrientation::Portrait ? 0 : 1);
        }
    });
}

void TestDeviceWindow::turnsWhileMaximised()
{
    e2e::steps([this] {
        m_service->openApp(m_pad, QStringLiteral("Latency"));
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        m_window->onMaximizeShortcutActivated();
        for (int number = 1; number <= turns + 1; ++number) { // ends in landscape
            turn(number);
            const bool portrait = m_view->orientation() == ScreenOrientation::Portrait;
            const auto fillsTheScreen = [&] {
                const QSize size = m_window->size();
                const bool upright = m_view->width() < m_view->height();
                return upright == portrait && available.contains(m_window->geometry())
                    && (size.height() == available.height() || size.width() == 1300);
            };
            waitUntil(
                QStringLiteral("the window fills the screen after turn %1").arg(number), fillsTheScreen);
            checkPictureAndTouches(QStringLiteral("maximised, after turn %1").arg(number));
            m_service->rotate(m_pad, portrait ? 0 : 1);
        }
        const QSize swapped
            = (portraitContent + 2 * QSize(m_window->shadowMargin(), m_window->shadowMargin())).transposed();
        m_window->onMaximizeShortcutActivated();
        waitUntil(QStringLiteral("the window has its size before, turned"),
            [&] { return m_window->size() == swapped; });
        checkPictureAndTouches(QStringLiteral("restored"));
    });
}

// The shortest time that can be set is a minute; nothing else shortens it.
void TestDeviceWindow::pausesInStandbyAndResumes()
{
    e2e::steps([this] {
        m_service->openApp(m_pad, QStringLiteral("Video")); // moves all the time
        m_window->setStandbyTime(1);
        QTest::mouseClick(m_view, Qt::LeftButton); // starts the count
        auto *standby = m_window->findChild<StandbyWidget *>();
        waitUntil(
            QStringLiteral("stand-by"), [standby] { return standby->isVisible(); }, 75000);

        // Pictures that were on their way may still count.
        const auto pictures = [this] {
            return m_service->sessionStats(m_pad).value(QLatin1String("frames_sent")).toDouble();
        };
        QTRY_COMPARE(m_service->sessionStats(m_pad).value(QLatin1String("cast_mode")).toInt(-1), 0);
        qint64 bytes = -1;
        waitUntil(QStringLiteral("nothing more is on its way"), [&] {
            QTest::qWait(200);
            const qint64 bytesBefore = std::exchange(bytes, bytesSent());
            return bytes == bytesBefore;
        });
        const double before = pictures();
        const double frame = m_service->appState(m_pad).value(QLatin1String("frame")).toDouble();
        waitUntil(QStringLiteral("the device has drawn a hundred pictures more"), [&] {
            return m_service->appState(m_pad).value(QLatin1String("frame")).toDouble() > frame + 100;
        });
        QCOMPARE(pictures(), before);
        qInfo() << "bytes sent while the device drew 100 pictures:" << bytesSent() - bytes;
        QVERIFY(bytesSent() - bytes < 500); // answers to the client's own pings

        QTest::mouseClick(standby->findChildren<QPushButton *>().first(), Qt::LeftButton);
        QVERIFY(!standby->isVisible());
        waitUntil(QStringLiteral("pictures again"), [&] { return pictures() > before + 5; });
    });
}

void TestDeviceWindow::leavesNothingBehind()
{
    constexpr int warmUp = 30;
    constexpr int openings = 200;
    constexpr qint64 growthKb = 4096; // the allocator's own; a kept picture alone would be 200 times 3.6 MB
    e2e::steps([this] {
        closeWindow();
        const auto cycle = [this] {
            openWindow();
            QTest::mouseClick(m_view, Qt::LeftButton, {}, m_view->rect().center());
            closeWindow();
        };
        for (int i = 0; i < warmUp; ++i)
            cycle();
        const Resources before = Resources::settled();
        for (int i = 0; i < openings; ++i)
            cycle();
        const Resources after = Resources::backAt(before);
        qInfo() << "before and after 200 windows: threads" << before.threads << after.threads << "files"
                << before.files << after.files << "sockets" << before.sockets << after.sockets
                << "resident KB" << before.residentKb << after.residentKb;
        QVERIFY(after.isBackAt(before));
        QVERIFY2(after.residentKb < before.residentKb + growthKb,
            qPrintable(QStringLiteral("%1 KB, then %2 KB").arg(before.residentKb).arg(after.residentKb)));
    });
}

QTEST_MAIN(TestDeviceWindow)
#include "tst_devicewindow.moc"
