#include "Client.h"
#include "Desktop.h"
#include "Pages.h"
#include "Screens.h"
#include "Service.h"
#include "Waiting.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QJsonArray>
#include <QTest>

using e2e::Client;
using e2e::Desktop;
using e2e::Service;
using e2e::settledPage;
using e2e::settledPicture;
using e2e::waitUntil;

namespace {

const QString MainWindow = QStringLiteral("Orvane");
const QString SavedGroup = QStringLiteral("Morning farm");
const QString TemporaryGroup = QStringLiteral("Temporary grouping");

// In the main window at its working size.
constexpr QPoint DevicesItem(75, 90);
constexpr QPoint SearchField(966, 82);
constexpr QPoint GroupsItem(75, 134);
constexpr QPoint OpenFirstGroup(1034, 167);
constexpr QRect ThirdGroup(420, 360, 300, 90); // in the list of groups
// In the group's window.
constexpr QRect MasterVideo(107, 50, 347, 624);
constexpr QPoint SaveButton(50, 90);
constexpr QPoint CloseButton(1230, 30);
constexpr QPoint FirstTile(487, 74);
constexpr int TilePitch = 192; // from a tile to the next one
constexpr QPoint SetAsMaster(86, 87); // in a tile
constexpr QPoint Remove(86, 167);
constexpr QPoint SingleControl(86, 207);
constexpr QPoint ConfirmRemoval(747, 396);
constexpr QRect Question(560, 340, 260, 80); // its lower part, where nothing else is
// In a device's window, from its upper right corner.
constexpr QPoint SingleCloseButton(-30, 30);

} // namespace

// Groups with the real client and the real service, worked with pointer and keyboard.
class TestGroup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void savedGroupIsWorked();
    void temporaryGroupIsSaved();
    void singleControlAndReturn();
    void promotionAndRemoval();
    void closedByTheWindowManager();

private:
    void signIn();
    void openSavedGroup();
    void openTemporaryGroup();
    void waitForSessions(int count);
    void waitForPictures(int tiles);
    void clickTile(int index, const QPoint &entry);
    static QRect mainButtonOfTheSelection();
    static void clickIn(const QString &window, const QPoint &position);
    // The pads of the devices with sessions.
    QStringList pads() const;
    QString padOf(const QString &serviceId) const;
    QString nameOf(const QString &serviceId) const;
    QJsonArray groups();
    // The ids of the saved group that the service begins with, as the window orders them.
    QStringList savedIds();

    std::unique_ptr<Service> m_service;
    std::unique_ptr<Client> m_client;
};

void TestGroup::init()
{
    e2e::steps([&] {
        const QString programs = QCoreApplication::applicationDirPath();
        m_service = std::make_unique<Service>(programs + QStringLiteral("/orvane-cloud"), 12);
        m_service->start();
        m_client = std::make_unique<Client>(programs + QStringLiteral("/orvane"));
        m_client->setApiBaseUrl(m_service->apiBaseUrl());
        m_client->start();
        signIn();
    });
}

void TestGroup::cleanup()
{
    if (QTest::currentTestFailed()) {
        const QString picture = QDir::current().filePath(
            QStringLiteral("failed-group-%1.png").arg(QLatin1String(QTest::currentTestFunction())));
        Desktop::screenshot().save(picture);
        qInfo().noquote() << "screen:" << picture << "\nclient log:" << m_client->log().right(4000)
                          << "\nclient:" << m_client->output().right(2000)
                          << "\nservice:" << m_service->output().right(2000);
    }
    m_client.reset();
    m_service.reset();
}

