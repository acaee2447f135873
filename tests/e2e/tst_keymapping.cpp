// The key mapping against the real service: what the game on the device gets of keyboard and mouse, and what
// becomes of schemes.

#include "Desktop.h"
#include "KeyMappingSession.h"

#include "base/AppSettings.h"
#include "keymap/KeyKindButton.h"
#include "keymap/ShareConfigDlg.h"
#include "swplay/SWRuntime.h"
#include "widgets/OvMaskTipsDialog.h"

#include <QClipboard>
#include <QCursor>
#include <QJsonDocument>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTemporaryDir>

using e2e::Desktop;
using e2e::KeyMappingSession;
using e2e::Service;
using e2e::StepFailed;
using e2e::waitUntil;

namespace {

constexpr const char *DemoPassword = "orvane-demo";
constexpr const char *SecondPassword = "orvane-second";

// Where the keys of the scheme "Arena" touch the device, in its pixels.
constexpr QPoint Stick(190, 989);
constexpr QPoint Fire(559, 930);
constexpr QPoint Look(360, 460);
constexpr int Reach = 100; // of the stick
constexpr int Pixel = 1; // how far a touch may be off

struct Touch
{
    int finger;
    QString control;
    QString action;
    QPoint position;
};

bool isAt(const QPoint &position, const QPoint &expected)
{
    const QPoint off = position - expected;
    return qAbs(off.x()) <= Pixel && qAbs(off.y()) <= Pixel;
}

QString text(const QPoint &point)
{
    return QStringLiteral("(%1, %2)").arg(point.x()).arg(point.y());
}

void require(bool condition, const QString &what)
{
    if (!condition)
        throw StepFailed(what);
}

} // namespace

class TestKeyMapping : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void wholeGame();
    void turnedGame();
    void usersShareByCode();
    void landscapeSchemeInPortrait();
    void savedOffline();
    void refusedSave();

private:
    void open(const char *owner = "VM1000");
    QVector<Touch> arenaLog() const;
    // Waits until the newest touch of a control is this.
    void waitForTouch(const QString &control, const QString &action, const QPoint &position);
    void checkStick(const QVector<QPoint> &corners) const;
    void checkEachFinger() const;
    void checkWholeGame() const;
    QStringList savedKeys(const QString &scheme) const;

    QTemporaryDir m_home;
    std::unique_ptr<Service> m_service;
    std::unique_ptr<KeyMappingSession> m_player;
    int m_touchesBefore = 0; // of the device, in the game's log
    int m_shotsBefore = 0;
    double m_headingBefore = 0; // degrees
};

void TestKeyMapping::initTestCase()
{
    qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit());
    e2e::steps([this] {
        m_service = std::make_unique<Service>(
            QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1);
        m_service->start();
        qputenv("ORVANE_API_BASE_URL", m_service->apiBaseUrl().toUtf8());
        Desktop::setKeyRepeat(false);
    });
    QCOMPARE(SWRuntime::getInstance()->init(1, qUtf8Printable(m_home.path())), 0);
}

void TestKeyMapping::init()
{
    e2e::steps([this] {
        KeyMappingSession::signIn(*m_service, "demo", DemoPassword);
        open();
    });
}

void TestKeyMapping::cleanup()
{
    for (const char *key : {"w", "a", "s", "d", "f"})
        Desktop::keyUp(QString::fromLatin1(key));
    if (QTest::currentTestFailed() && m_player) {
        for (const Touch &touch : arenaLog())
            qInfo().noquote() << touch.finger << touch.control << touch.action << text(touch.position);
        m_player->window().grab().save(
            QStringLiteral("failed-%1.png").arg(QLatin1String(QTest::currentTestFunction())));
    }
    m_player.reset();
}

void TestKeyMapping::cleanupTestCase()
{
    e2e::steps([] { Desktop::setKeyRepeat(true); });
    SWRuntime::getInstance()->deinit();
    m_service.reset();
}

// A window of the device whose pad code begins so, with the game in front.
void TestKeyMapping::open(const char *owner)
{
    const QJsonArray devices = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
                                   .value(QLatin1String("devices"))
                                   .toArray();
    for (const QJsonValue &entry : devices) {
        const QJsonObject device = entry.toObject();
        const QString pad = device.value(QLatin1String("pad_code")).toString();
        if (!pad.startsWith(QLatin1String(owner)))
            continue;
        m_service->rotate(pad, 0);
        m_service->openApp(pad, QStringLiteral("Arena"));
        m_player = std::make_unique<KeyMappingSession>(
            *m_service, device.value(QLatin1String("service_id")).toString(), pad);
        const QJsonObject game = m_service->appState(pad);
        m_touchesBefore = game.value(QLatin1String("touches")).toArray().size();
        m_shotsBefore = game.value(QLatin1String("shots")).toInt();
        m_headingBefore = game.value(QLatin1String("heading")).toDouble();
        return;
    }
    throw StepFailed(QStringLiteral("there is no device %1").arg(QLatin1String(owner)));
}

