#include "Client.h"
#include "Desktop.h"
#include "Pages.h"
#include "PlainApiProxy.h"
#include "Screens.h"
#include "Service.h"
#include "Waiting.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>

using e2e::Client;
using e2e::Desktop;
using e2e::PlainApiProxy;
using e2e::Service;
using e2e::settledPicture;
using e2e::waitUntil;

namespace {
const QString mainWindow = QStringLiteral("Orvane");
constexpr int shadowMargin = 10;
} // namespace

// The real client and the real service, worked with pointer and keyboard.
class TestClient : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void signInWindowAndFiles();
    void fractionalScaleIsNotRounded();
    void signsInAtAServiceOfAnotherOrigin();
    void wrongPasswordStaysOnThePage();
    void rememberedSessionOutlivesARestart();
    void deviceWindowOpensOnceAndIsGivenBack();
    void closedByTheWindowManagerIsGivenBackToo();
    void everyLogLineHasItsForm();
    void cameraReachesTheDevice();
    void deviceWithoutACameraToShow();

private:
    // A client with a new home directory; the one before is killed.
    void newClient();
    void signIn(const QString &password = QStringLiteral("orvane-demo"));
    void waitForSignInPage();
    void waitForDeviceList();
    void openFirstDevice();
    // The client's main window is closed as a person closes it; it must end with 0.
    void closeMainWindow();
    QString firstDevice(const char *member) const;
    int connectedSessions() const;
    // What the camera app in front of the first device has shown.
    int cameraPictures() const;
    // All that the first device ever received, shown or not.
    int receivedPictures() const;

    std::unique_ptr<Service> m_service;
    std::unique_ptr<Client> m_client;
};

void TestClient::init()
{
    e2e::steps([&] {
        const QString programs = QCoreApplication::applicationDirPath();
        m_service = std::make_unique<Service>(programs + QStringLiteral("/orvane-cloud"), 3);
        m_service->start();
        newClient();
        m_client->start();
    });
}

void TestClient::newClient()
{
    if (m_client)
        m_client->kill();
    waitUntil(QStringLiteral("no window is left"), [] { return Desktop::window(mainWindow).isEmpty(); });
    // An installed client can be named instead of the one that was built.
    m_client = std::make_unique<Client>(qEnvironmentVariable(
        "ORVANE_CLIENT", QCoreApplication::applicationDirPath() + QStringLiteral("/orvane")));
    m_client->setApiBaseUrl(m_service->apiBaseUrl());
}

void TestClient::cleanup()
{
    if (QTest::currentTestFailed()) {
        const QString picture = QDir::current().filePath(
            QStringLiteral("failed-%1.png").arg(QLatin1String(QTest::currentTestFunction())));
        Desktop::screenshot().save(picture);
        qInfo().noquote() << "screen:" << picture << "\nclient log:" << m_client->log().right(4000)
                          << "\nclient:" << m_client->output().right(2000)
                          << "\nservice:" << m_service->output().right(2000);
    }
    m_client.reset();
    m_service.reset();
}

void TestClient::waitForSignInPage()
{
    waitUntil(
        QStringLiteral("the sign-in window"), [] { return !Desktop::window(mainWindow).isEmpty(); }, 30000);
    settledPicture(QStringLiteral("the sign-in page"), Desktop::window(mainWindow), 30000);
}

void TestClient::waitForDeviceList()
{
    waitUntil(
        QStringLiteral("the device list"), [] { return Desktop::window(mainWindow).width() >= 1000; }, 30000);
    e2e::settledPage(e2e::DevicesPage, 30000);
}

void TestClient::signIn(const QString &password)
{
    waitForSignInPage();
    Desktop::activate(mainWindow);
    Desktop::type(QStringLiteral("demo"));
    Desktop::key(QStringLiteral("Tab"));
    Desktop::type(password);
    Desktop::key(QStringLiteral("Return"));
}

QString TestClient::firstDevice(const char *member) const
{
    return m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
        .value(QLatin1String("devices"))
        .toArray()
        .at(0)
        .toObject()
        .value(QLatin1String(member))
        .toString();
}

int TestClient::connectedSessions() const
{
    return m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"))
        .value(QLatin1String("sessions"))
        .toArray()
        .size();
}

void TestClient::openFirstDevice()
{
    Desktop::activate(mainWindow);
    Desktop::type(firstDevice("alias_name"));
    // From the search field over its clear button.
    settledPicture(QStringLiteral("the search has ended"), Desktop::window(mainWindow));
    for (int i = 0; i < 2; ++i)
        Desktop::key(QStringLiteral("Tab"));
    Desktop::key(QStringLiteral("Return"));
    waitUntil(QStringLiteral("the device window"),
        [this] { return !Desktop::window(firstDevice("alias_name")).isEmpty(); });
    waitUntil(QStringLiteral("the session"), [this] { return connectedSessions() == 1; });
}