void TestGroup::signIn()
{
    waitUntil(
        QStringLiteral("the sign-in window"), [] { return !Desktop::window(MainWindow).isEmpty(); }, 30000);
    settledPicture(QStringLiteral("the sign-in page"), Desktop::window(MainWindow), 30000);
    Desktop::activate(MainWindow);
    Desktop::type(QStringLiteral("demo"));
    Desktop::key(QStringLiteral("Tab"));
    Desktop::type(QStringLiteral("orvane-demo"));
    Desktop::key(QStringLiteral("Return"));
    waitUntil(
        QStringLiteral("the device list"), [] { return Desktop::window(MainWindow).width() >= 1000; }, 30000);
    settledPage(e2e::DevicesPage, 30000);
}

void TestGroup::clickIn(const QString &window, const QPoint &position)
{
    Desktop::activate(window);
    Desktop::click(Desktop::window(window).topLeft() + position);
}

void TestGroup::waitForSessions(int count)
{
    waitUntil(QStringLiteral("%1 sessions").arg(count), [&] { return pads().size() == count; });
}

// Of the master and so many tiles, in the first row.
void TestGroup::waitForPictures(int tiles)
{
    const auto isShown = [](const QRect &area) {
        const QPoint window = Desktop::window(SavedGroup).isEmpty()
            ? Desktop::window(TemporaryGroup).topLeft()
            : Desktop::window(SavedGroup).topLeft();
        return e2e::colourCount(Desktop::screenshot(area.translated(window)), 60) >= 60;
    };
    waitUntil(QStringLiteral("the master's picture"), [&] { return isShown(MasterVideo); });
    for (int i = 0; i < tiles; ++i) {
        const QRect tile(FirstTile + QPoint(i * TilePitch, 0), QSize(172, 240));
        waitUntil(QStringLiteral("the picture of tile %1").arg(i), [&] { return isShown(tile); });
    }
}

void TestGroup::openSavedGroup()
{
    clickIn(MainWindow, GroupsItem);
    settledPage(e2e::GroupsPage);
    clickIn(MainWindow, OpenFirstGroup);
    waitUntil(
        QStringLiteral("the group's window"), [] { return !Desktop::window(SavedGroup).isEmpty(); }, 20000);
    waitForSessions(4);
    waitForPictures(3);
    Desktop::activate(SavedGroup);
}

// The one button in the accent colour in the bar at the lower edge; empty while there is none.
QRect TestGroup::mainButtonOfTheSelection()
{
    const QRect window = Desktop::window(MainWindow);
    const QRect lowerEdge(window.left(), window.bottom() - 110, window.width(), 100);
    const QImage picture = Desktop::screenshot(lowerEdge);
    QRect button;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == QColor(0xFF, 0x9B, 0x7A))
                button |= QRect(x, y, 1, 1);
        }
    }
    return button.translated(button.isEmpty() ? QPoint() : lowerEdge.topLeft());
}

// Of three devices: from the search field down to the cards, where Space selects.
void TestGroup::openTemporaryGroup()
{
    clickIn(MainWindow, DevicesItem);
    settledPage(e2e::DevicesPage);
    clickIn(MainWindow, SearchField);
    Desktop::key(QStringLiteral("Down")); // into the list
    for (int i = 0; i < 3; ++i) {
        Desktop::key(QStringLiteral("space"));
        Desktop::key(QStringLiteral("Right"));
    }
    waitUntil(
        QStringLiteral("the selection's main button"), [] { return !mainButtonOfTheSelection().isEmpty(); });
    settledPicture(QStringLiteral("the selection"), Desktop::window(MainWindow));
    Desktop::click(mainButtonOfTheSelection().center());
    waitUntil(
        QStringLiteral("the group's window"), [] { return !Desktop::window(TemporaryGroup).isEmpty(); },
        20000);
    waitForSessions(3);
    waitForPictures(2);
    Desktop::activate(TemporaryGroup);
}

void TestGroup::clickTile(int index, const QPoint &entry)
{
    const QString window = Desktop::window(SavedGroup).isEmpty() ? TemporaryGroup : SavedGroup;
    Desktop::activate(window);
    const QPoint tile = Desktop::window(window).topLeft() + FirstTile + QPoint(index * TilePitch, 0);
    Desktop::moveTo(tile + QPoint(10, 10));
    Desktop::moveTo(tile + entry);
    Desktop::click(tile + entry);
}