QVector<Touch> TestKeyMapping::arenaLog() const
{
    QVector<Touch> touches;
    const QJsonArray log = m_player->log();
    for (int i = m_touchesBefore; i < log.size(); ++i) {
        const QJsonObject touch = log.at(i).toObject();
        touches.append({touch.value(QLatin1String("finger")).toInt(),
            touch.value(QLatin1String("control")).toString(), touch.value(QLatin1String("action")).toString(),
            {touch.value(QLatin1String("x")).toInt(), touch.value(QLatin1String("y")).toInt()}});
    }
    return touches;
}

void TestKeyMapping::waitForTouch(const QString &control, const QString &action, const QPoint &position)
{
    waitUntil(QStringLiteral("%1: %2 at %3").arg(control, action, text(position)), [&] {
        const QVector<Touch> log = arenaLog();
        for (int i = log.size() - 1; i >= 0; --i) {
            if (log.at(i).control == control)
                return log.at(i).action == action && isAt(log.at(i).position, position);
        }
        return false;
    });
}

// The stick's one finger: down in its middle, then along the lines between the corners in steps, up at the
// last one. The network may leave steps out, but none of the corners.
void TestKeyMapping::checkStick(const QVector<QPoint> &corners) const
{
    QVector<Touch> stick;
    for (const Touch &touch : arenaLog()) {
        if (touch.control == QLatin1String("joystick"))
            stick.append(touch);
    }
    require(stick.size() > corners.size(), QStringLiteral("the stick has hardly moved"));
    require(stick.first().action == QLatin1String("down") && isAt(stick.first().position, corners.first()),
        QStringLiteral("the stick was not put down in its middle"));
    int leg = 1;
    QPoint before = corners.first();
    for (int i = 1; i < stick.size() - 1; ++i) {
        const QPoint position = stick.at(i).position;
        require(stick.at(i).action == QLatin1String("move"), QStringLiteral("the stick was not only moved"));
        require(leg < corners.size(), QStringLiteral("the stick moved on to %1").arg(text(position)));
        const QPoint corner = corners.at(leg);
        const QPoint from = corners.at(leg - 1);
        const QRect line = QRect(from, corner).normalized().adjusted(-Pixel, -Pixel, Pixel, Pixel);
        require(line.contains(position),
            QStringLiteral("the stick left its way at %1, towards %2").arg(text(position), text(corner)));
        require((corner - position).manhattanLength() <= (corner - before).manhattanLength(),
            QStringLiteral("the stick went back at %1").arg(text(position)));
        before = position;
        if (isAt(position, corner)) {
            before = corner;
            ++leg;
        }
    }
    require(leg == corners.size(), QStringLiteral("the stick did not reach corner %1").arg(leg));
    require(stick.last().action == QLatin1String("up") && isAt(stick.last().position, corners.last()),
        QStringLiteral("the stick was not let go where it was"));
}

// One down and one up for each finger, a finger at a time on each control, and none beside the controls.
void TestKeyMapping::checkEachFinger() const
{
    QHash<QString, int> holder;
    QHash<int, int> downs;
    for (const Touch &touch : arenaLog()) {
        require(!touch.control.isEmpty(),
            QStringLiteral("a finger beside the controls at %1").arg(text(touch.position)));
        if (touch.action == QLatin1String("down")) {
            require(!holder.contains(touch.control), QStringLiteral("a second finger on ") + touch.control);
            require(++downs[touch.finger] == 1, QStringLiteral("a finger went down twice"));
            holder.insert(touch.control, touch.finger);
            continue;
        }
        require(holder.value(touch.control) == touch.finger,
            QStringLiteral("%1: %2 of a finger that is not down").arg(touch.control, touch.action));
        require(touch.action == QLatin1String("move") || touch.action == QLatin1String("up"),
            QStringLiteral("a touch was taken away"));
        if (touch.action == QLatin1String("up"))
            holder.remove(touch.control);
    }
    require(holder.isEmpty(), QStringLiteral("a finger has stayed down"));
}

