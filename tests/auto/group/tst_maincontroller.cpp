#include "GroupWindowFixture.h"

#include "group/FunctionBar.h"
#include "group/FunctionButton.h"

#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QWindow>

using namespace grouptest;

namespace {

QStringList ownMethods(QMetaMethod::MethodType type)
{
    const QMetaObject &meta = MainController::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type)
            names << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return names;
}

group::GroupDevice granted(const QString &id)
{
    group::GroupDevice device = devicesOf({id}).first();
    device.instanceCode = QStringLiteral("VM") + id;
    device.userId = 17;
    device.sessionId = QStringLiteral("s-") + id;
    device.controlIp = QStringLiteral("10.0.0.1");
    device.controlPort = 8181;
    return device;
}

} // namespace

// The master panel by itself.
class TestMainController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void metaObject();
    void minimumSizes();
    void videoSize_data();
    void videoSize();
    void rotation();
    void sameRotationDoesNothing();
    void bar();
    void buttons();
    void textsAreWhite();
    void textsWithoutRoom();
    void startsTheStream();
    void restart();
    void doubleClickRestartsOnce();
    void touchesAndTextReachTheDevice();
    void keys();
    void promotion();
    void promotingTwiceReturnsBoth();
    void promotionWithoutAMaster();
    void pictureOfTheDeviceBeforeGoes();
    void landscapeOfTheDeviceBeforeGoes();
    void anotherScreen();
    void viewIsGone();
    void name();
};

void TestMainController::init()
{
    Recorder::instance().reset();
    Recorder::instance().setRemoteSize(720, 1280);
}

void TestMainController::metaObject()
{
    QCOMPARE(ownMethods(QMetaMethod::Signal),
        (QStringList{QStringLiteral("functionBtnClicked(int)"), QStringLiteral("restartBtnClicked()")}));
    QCOMPARE(ownMethods(QMetaMethod::Slot),
        (QStringList{QStringLiteral("onKeyPressEvent(int)"), QStringLiteral("onKeyReleaseEvent(int)"),
            QStringLiteral("onScreenRotation(ScreenOrientation)")}));
}

void TestMainController::minimumSizes()
{
    MainController panel;
    QCOMPARE(panel.minimumSize(), QSize(390, 660));
    QCOMPARE(panel.findChild<QWidget *>(QStringLiteral("videoContainer"))->minimumSize(), QSize(355, 625));
}

void TestMainController::videoSize_data()
{
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<QSize>("portrait");
    QTest::addColumn<QSize>("landscape");
    QTest::newRow("400x700") << QSize(400, 700) << QSize(365, 664) << QSize(365, 207);
    QTest::newRow("in the window") << QSize(382, 660) << QSize(347, 624) << QSize(347, 197);
    QTest::newRow("truncated") << QSize(436, 700) << QSize(401, 664) << QSize(401, 227); // 227.768
}

void TestMainController::videoSize()
{
    QFETCH(QSize, panel);
    QFETCH(QSize, portrait);
    QFETCH(QSize, landscape);
    MainController main;
    main.setFixedSize(panel);
    main.show();
    QCOMPARE(main.videoView()->size(), portrait);
    QCOMPARE(main.videoView()->minimumSize(), portrait);
    QCOMPARE(main.videoView()->maximumSize(), portrait);
    main.onScreenRotation(ScreenOrientation::Landscape);
    QCOMPARE(main.videoView()->size(), landscape);
    QCOMPARE(main.videoView()->minimumSize(), landscape);
    main.onScreenRotation(ScreenOrientation::Portrait);
    QCOMPARE(main.videoView()->size(), portrait);
}

// The device turns itself: the view says so, and the panel follows at once.
void TestMainController::rotation()
{
    MainController main;
    main.resize(400, 700);
    main.show();
    main.videoView()->onScreenRotation(1);
    QTRY_COMPARE(main.videoView()->size(), QSize(365, 207));
    QCOMPARE(main.videoView()->pos(), QPoint(17, (664 - 207) / 2));
    main.resize(500, 700);
    QCOMPARE(main.videoView()->size(), QSize(465, 264));
    main.videoView()->onScreenRotation(0);
    QTRY_COMPARE(main.videoView()->size(), QSize(465, 664));
    // The user's own turn.
    main.videoView()->setOrientation(ScreenOrientation::Landscape);
    QCOMPARE(main.videoView()->size(), QSize(465, 264));
}

void TestMainController::sameRotationDoesNothing()
{
    MainController main;
    main.resize(400, 700);
    main.show();
    main.videoView()->setFixedSize(10, 10);
    main.onScreenRotation(ScreenOrientation::Portrait);
    QCOMPARE(main.videoView()->size(), QSize(10, 10));
}