QStringList TestGroup::pads() const
{
    QStringList found;
    const QJsonArray sessions = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"))
                                    .value(QLatin1String("sessions"))
                                    .toArray();
    for (const QJsonValue &session : sessions)
        found << session.toObject().value(QLatin1String("pad_code")).toString();
    found.sort();
    return found;
}

QString TestGroup::padOf(const QString &serviceId) const
{
    const QJsonArray devices = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
                                   .value(QLatin1String("devices"))
                                   .toArray();
    for (const QJsonValue &device : devices) {
        if (device.toObject().value(QLatin1String("service_id")) == serviceId)
            return device.toObject().value(QLatin1String("pad_code")).toString();
    }
    return {};
}

QString TestGroup::nameOf(const QString &serviceId) const
{
    const QJsonArray devices = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
                                   .value(QLatin1String("devices"))
                                   .toArray();
    for (const QJsonValue &device : devices) {
        if (device.toObject().value(QLatin1String("service_id")) == serviceId)
            return device.toObject().value(QLatin1String("alias_name")).toString();
    }
    return {};
}

QJsonArray TestGroup::groups()
{
    const QJsonObject identity = m_service->signIn();
    const QJsonObject headers{{QStringLiteral("access-token"), identity.value(QLatin1String("access_token"))},
        {QStringLiteral("login-id"), identity.value(QLatin1String("login_id"))}};
    return m_service->call(QStringLiteral("GET"), QStringLiteral("/apiv1/device/ccGroupList"), {}, headers)
        .value(QLatin1String("data"))
        .toObject()
        .value(QLatin1String("groups"))
        .toArray();
}

QStringList TestGroup::savedIds()
{
    QStringList ids;
    const QJsonArray saved = groups().at(0).toObject().value(QLatin1String("service_ids")).toArray();
    for (const QJsonValue &id : saved)
        ids << id.toString();
    ids.sort();
    return ids;
}

// What is done to the master happens on all devices.
void TestGroup::savedGroupIsWorked()
{
    e2e::steps([&] {
        openSavedGroup();
        QCOMPARE(Desktop::window(SavedGroup).size(), QSize(1260, 720));
        const QStringList devices = pads();
        for (const QString &pad : devices)
            m_service->openApp(pad, QStringLiteral("Paint"));
        const QPoint video = Desktop::window(SavedGroup).topLeft() + MasterVideo.topLeft();
        Desktop::drag({video + QPoint(80, 200), video + QPoint(200, 260), video + QPoint(260, 400)});
        for (const QString &pad : devices)
            waitUntil(QStringLiteral("a stroke on %1").arg(pad),
                [&] { return m_service->appState(pad).value(QLatin1String("strokes")).toInt() == 1; });
        for (const QString &pad : devices)
            m_service->openApp(pad, QStringLiteral("Notes"));
        Desktop::type(QStringLiteral("hello"));
        QGuiApplication::clipboard()->setText(QStringLiteral(" pasted"));
        Desktop::key(QStringLiteral("ctrl+v"));
        for (const QString &pad : devices)
            waitUntil(QStringLiteral("the text on %1").arg(pad), [&] {
                return m_service->appState(pad).value(QLatin1String("text")) == QLatin1String("hello pasted");
            });
        clickIn(SavedGroup, CloseButton);
        waitUntil(
            QStringLiteral("the window is closed"), [] { return Desktop::window(SavedGroup).isEmpty(); });
        waitForSessions(0);
        // The page knows that another group can be opened.
        openSavedGroup();
    });
}