// What is left of the game once every key is up.
void TestKeyMapping::checkWholeGame() const
{
    checkEachFinger();
    checkStick({Stick, Stick + QPoint(0, -Reach), Stick + QPoint(Reach, -Reach), Stick + QPoint(Reach, 0)});
    QStringList actions;
    for (const Touch &touch : arenaLog()) {
        if (touch.control == QLatin1String("look"))
            actions << QStringLiteral("%1 %2").arg(touch.action).arg(touch.position.x());
    }
    QCOMPARE(actions,
        (QStringList{"down 360", "move 400", "move 440", "move 480", "move 520", "move 561", "move 601",
            "move 641", "move 681", "move 719", "up 719", "down 360", "move 360", "up 360"}));
    const QJsonObject game = m_service->appState(m_player->pad());
    QCOMPARE(game.value(QLatin1String("shots")).toInt(), m_shotsBefore + 1);
    QVERIFY(game.value(QLatin1String("held")).toObject().isEmpty());
    QVERIFY(!game.value(QLatin1String("walking")).toBool());
    QCOMPARE(qRound(game.value(QLatin1String("heading")).toDouble() - m_headingBefore),
        72); // 359 pixels of 0.2 degrees
}

// Walk, turn while walking, fire while walking, look around across the screen's edge.
void TestKeyMapping::wholeGame()
{
    e2e::steps([this] {
        m_player->play(QStringLiteral("Arena"));
        const QString joystick = QStringLiteral("joystick");
        const QString fire = QStringLiteral("fire");
        const QString look = QStringLiteral("look");

        Desktop::keyDown(QStringLiteral("w"));
        waitForTouch(joystick, QStringLiteral("move"), Stick + QPoint(0, -Reach));
        Desktop::keyDown(QStringLiteral("d"));
        waitForTouch(joystick, QStringLiteral("move"), Stick + QPoint(Reach, -Reach));
        Desktop::keyUp(QStringLiteral("w"));
        waitForTouch(joystick, QStringLiteral("move"), Stick + QPoint(Reach, 0));

        Desktop::keyDown(QStringLiteral("f"));
        waitForTouch(fire, QStringLiteral("down"), Fire);
        Desktop::keyUp(QStringLiteral("f"));
        waitForTouch(fire, QStringLiteral("up"), Fire);

        Desktop::key(QStringLiteral("q"));
        waitForTouch(look, QStringLiteral("down"), Look);
        // 40 pixels of the mouse are 40.2 of the device: 1.9 * 0.25 * 40 * 720 / 340.
        for (const int x : {400, 440, 480, 520, 561, 601, 641, 681}) {
            Desktop::moveTo(QCursor::pos() + QPoint(40, 0));
            waitForTouch(look, QStringLiteral("move"), {x, Look.y()});
        }
        // Over the edge: the finger goes as far as there is a screen, comes up, and begins anew.
        Desktop::moveTo(QCursor::pos() + QPoint(40, 0));
        waitForTouch(look, QStringLiteral("down"), Look);
        Desktop::moveTo(QCursor::pos() + QPoint(0, 20));
        waitForTouch(look, QStringLiteral("move"), Look + QPoint(0, 20)); // 1.9 * 0.25 * 20 * 1280 / 600
        Desktop::key(QStringLiteral("q"));
        waitForTouch(look, QStringLiteral("up"), Look + QPoint(0, 20));
        Desktop::keyUp(QStringLiteral("d"));
        waitForTouch(joystick, QStringLiteral("up"), Stick + QPoint(Reach, 0));

        checkWholeGame();
    });
}

// With the device on its side up is up in the picture.
void TestKeyMapping::turnedGame()
{
    e2e::steps([this] {
        m_service->rotate(m_player->pad(), 1);
        waitUntil(QStringLiteral("the window has turned"),
            [this] { return m_player->view()->width() > m_player->view()->height(); });
        m_player->play(QStringLiteral("Arena, landscape"));
        constexpr QPoint Middle(200, 451); // of the stick, in 1280 x 720
        Desktop::keyDown(QStringLiteral("w"));
        waitForTouch(QStringLiteral("joystick"), QStringLiteral("move"), Middle + QPoint(0, -Reach));
        Desktop::keyDown(QStringLiteral("f"));
        waitUntil(QStringLiteral("a shot"), [this] {
            return m_service->appState(m_player->pad()).value(QLatin1String("shots")).toInt()
                == m_shotsBefore + 1;
        });
        Desktop::keyUp(QStringLiteral("f"));
        Desktop::keyUp(QStringLiteral("w"));
        waitForTouch(QStringLiteral("joystick"), QStringLiteral("up"), Middle + QPoint(0, -Reach));
        checkEachFinger();
        checkStick({Middle, Middle + QPoint(0, -Reach)});
    });
}