void TestMainController::bar()
{
    MainController main;
    main.setFixedSize(382, 660);
    main.show();
    const auto *bar = main.findChild<FunctionBar *>();
    QCOMPARE(bar->geometry(), QRect(0, 624, 382, 36));
    QCOMPARE(bar->layout()->spacing(), 20);
    QCOMPARE(bar->layout()->contentsMargins(), QMargins(15, 0, 15, 0));
    const QVector<const char *> icons
        = {":/icon/svg/volume-up.svg", ":/icon/svg/volume-down.svg", ":/icon/svg/group-reboot.svg",
            ":/icon/svg/group-back.svg", ":/icon/svg/group-home.svg", ":/icon/svg/group-menu.svg"};
    QCOMPARE(bar->buttons().size(), icons.size());
    QStringList texts;
    for (const FunctionButton *button : bar->buttons()) {
        QCOMPARE(button->iconSize(), QSize(16, 16));
        QVERIFY2(showsIcon(*button, icons.at(texts.size())), icons.at(texts.size()));
        texts << button->text();
        QVERIFY2(bar->rect().contains(button->geometry()), qPrintable(button->text()));
    }
    QCOMPARE(texts,
        (QStringList{QStringLiteral("Volume up"), QStringLiteral("Volume down"), QStringLiteral("Restart"),
            QStringLiteral("Go back"), QStringLiteral("Home page"), QStringLiteral("Menu")}));
    const QImage picture = main.grab().toImage();
    QCOMPARE(picture.pixelColor(2, 624), QColor(89, 89, 89));
    QCOMPARE(picture.pixelColor(2, 640), QColor(85, 85, 85));
}

void TestMainController::buttons()
{
    MainController main;
    main.setDevice(granted(QStringLiteral("a")));
    main.show();
    QSignalSpy functions(&main, &MainController::functionBtnClicked);
    QSignalSpy restarts(&main, &MainController::restartBtnClicked);
    takeCalls();
    const QVector<FunctionButton *> buttons = main.findChild<FunctionBar *>()->buttons();
    for (FunctionButton *button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);
    QList<int> codes;
    for (const QList<QVariant> &arguments : qAsConst(functions))
        codes << arguments.first().toInt();
    QCOMPARE(codes, (QList<int>{115, 114, 158, 172, 139}));
    QCOMPARE(restarts.size(), 1);
    QCOMPARE(takeCalls(),
        (QStringList{QStringLiteral("SWDataSource::sendKeyEvent(3, 115)"),
            QStringLiteral("SWDataSource::sendKeyEvent(3, 114)"),
            QStringLiteral("SWDataSource::sendKeyEvent(3, 158)"),
            QStringLiteral("SWDataSource::sendKeyEvent(3, 172)"),
            QStringLiteral("SWDataSource::sendKeyEvent(3, 139)")}));
}

// On buttons that have no ground of their own.
void TestMainController::textsAreWhite()
{
    FunctionBar bar;
    bar.setFixedWidth(900);
    bar.show();
    const QImage picture = bar.grab().toImage();
    for (const FunctionButton *button : bar.buttons()) {
        QVERIFY(button->textPixels() > 0);
        const QRect place = button->geometry();
        QCOMPARE(picture.pixelColor(place.bottomLeft()), QColor(85, 85, 85));
        int brightest = 0; // of the lower half, where the text stands
        for (int y = place.center().y() + 2; y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                QVERIFY(qAbs(pixel.red() - pixel.blue()) < 3 && qAbs(pixel.red() - pixel.green()) < 3);
                brightest = qMax(brightest, pixel.red());
            }
        }
        QVERIFY2(brightest > 230, qPrintable(button->text()));
    }
}

// Texts that are too long for the bar are tool tips.
void TestMainController::textsWithoutRoom()
{
    FunctionBar bar;
    bar.setFixedWidth(900);
    bar.show();
    for (const FunctionButton *button : bar.buttons()) {
        QCOMPARE(button->textPixels(), 11);
        QCOMPARE(button->toolTip(), QString());
    }
    bar.setFixedWidth(320);
    for (const FunctionButton *button : bar.buttons()) {
        QCOMPARE(button->textPixels(), 0);
        QCOMPARE(button->toolTip(), button->text());
        QVERIFY(bar.rect().contains(button->geometry()));
    }
}