void TestGroup::temporaryGroupIsSaved()
{
    e2e::steps([&] {
        QCOMPARE(groups().size(), 2);
        openTemporaryGroup();
        clickIn(MainWindow, GroupsItem);
        const QRect place = ThirdGroup.translated(Desktop::window(MainWindow).topLeft());
        waitUntil(QStringLiteral("the groups, of which there is no third one"),
            [&] { return e2e::colourCount(Desktop::screenshot(place)) == 1; });
        clickIn(TemporaryGroup, SaveButton);
        Desktop::type(QStringLiteral("Night shift"));
        Desktop::key(QStringLiteral("Return"));
        waitUntil(QStringLiteral("the new title"),
            [] { return !Desktop::window(QStringLiteral("Night shift")).isEmpty(); });
        QCOMPARE(groups().size(), 3);
        QCOMPARE(groups().at(2).toObject().value(QLatin1String("cc_group_name")).toString(),
            QStringLiteral("Night shift"));
        QCOMPARE(groups().at(2).toObject().value(QLatin1String("service_ids")).toArray().size(), 3);
        // The list in the page has it without being asked.
        Desktop::activate(MainWindow);
        waitUntil(QStringLiteral("the group in the page"),
            [&] { return e2e::colourCount(Desktop::screenshot(place)) > 1; });
    });
}

// A device of the group in a window of its own stays the group's.
void TestGroup::singleControlAndReturn()
{
    e2e::steps([&] {
        openSavedGroup();
        const QString name = nameOf(savedIds().at(1));
        clickTile(0, SingleControl);
        waitUntil(QStringLiteral("the device's window"), [&] { return !Desktop::window(name).isEmpty(); });
        waitForSessions(5);
        Desktop::activate(name);
        Desktop::click(Desktop::window(name).topRight() + SingleCloseButton);
        waitUntil(QStringLiteral("the window is closed"), [&] { return Desktop::window(name).isEmpty(); });
        waitForSessions(4);
        Desktop::activate(SavedGroup);
        waitForPictures(3);
    });
}

void TestGroup::promotionAndRemoval()
{
    e2e::steps([&] {
        openSavedGroup();
        const QStringList ids = savedIds();
        clickTile(1, SetAsMaster); // the third device becomes the master
        waitForPictures(3);
        waitForSessions(4);
        for (const QString &id : ids)
            m_service->openApp(padOf(id), QStringLiteral("Notes"));
        clickTile(1, Remove); // the first one, which is there now
        settledPicture(
            QStringLiteral("the question"), Question.translated(Desktop::window(SavedGroup).topLeft()));
        clickIn(SavedGroup, ConfirmRemoval);
        waitForSessions(3);
        QVERIFY(!pads().contains(padOf(ids.at(0))));
        Desktop::click(Desktop::window(SavedGroup).topLeft() + MasterVideo.center());
        Desktop::type(QStringLiteral("x"));
        for (int i = 1; i < ids.size(); ++i)
            waitUntil(QStringLiteral("the text on %1").arg(ids.at(i)), [&] {
                return m_service->appState(padOf(ids.at(i))).value(QLatin1String("text"))
                    == QLatin1String("x");
            });
        QCOMPARE(m_service->appState(padOf(ids.at(0))).value(QLatin1String("text")).toString(), QString());
    });
}

void TestGroup::closedByTheWindowManager()
{
    e2e::steps([&] {
        openSavedGroup();
        Desktop::activate(SavedGroup);
        Desktop::key(QStringLiteral("alt+F4"));
        waitUntil(
            QStringLiteral("the window is closed"), [] { return Desktop::window(SavedGroup).isEmpty(); });
        waitForSessions(0);
        QVERIFY(m_client->isRunning());
        openSavedGroup();
        // The end of the client is the end of the group.
        Desktop::activate(MainWindow);
        Desktop::key(QStringLiteral("alt+F4"));
        m_client->waitForExit();
        QCOMPARE(m_client->exitCode(), 0);
    });
}

QTEST_MAIN(TestGroup)
#include "tst_group.moc"