void TestKeyMapping::usersShareByCode()
{
    e2e::steps([this] {
        // The first user changes a key and shares the scheme.
        m_player->edit();
        m_player->choose(QStringLiteral("Arena"));
        QTest::keyClick(m_player->key(QStringLiteral("F")), Qt::Key_T);
        m_player->press("saveButton");
        waitUntil(QStringLiteral("the save"),
            [this] { return m_player->toast() == QLatin1String("Operated successfully"); });
        m_player->edit();
        const int row = m_player->rowOf(QStringLiteral("Arena"));
        const QString code = m_player->box()->mapIdAt(row);
        QGuiApplication::clipboard()->clear();
        for (QPushButton *button : m_player->box()->editableItem(row)->findChildren<QPushButton *>()) {
            if (button->toolTip() == QLatin1String("Share"))
                button->click();
        }
        QCOMPARE(QGuiApplication::clipboard()->text(), code);
        QVERIFY(m_player->child<OvMaskTipsDialog>()->text().contains(code));
        m_player.reset();

        KeyMappingSession::signIn(*m_service, "second", SecondPassword);
        open("VM9000");
        m_player->edit();
        QCOMPARE(m_player->rowOf(QStringLiteral("Arena")), -1);
        m_player->press("uploadButton");
        auto *dialog = m_player->child<ShareConfigDlg>();
        dialog->findChild<QLineEdit *>()->setText(QStringLiteral("NOSUCHCODE"));
        emit dialog->sigConfirmBtnClicked();
        waitUntil(QStringLiteral("the refusal"), [this] {
            return m_player->toast() == QLatin1String("There is no scheme with this sharing code.");
        });
        QVERIFY(dialog->isVisible());
        dialog->findChild<QLineEdit *>()->setText(code.toLower());
        emit dialog->sigConfirmBtnClicked();
        waitUntil(QStringLiteral("the scheme is there"),
            [this] { return m_player->rowOf(QStringLiteral("Arena")) >= 0; });
        QVERIFY(
            m_player->child<ShareConfigDlg>() == nullptr || !m_player->child<ShareConfigDlg>()->isVisible());
        QVERIFY(m_player->box()->mapIdAt(m_player->rowOf(QStringLiteral("Arena"))) != code); // a copy
        m_player->choose(QStringLiteral("Arena"));
        m_player->press("exitButton");
        QCOMPARE(m_player->manager().keys().size(), 5);
        m_player->window().activateWindow();
        waitUntil(
            QStringLiteral("the video has the keyboard"), [this] { return m_player->view()->hasFocus(); });
        Desktop::keyDown(QStringLiteral("t"));
        waitForTouch(QStringLiteral("fire"), QStringLiteral("down"), Fire);
        Desktop::keyUp(QStringLiteral("t"));
        waitForTouch(QStringLiteral("fire"), QStringLiteral("up"), Fire);
    });
}