void TestMainController::startsTheStream()
{
    MainController main;
    main.setDevice(granted(QStringLiteral("a")));
    QCOMPARE(main.serviceId(), QStringLiteral("a"));
    const QStringList calls = takeCalls();
    QVERIFY(calls.contains(
        QStringLiteral("SWDataSource::setLoginParams(\"10.0.0.1\", 8181, 17, \"s-a\", \"VMa\", 0)")));
    QVERIFY(calls.contains(QStringLiteral("SWPlayer::setDisplay(display)")));
    QVERIFY(calls.contains(QStringLiteral("SWDataSource::setVideoLevel(0)"))); // the full view
    QVERIFY(calls.indexOf(QStringLiteral("SWPlayer::start()"))
        > calls.indexOf(QStringLiteral("SWPlayer::setDisplay(display)")));
}

void TestMainController::restart()
{
    MainController main;
    main.restartStream();
    QCOMPARE(takeCalls(), QStringList()); // there is no device yet
    main.setDevice(granted(QStringLiteral("a")));
    takeCalls();
    main.restartStream();
    QCOMPARE(startedDevices(), QStringList{QStringLiteral("VMa")});
    QCOMPARE(main.serviceId(), QStringLiteral("a"));
}

// The restart of all devices is one, whatever the hand is used to; a key may well be pressed twice.
void TestMainController::doubleClickRestartsOnce()
{
    MainController main;
    main.show();
    QSignalSpy functions(&main, &MainController::functionBtnClicked);
    QSignalSpy restarts(&main, &MainController::restartBtnClicked);
    const QVector<FunctionButton *> buttons = main.findChild<FunctionBar *>()->buttons();
    doubleClick(buttons.at(2));
    QCOMPARE(restarts.size(), 1);
    QTest::mouseClick(buttons.at(2), Qt::LeftButton);
    QCOMPARE(restarts.size(), 2);
    doubleClick(buttons.at(0));
    QCOMPARE(functions.size(), 2);
}

void TestMainController::touchesAndTextReachTheDevice()
{
    MainController main;
    main.resize(400, 700);
    main.setDevice(granted(QStringLiteral("a")));
    main.show();
    QVERIFY(QTest::qWaitForWindowExposed(&main));
    takeCalls();
    QSignalSpy mirrored(main.videoView(), &VideoView::subControlTouchEvent);
    QTest::mousePress(main.videoView(), Qt::LeftButton, Qt::NoModifier, QPoint(73, 166));
    QTest::mouseRelease(main.videoView(), Qt::LeftButton, Qt::NoModifier, QPoint(73, 166));
    QVERIFY(takeCalls().contains(QStringLiteral("SWDataSource::sendTouchEvent(0, 1, [144], [320], [0])")));
    QCOMPARE(mirrored.size(), 2);
    QCOMPARE(mirrored.first().at(1).toFloat(), 73.0F / 365);
    emit main.videoView()->inputEvent(QStringLiteral("hello"));
    main.onPasteText(QStringLiteral("paste"));
    QCOMPARE(takeCalls(),
        (QStringList{QStringLiteral("SWDataSource::sendInputString(\"hello\", 6)"),
            QStringLiteral("SWDataSource::sendInputString(\"paste\", 6)")}));
}

void TestMainController::keys()
{
    MainController main;
    main.onKeyPressEvent(30); // without a session
    QCOMPARE(takeCalls(), QStringList());
    main.setDevice(granted(QStringLiteral("a")));
    takeCalls();
    main.onKeyPressEvent(30);
    main.onKeyReleaseEvent(30);
    QCOMPARE(takeCalls(),
        (QStringList{QStringLiteral("SWDataSource::sendKeyEvent(1, 30)"),
            QStringLiteral("SWDataSource::sendKeyEvent(2, 30)")}));
}

void TestMainController::promotion()
{
    MainController main;
    SubController tile;
    main.setDevice(granted(QStringLiteral("a")));
    tile.setDevice(granted(QStringLiteral("b")));
    takeCalls();
    main.setMainController(&tile);
    QCOMPARE(startedDevices(), (QStringList{QStringLiteral("VMa"), QStringLiteral("VMb")}));
    QCOMPARE(main.serviceId(), QStringLiteral("b"));
    QCOMPARE(main.device().sessionId, QStringLiteral("s-b"));
    QCOMPARE(tile.serviceId(), QStringLiteral("a"));
    QCOMPARE(tile.device().sessionId, QStringLiteral("s-a"));
}

void TestMainController::promotingTwiceReturnsBoth()
{
    MainController main;
    SubController tile;
    main.setDevice(granted(QStringLiteral("a")));
    tile.setDevice(granted(QStringLiteral("b")));
    main.setMainController(&tile);
    main.setMainController(&tile);
    QCOMPARE(main.serviceId(), QStringLiteral("a"));
    QCOMPARE(tile.serviceId(), QStringLiteral("b"));
    QCOMPARE(main.device().sessionId, QStringLiteral("s-a"));
    QCOMPARE(tile.device().sessionId, QStringLiteral("s-b"));
}