void TestClient::closeMainWindow()
{
    Desktop::activate(mainWindow);
    Desktop::key(QStringLiteral("alt+F4"));
    m_client->waitForExit();
    QCOMPARE(m_client->exitCode(), 0);
}

void TestClient::signInWindowAndFiles()
{
    e2e::steps([&] {
        waitForSignInPage();
        const QRect window = Desktop::window(mainWindow);
        QCOMPARE(window.size(), QSize(300 + 2 * shadowMargin, 488 + 2 * shadowMargin));
        // F11 does nothing before sign-in.
        Desktop::activate(mainWindow);
        Desktop::key(QStringLiteral("F11"));
        QCOMPARE(settledPicture(QStringLiteral("still the page"), window).size(), window.size());
        QCOMPARE(Desktop::window(mainWindow), window);
        // Today's log of the client, and the streaming runtime's beside it.
        const QDir logs(m_client->dataDir() + QStringLiteral("/log"));
        QVERIFY(logs.exists(
            QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral(".log")));
        QVERIFY(logs.entryList({QStringLiteral("*.log")}).size() >= 2);
        closeMainWindow();
    });
}

// A display of 120 dots per inch, as at a setting of 125 %.
void TestClient::fractionalScaleIsNotRounded()
{
    e2e::steps([&] {
        newClient();
        m_client->setVariable(QStringLiteral("QT_FONT_DPI"), QStringLiteral("120"));
        m_client->start();
        waitForSignInPage();
        QCOMPARE(Desktop::window(mainWindow).size(), QSize(320, 508) * 1.25);
    });
}

// The page comes from a file; the service need not say that such a page may talk to it.
void TestClient::signsInAtAServiceOfAnotherOrigin()
{
    e2e::steps([&] {
        PlainApiProxy proxy(m_service->apiBaseUrl());
        newClient();
        m_client->setApiBaseUrl(proxy.apiBaseUrl());
        m_client->start();
        signIn();
        waitForDeviceList();
        QVERIFY(proxy.requestCount() >= 2); // the sign-in and the devices
        m_client->kill(); // while the proxy is there
    });
}

void TestClient::wrongPasswordStaysOnThePage()
{
    e2e::steps([&] {
        waitForSignInPage();
        const QImage before = Desktop::screenshot(Desktop::window(mainWindow));
        signIn(QStringLiteral("wrong"));
        waitUntil(QStringLiteral("the page says so"),
            [&] { return e2e::difference(before, Desktop::screenshot(Desktop::window(mainWindow))) > 0.01; });
        QCOMPARE(Desktop::window(mainWindow).size(), QSize(320, 508));
    });
}

void TestClient::rememberedSessionOutlivesARestart()
{
    e2e::steps([&] {
        signIn();
        waitForDeviceList();
        // F11 now toggles the maximised size.
        const QRect normal = Desktop::window(mainWindow);
        Desktop::activate(mainWindow);
        Desktop::key(QStringLiteral("F11"));
        waitUntil(QStringLiteral("maximised"),
            [] { return Desktop::window(mainWindow) == QRect(-3, -3, 1926, 1086); });
        Desktop::key(QStringLiteral("F11"));
        waitUntil(QStringLiteral("restored"), [&] { return Desktop::window(mainWindow) == normal; });
        closeMainWindow();

        m_client->start();
        waitForDeviceList();
        openFirstDevice();
    });
}

void TestClient::deviceWindowOpensOnceAndIsGivenBack()
{
    e2e::steps([&] {
        signIn();
        waitForDeviceList();
        openFirstDevice();
        const QString name = firstDevice("alias_name");
        const QRect window = Desktop::window(name);
        // Asked for again, the window that is there comes back.
        Desktop::activate(mainWindow);
        Desktop::key(QStringLiteral("Return"));
        waitUntil(QStringLiteral("the second request"),
            [this] { return m_client->log().count(QStringLiteral("openSingleControlWnd called")) == 2; });
        QCOMPARE(Desktop::window(name).size(), window.size());
        QCOMPARE(connectedSessions(), 1);
        QCOMPARE(m_client->log().count(QStringLiteral("apply device request start")), 1);

        Desktop::activate(name);
        Desktop::click({window.right() - shadowMargin - 20, window.top() + shadowMargin + 20});
        waitUntil(QStringLiteral("the window is closed"), [&] { return Desktop::window(name).isEmpty(); });
        waitUntil(QStringLiteral("the session is given back"), [this] { return connectedSessions() == 0; });
        QVERIFY(m_client->isRunning());
    });
}