// Made and saved with the picture on its side, used upright: the same spot of the device.
void TestKeyMapping::landscapeSchemeInPortrait()
{
    e2e::steps([this] {
        m_service->openApp(m_player->pad(), QStringLiteral("Latency")); // has no places of its own
        m_player->window().onScreenRotateBtnClicked();
        m_player->edit();
        const int before = m_player->box()->count();
        m_player->press("addButton");
        waitUntil(QStringLiteral("the new scheme"), [&] { return m_player->box()->count() == before + 1; });
        waitUntil(QStringLiteral("it is chosen"),
            [this] { return m_player->child<KeyKindButton>("clickButton")->isEnabled(); });
        const QString name = m_player->box()->currentText();
        QTest::mouseClick(m_player->child<KeyKindButton>("clickButton"), Qt::LeftButton);
        OvAuxiliaryKey *key = m_player->manager().lastClickKey();
        QTest::keyClick(key, Qt::Key_G);
        const QPoint grip(5, 5);
        const QPoint goal = key->mapToGlobal(grip) + (QPoint(500, 60) - key->pos());
        QTest::mousePress(key, Qt::LeftButton, {}, grip);
        QMouseEvent drag(QEvent::MouseMove, grip, goal, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(key, &drag);
        QTest::mouseRelease(key, Qt::LeftButton, {}, grip);
        QCOMPARE(key->pos(), QPoint(500, 60));
        const QPointF spot = key->spot();
        m_player->press("saveButton");
        waitUntil(QStringLiteral("the save"), [&] { return savedKeys(name) == QStringList{"G"}; });
        m_player->window().onScreenRotateBtnClicked();
        waitUntil(QStringLiteral("the window is upright"),
            [this] { return m_player->view()->size() == QSize(340, 600); });
        m_player->edit();
        m_player->choose(QStringLiteral("Arena"));
        m_player->choose(name);
        QCOMPARE(m_player->key(QStringLiteral("G"))->pos(), QPoint(340 - 60 - 40, 500));
        QVERIFY(qAbs(m_player->key(QStringLiteral("G"))->spot().x() - spot.x()) < 0.001);
        QVERIFY(qAbs(m_player->key(QStringLiteral("G"))->spot().y() - spot.y()) < 0.001);
    });
}

// What the keys of a scheme are bound to, as the service has it.
QStringList TestKeyMapping::savedKeys(const QString &scheme) const
{
    const QJsonObject headers{{QStringLiteral("access-token"), HttpHelper::accessToken()},
        {QStringLiteral("login-id"), HttpHelper::loginId()}};
    const QJsonArray schemes
        = m_service
              ->call(QStringLiteral("GET"), QStringLiteral("/apiv1/keyboard_map/mapConfigList"), {}, headers)
              .value(QLatin1String("data"))
              .toArray();
    for (const QJsonValue &entry : schemes) {
        if (entry.toObject().value(QLatin1String("map_name")) != scheme)
            continue;
        const QByteArray config
            = QByteArray::fromBase64(entry.toObject().value(QLatin1String("config")).toString().toLatin1());
        QStringList keys;
        for (const QJsonValue &key : QJsonDocument::fromJson(config).array())
            keys << key.toObject().value(QLatin1String("key")).toString();
        return keys;
    }
    return {};
}

void TestKeyMapping::savedOffline()
{
    e2e::steps([this] {
        m_player->edit();
        m_player->choose(QStringLiteral("Arena"));
        QTest::keyClick(m_player->key(QStringLiteral("R")), Qt::Key_Y);
        m_service->kill();
        m_player->press("saveButton");
        waitUntil(QStringLiteral("the failure is shown"), [this] { return !m_player->toast().isEmpty(); });
        m_player->key(QStringLiteral("Y"));
        const QJsonObject copy
            = QJsonDocument::fromJson(AppSettings().value("keyboardmap_config").toString().toUtf8()).object();
        QVERIFY(copy.value("config").toString().contains(QLatin1String("\"key\": \"Y\"")));
        // The editor opens without the service as well, with what was edited.
        QTest::mouseClick(m_player->child<MenuBar>()->buttons().at(5), Qt::LeftButton);
        m_player->key(QStringLiteral("Y"));
        QVERIFY(m_player->manager().isModified());

        m_service->start();
        QVERIFY(!savedKeys(QStringLiteral("Arena")).contains(QLatin1String("Y")));
        m_player->press("saveButton");
        waitUntil(QStringLiteral("the service has the scheme"),
            [this] { return savedKeys(QStringLiteral("Arena")).contains(QLatin1String("Y")); });
        QVERIFY(!m_player->manager().isModified());
        m_player->key(QStringLiteral("Y"));
    });
}

// The sign-in is over: the service's words are shown, and the edits stay.
void TestKeyMapping::refusedSave()
{
    e2e::steps([this] {
        m_player->edit();
        m_player->choose(QStringLiteral("Arena"));
        QTest::keyClick(m_player->key(QStringLiteral("Space")), Qt::Key_U);
        const QStringList before = savedKeys(QStringLiteral("Arena"));
        const QString token = HttpHelper::accessToken();
        const QString login = HttpHelper::loginId();
        HttpHelper::setLoginParams(QStringLiteral("expired"), login);
        const QString refusal
            = m_service->call(QStringLiteral("GET"), QStringLiteral("/apiv1/keyboard_map/mapConfigList"))
                  .value(QLatin1String("msg"))
                  .toString();
        QVERIFY(!refusal.isEmpty());
        m_player->press("saveButton");
        waitUntil(QStringLiteral("the refusal is shown"), [&] { return m_player->toast() == refusal; });
        m_player->key(QStringLiteral("U"));
        HttpHelper::setLoginParams(token, login);
        QCOMPARE(savedKeys(QStringLiteral("Arena")), before);
        m_player->edit();
        m_player->key(QStringLiteral("U"));
        m_player->press("saveButton");
        waitUntil(QStringLiteral("the service has the scheme"),
            [this] { return savedKeys(QStringLiteral("Arena")).contains(QLatin1String("U")); });
    });
}

QTEST_MAIN(TestKeyMapping)
#include "tst_keymapping.moc"