void TestMainController::promotionWithoutAMaster()
{
    MainController main;
    SubController tile;
    tile.setDevice(granted(QStringLiteral("b")));
    main.setMainController(&tile);
    main.setMainController(nullptr);
    QCOMPARE(main.serviceId(), QString());
    QCOMPARE(tile.serviceId(), QStringLiteral("b"));
}

// Under the name of the next device it would be a lie; after a restart of the same one it stays.
void TestMainController::pictureOfTheDeviceBeforeGoes()
{
    MainController main;
    main.resize(400, 700);
    main.show();
    QVERIFY(QTest::qWaitForWindowExposed(&main));
    const auto *status = main.findChild<QLabel *>(QStringLiteral("statusLabel"));
    const auto ground = [&main] { return main.videoView()->grab().toImage().pixelColor(5, 300); };
    QVERIFY(!status->isVisible());
    main.setDevice(granted(QStringLiteral("a")));
    QCOMPARE(status->text(), QStringLiteral("Connecting"));
    QVERIFY(status->isVisible());
    showDevicePicture(*main.videoView(), Qt::darkGreen);
    QCOMPARE(ground(), QColor(Qt::darkGreen));
    QTRY_VERIFY(!status->isVisible());
    main.restartStream();
    QCOMPARE(ground(), QColor(Qt::darkGreen));
    QVERIFY(!status->isVisible());
    main.setDevice(granted(QStringLiteral("b")));
    QCOMPARE(ground(), QColor(Qt::white));
    QVERIFY(main.videoView()->picture().isNull());
    QVERIFY(status->isVisible());
    showDevicePicture(*main.videoView(), Qt::darkBlue);
    QCOMPARE(ground(), QColor(Qt::darkBlue));
    QTRY_VERIFY(!status->isVisible());
}

void TestMainController::landscapeOfTheDeviceBeforeGoes()
{
    MainController main;
    main.resize(400, 700);
    main.show();
    main.setDevice(granted(QStringLiteral("a")));
    main.videoView()->setOrientation(ScreenOrientation::Landscape);
    main.restartStream();
    QCOMPARE(main.videoView()->size(), QSize(365, 207));
    main.setDevice(granted(QStringLiteral("b")));
    QCOMPARE(main.videoView()->orientation(), ScreenOrientation::Portrait);
    QCOMPARE(main.videoView()->size(), QSize(365, 664));
}

// The same size may have more pixels there.
void TestMainController::anotherScreen()
{
    QWidget window;
    MainController main(&window);
    SubController tile(&window);
    main.setFixedSize(400, 700);
    tile.onResizeSubController(QSize(171, 295));
    main.setDevice(granted(QStringLiteral("a")));
    tile.setDevice(granted(QStringLiteral("b")));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    takeCalls();
    emit window.windowHandle()->screenChanged(window.screen());
    const QString format = QStringLiteral("VideoDisplayWinBase::setDstFormat(-1, %1, %2, 0)");
    QStringList expected;
    for (const VideoView *view : {main.videoView(), tile.videoView()}) {
        const QSize pixels = view->size() * view->devicePixelRatioF();
        expected << format.arg(pixels.width()).arg(pixels.height());
    }
    QCOMPARE(takeCalls().filter(QStringLiteral("setDstFormat")), expected);
}

void TestMainController::viewIsGone()
{
    MainController main;
    delete main.videoView();
    main.resize(400, 700);
    main.show();
    QTest::ignoreMessage(QtWarningMsg, "a stream is started without a view: its pictures are not shown");
    main.setDevice(granted(QStringLiteral("a")));
    QVERIFY(takeCalls().contains(QStringLiteral("SWPlayer::setDisplay(none)")));
    main.onScreenRotation(ScreenOrientation::Landscape);
    main.stopStream();
}

void TestMainController::name()
{
    MainController main;
    main.setFixedSize(382, 660);
    main.show();
    const auto *label = main.findChild<QLabel *>(QStringLiteral("nameLabel"));
    QVERIFY(!label->isVisible());
    main.setDevice(granted(QStringLiteral("a")));
    QCOMPARE(label->text(), QStringLiteral("Device a"));
    QVERIFY(label->isVisible());
    group::GroupDevice device = granted(QStringLiteral("b"));
    device.aliasName = QStringLiteral("<b>") + QString(200, QLatin1Char('W'));
    main.setDevice(device);
    QVERIFY(label->text().startsWith(QStringLiteral("<b>W")));
    QVERIFY(label->text().endsWith(QChar(0x2026)));
    QVERIFY(main.rect().contains(label->geometry()));
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

QTEST_MAIN(TestMainController)
#include "tst_maincontroller.moc"