void TestClient::closedByTheWindowManagerIsGivenBackToo()
{
    e2e::steps([&] {
        signIn();
        waitForDeviceList();
        openFirstDevice();
        const QString name = firstDevice("alias_name");
        const QString pad = firstDevice("pad_code");
        Desktop::activate(name);
        Desktop::key(QStringLiteral("alt+F4"));
        waitUntil(QStringLiteral("the window is closed"), [&] { return Desktop::window(name).isEmpty(); });
        waitUntil(QStringLiteral("the session is given back"), [this] { return connectedSessions() == 0; });
        QVERIFY(m_client->isRunning());
        closeMainWindow();
    });
}

void TestClient::everyLogLineHasItsForm()
{
    e2e::steps([&] {
        signIn();
        waitForDeviceList();
        closeMainWindow();
        static const QRegularExpression begin(
            QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "
                           "\\[(DEBUG|INFO|WARNING|CRITICAL|FATAL)\\]: "));
        int lines = 0;
        for (const QString &line : m_client->log().split(QLatin1Char('\n'))) {
            // Further lines of one message are those of a JSON document.
            const bool dated = begin.match(line).hasMatch();
            lines += dated;
            QVERIFY2(dated || !line.contains(QLatin1String("]: ")), qPrintable(line));
        }
        QVERIFY(lines > 3);
        QVERIFY(m_client->log().contains(QStringLiteral("setLoginParams called, params ---> ")));
    });
}

int TestClient::cameraPictures() const
{
    return m_service->appState(firstDevice("pad_code")).value(QLatin1String("pictures")).toInt(-1);
}

int TestClient::receivedPictures() const
{
    int count = 0;
    for (const QJsonValue &event : m_service->inputEvents(firstDevice("pad_code")))
        count += event.toObject().value(QLatin1String("type")) == QLatin1String("picture");
    return count;
}

// The computer's camera is the one of the tests. Nobody does more than open the app on the device.
void TestClient::cameraReachesTheDevice()
{
    e2e::steps([&] {
        newClient();
        m_client->setVariable(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(TEST_PLUGIN_PATH));
        m_client->start();
        signIn();
        waitForDeviceList();
        openFirstDevice();
        const QString pad = firstDevice("pad_code");
        QCOMPARE(receivedPictures(), 0);
        m_service->openApp(pad, QStringLiteral("Camera"));
        waitUntil(QStringLiteral("pictures are shown"), [&] { return cameraPictures() >= 5; });
        const QJsonObject state = m_service->appState(pad);
        QCOMPARE(state.value(QLatin1String("pictureWidth")).toInt(), 640);
        QCOMPARE(state.value(QLatin1String("pictureHeight")).toInt(), 480);

        // Left, the camera is off: a while later nothing has come.
        m_service->openApp(pad, QStringLiteral("Home"));
        waitUntil(QStringLiteral("no more pictures come"), [&] {
            const int before = receivedPictures();
            QTest::qWait(500); // five pictures of a camera that is on
            return receivedPictures() == before;
        });

        // And again.
        m_service->openApp(pad, QStringLiteral("Camera"));
        waitUntil(QStringLiteral("pictures are shown again"), [&] { return cameraPictures() >= 3; });
        closeMainWindow();
    });
}

// No camera that Qt could use: the app waits, the client says so once and goes on.
void TestClient::deviceWithoutACameraToShow()
{
    e2e::steps([&] {
        newClient();
        m_client->setVariable(QStringLiteral("GST_PLUGIN_SYSTEM_PATH_1_0"), QString());
        m_client->start();
        signIn();
        waitForDeviceList();
        openFirstDevice();
        const QString pad = firstDevice("pad_code");
        m_service->openApp(pad, QStringLiteral("Camera"));
        const QString line = QStringLiteral("the camera cannot be forwarded");
        waitUntil(QStringLiteral("the client says so"), [&] { return m_client->log().contains(line); });
        m_service->openApp(pad, QStringLiteral("Notes"));
        Desktop::activate(firstDevice("alias_name"));
        Desktop::type(QStringLiteral("still here"));
        waitUntil(QStringLiteral("typing goes on"), [&] {
            return m_service->appState(pad).value(QLatin1String("text")) == QLatin1String("still here");
        });
        QCOMPARE(m_client->log().count(line), 1);
        QCOMPARE(receivedPictures(), 0);
        closeMainWindow();
    });
}

QTEST_MAIN(TestClient)
#include "tst_client.moc"
