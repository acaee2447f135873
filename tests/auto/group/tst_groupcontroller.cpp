#include "GroupWindowFixture.h"

#include "group/SaveGroupDialog.h"
#include "widgets/OvTitleBarBase.h"

#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QNetworkReply>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QToolButton>
#include <QWindow>

using namespace grouptest;

namespace {

QStringList ownMethods(const QMetaObject &meta, QMetaMethod::MethodType type)
{
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type)
            names << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return names;
}

const QStringList Three = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};

} // namespace

// The group's window: its shape, its devices and its requests.
class TestGroupController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void metaObject();
    void setUp();
    void toolStrip();
    void layoutRule_data();
    void layoutRule();
    void title();
    void appliesForTheDevices();
    void groupOfOne();
    void emptyGroup();
    void laterDevicesReplaceEarlierOnes();
    void restartAll();
    void restartAllFails();
    void save();
    void saveFails();
    void saveDialog();
    void removal();
    void removalFails();
    void promotion();
    void promotionByTheTile();
    void resume();
    void singleControl();
    void closing();
    void closingWhileRequestsAreUnderWay();
    void closingWithDialogs();
    void closedByTheWindowManager();
    void destroyedWhileOpen();

private:
    std::unique_ptr<Fixture> m_fixture;
};

void TestGroupController::initTestCase()
{
    m_fixture = std::make_unique<Fixture>();
}

void TestGroupController::init()
{
    m_fixture->makeWindow();
}

void TestGroupController::cleanup()
{
    m_fixture->endWindow();
}

void TestGroupController::metaObject()
{
    QCOMPARE(ownMethods(GroupWindow::staticMetaObject, QMetaMethod::Signal),
        (QStringList{
            QStringLiteral("openSingleController(QString,QString)"), QStringLiteral("updateGroup()")}));
    QCOMPARE(ownMethods(GroupController::staticMetaObject, QMetaMethod::Slot),
        (QStringList{QStringLiteral("onSaveGroupBtnClicked()"), QStringLiteral("onRestartAllController()"),
            QStringLiteral("onSetAsMainController(SubController*)"),
            QStringLiteral("onRemoveController(QString)"), QStringLiteral("onSaveGroup(QString)"),
            QStringLiteral("onPasteText()")}));
}

void TestGroupController::setUp()
{
    GroupController &window = *m_fixture->window;
    QVERIFY(window.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!window.parent());
    QCOMPARE(window.contentSize(), QSize(1240, 700));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.size(), QSize(1260, 720));
    // The title bar is 40 high; the panels stand below, from left to right, without gaps.
    QCOMPARE(m_fixture->child<QFrame>("toolStrip")->geometry(), QRect(10, 50, 80, 660));
    QCOMPARE(window.mainController()->geometry(), QRect(90, 50, 382, 660));
    QCOMPARE(window.subControlPage()->geometry(), QRect(472, 50, 778, 660));
    // Dragging an edge changes nothing.
    QTest::mouseMove(&window, QPoint(1255, 400));
    QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, QPoint(1255, 400));
    QTest::mouseMove(&window, QPoint(1300, 400));
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, QPoint(1300, 400));
    QCOMPARE(window.size(), QSize(1260, 720));
    // The line under the title bar.
    QVERIFY(window.titleBar()->testAttribute(Qt::WA_StyledBackground));
    QVERIFY(window.titleBar()->styleSheet().contains(QStringLiteral("border-bottom:1px solid #00FF00;")));
    const QImage picture = window.grab().toImage();
    QCOMPARE(picture.pixelColor(600, 49), QColor(0, 255, 0));
    QVERIFY(picture.pixelColor(600, 48) != QColor(0, 255, 0));
}

void TestGroupController::toolStrip()
{
    GroupController &window = *m_fixture->window;
    window.show();
    auto *strip = m_fixture->child<QFrame>("toolStrip");
    QCOMPARE(strip->layout()->spacing(), 7);
    QCOMPARE(strip->layout()->contentsMargins(), QMargins(4, 15, 4, 4));
    const auto *button = m_fixture->child<QToolButton>("saveGroupButton");
    QCOMPARE(button->text(), QStringLiteral("Save group"));
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->iconSize(), QSize(24, 24));
    QVERIFY(showsIcon(*button, ":/icon/svg/group-save.svg"));
    QCOMPARE(button->size(), QSize(72, 50));
    QCOMPARE(button->font().pixelSize(), 11);
    QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(button->pos(), QPoint(4, 16)); // below the border and the margin
    const QImage picture = strip->grab().toImage();
    QCOMPARE(picture.pixelColor(40, 0), QColor(89, 89, 89));
    QCOMPARE(picture.pixelColor(40, 300), QColor(68, 68, 68));
    QVERIFY(window.grab().toImage().pixelColor(10, 709) != QColor(68, 68, 68)); // rounded
}

void TestGroupController::layoutRule_data()
{
    QTest::addColumn<QSize>("content");
    QTest::addColumn<QSize>("master");
    QTest::newRow("own") << QSize(1240, 700) << QSize(382, 660); // 382.8
    QTest::newRow("larger") << QSize(1500, 900) << QSize(468, 860); // 468.6
    QTest::newRow("screen") << QSize(1920, 1040) << QSize(607, 1000); // 607.2
}

void TestGroupController::layoutRule()
{
    QFETCH(QSize, content);
    QFETCH(QSize, master);
    GroupController &window = *m_fixture->window;
    window.show();
    window.setContentSize(content);
    window.updateWindowSize();
    QTRY_COMPARE(window.subControlPage()->geometry(),
        QRect(10 + 80 + master.width(), 50, content.width() - 80 - master.width(), content.height() - 40));
    QCOMPARE(window.mainController()->size(), master);
    QCOMPARE(window.size(), content + QSize(20, 20));
}

void TestGroupController::title()
{
    GroupController &window = *m_fixture->window;
    window.setGroupName(QStringLiteral("Farm"));
    QCOMPARE(window.groupName(), QStringLiteral("Farm"));
    QCOMPARE(window.titleBar()->title(), QStringLiteral("Farm"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Farm"));
    const auto *label = window.titleBar()->findChild<QLabel *>(QStringLiteral("titleLabel"));
    QCOMPARE(label->font().pixelSize(), 14);
    QCOMPARE(label->font().weight(), int(QFont::Bold));
    QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::white));
    window.setGroupName(QString(500, QLatin1Char('W')));
    QCOMPARE(window.groupName().size(), 500);
    QVERIFY(window.titleBar()->title().endsWith(QChar(0x2026)));
    window.show();
    QCOMPARE(window.width(), 1260);
}

// In whatever order the page names them, the devices go by their ids.
void TestGroupController::appliesForTheDevices()
{
    GroupController &window = *m_fixture->window;
    window.show();
    m_fixture->server.setAnswer(grantedAnswer(Three));
    window.setDevices(devicesOf({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("c")}));
    QCOMPARE(window.serviceIds(), Three);
    QVERIFY(window.contains(QStringLiteral("b")));
    QVERIFY(!window.contains(QStringLiteral("d")));
    QCOMPARE(m_fixture->master(), QString()); // not before the answer
    QTest::ignoreMessage(QtDebugMsg,
        QRegularExpression(QStringLiteral(
            "^batchActionDevice devcie_apply request success! \\{\"a\":\\{.*\"instanceCode\":\"VMa\"")));
    QTRY_COMPARE(m_fixture->master(), QStringLiteral("a"));
    QCOMPARE(m_fixture->requests().size(), 1);
    QCOMPARE(m_fixture->requests().first().method, QByteArray("POST"));
    QCOMPARE(m_fixture->requests().first().path, BatchPath);
    QCOMPARE(m_fixture->body(0),
        (QJsonObject{{QStringLiteral("service_ids"), QJsonArray::fromStringList(Three)},
            {QStringLiteral("action_type"), QStringLiteral("device_apply")}}));
    QCOMPARE(m_fixture->tiles(), (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
    QCOMPARE(
        startedDevices(), (QStringList{QStringLiteral("VMa"), QStringLiteral("VMb"), QStringLiteral("VMc")}));
    QVERIFY(countCalls(
                QStringLiteral("SWDataSource::setLoginParams(\"10.0.0.1\", 8181, 17, \"s-c\", \"VMc\", 0)"))
        == 1);
    QCOMPARE(m_fixture->tile(0)->device().aliasName, QStringLiteral("Device b"));
    QVERIFY(window.mainController()->videoView()->hasFocus() || !window.isActiveWindow());
}

void TestGroupController::groupOfOne()
{
    QVERIFY(m_fixture->open({QStringLiteral("a")}));
    QCOMPARE(m_fixture->master(), QStringLiteral("a"));
    QCOMPARE(m_fixture->tiles(), QStringList());
}

void TestGroupController::emptyGroup()
{
    m_fixture->window->setDevices({});
    QTest::ignoreMessage(QtDebugMsg, "batchActionDevice devcie_apply request success! {}");
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    m_fixture->window->onRestartAllController(); // after it the first has been answered
    QTest::ignoreMessage(QtDebugMsg, "restart all controller success");
    QTRY_COMPARE(m_fixture->requests().size(), 2);
    QSignalSpy saved(m_fixture->window, &GroupWindow::updateGroup);
    m_fixture->window->onSaveGroup(QStringLiteral("x"));
    QVERIFY(saved.wait());
    QCOMPARE(m_fixture->master(), QString());
}

void TestGroupController::laterDevicesReplaceEarlierOnes()
{
    GroupController &window = *m_fixture->window;
    window.show();
    m_fixture->server.setAnswer(grantedAnswer({QStringLiteral("x"), QStringLiteral("y")}));
    m_fixture->server.hold();
    window.setDevices(devicesOf(Three));
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    window.setDevices(devicesOf({QStringLiteral("x"), QStringLiteral("y")}));
    QTRY_COMPARE(m_fixture->requests().size(), 2);
    QCOMPARE(window.serviceIds(), (QStringList{QStringLiteral("x"), QStringLiteral("y")}));
    m_fixture->server.release();
    QTRY_COMPARE(m_fixture->master(), QStringLiteral("x"));
    QCOMPARE(startedDevices(), (QStringList{QStringLiteral("VMx"), QStringLiteral("VMy")}));
    // And once they are running.
    m_fixture->server.setAnswer(grantedAnswer(Three));
    window.setDevices(devicesOf(Three));
    QTRY_COMPARE(m_fixture->master(), QStringLiteral("a"));
    QCOMPARE(m_fixture->tiles(), (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
}

void TestGroupController::restartAll()
{
    QVERIFY(m_fixture->open(Three));
    QTest::ignoreMessage(QtDebugMsg, "restart all controller success");
    emit m_fixture->window->mainController()->restartBtnClicked();
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    QCOMPARE(m_fixture->requests().first().path, BatchPath);
    QCOMPARE(m_fixture->body(0),
        (QJsonObject{{QStringLiteral("action_type"), QStringLiteral("reboot")},
            {QStringLiteral("service_ids"), QJsonArray::fromStringList(Three)}}));
    QSignalSpy saved(m_fixture->window, &GroupWindow::updateGroup);
    m_fixture->window->onSaveGroup(QStringLiteral("x")); // its answer comes after the other
    QVERIFY(saved.wait());
}

void TestGroupController::restartAllFails()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->server.setAnswer(refusal("busy"));
    QTest::ignoreMessage(QtWarningMsg, "restart all controller failed, error msg ---> busy");
    m_fixture->window->onRestartAllController();
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    QTest::ignoreMessage(QtWarningMsg, "unbind devices failed! busy");
    m_fixture->window->onRemoveController(QStringLiteral("zzz"));
    QTRY_COMPARE(m_fixture->requests().size(), 2);
    QTRY_VERIFY(m_fixture->window->findChildren<QNetworkReply *>().isEmpty());
    QVERIFY(m_fixture->toasts().isEmpty());
}

void TestGroupController::save()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->window->setGroupName(QStringLiteral("Temporary grouping"));
    QSignalSpy updated(m_fixture->window, &GroupWindow::updateGroup);
    QTest::ignoreMessage(QtDebugMsg, "save group success");
    m_fixture->window->onSaveGroup(QStringLiteral("Farm"));
    QVERIFY(updated.wait());
    QCOMPARE(m_fixture->requests().size(), 1);
    QCOMPARE(m_fixture->requests().first().path, QByteArray("/apiv1/device/actionCcGroup"));
    QCOMPARE(m_fixture->body(0),
        (QJsonObject{{QStringLiteral("action_type"), QStringLiteral("create")},
            {QStringLiteral("cc_group_name"), QStringLiteral("Farm")},
            {QStringLiteral("service_ids"), QJsonArray::fromStringList(Three)}}));
    QCOMPARE(updated.size(), 1);
    QCOMPARE(m_fixture->window->groupName(), QStringLiteral("Farm"));
    QCOMPARE(m_fixture->window->titleBar()->title(), QStringLiteral("Farm"));
    QCOMPARE(m_fixture->window->serviceIds(), Three);
}

void TestGroupController::saveFails()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->window->setGroupName(QStringLiteral("Temporary grouping"));
    QSignalSpy updated(m_fixture->window, &GroupWindow::updateGroup);
    m_fixture->server.setAnswer(refusal("too many groups"));
    QTest::ignoreMessage(QtWarningMsg, "save group failed, error msg ---> too many groups");
    m_fixture->window->onSaveGroup(QStringLiteral("Farm"));
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    m_fixture->server.setAnswer(R"({"code": 200})");
    m_fixture->window->onSaveGroup(QStringLiteral("Ranch"));
    QVERIFY(updated.wait());
    QCOMPARE(updated.size(), 1); // the second one's
    QCOMPARE(m_fixture->window->groupName(), QStringLiteral("Ranch"));
}

void TestGroupController::saveDialog()
{
    QVERIFY(m_fixture->open(Three));
    GroupController &window = *m_fixture->window;
    QVERIFY(!window.findChild<SaveGroupDialog *>());
    QTest::mouseClick(m_fixture->child<QToolButton>("saveGroupButton"), Qt::LeftButton);
    auto *dialog = window.findChild<SaveGroupDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->geometry(), QRect(10, 10, 1240, 700));
    QSignalSpy updated(&window, &GroupWindow::updateGroup);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Farm"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QVERIFY(updated.wait());
    QCOMPARE(m_fixture->body(0).value(QStringLiteral("cc_group_name")).toString(), QStringLiteral("Farm"));
    QVERIFY(window.mainController()->videoView()->hasFocus());
    window.onSaveGroupBtnClicked();
    QCOMPARE(window.findChildren<SaveGroupDialog *>().size(), 1);
    QVERIFY(dialog->isVisible());
}

void TestGroupController::removal()
{
    QVERIFY(m_fixture->open(Three));
    QTest::ignoreMessage(QtDebugMsg, "unbind devices success!");
    emit m_fixture->tile(0)->removeController(true);
    QCOMPARE(m_fixture->window->serviceIds(), (QStringList{QStringLiteral("a"), QStringLiteral("c")}));
    QVERIFY(!m_fixture->window->contains(QStringLiteral("b")));
    QCOMPARE(m_fixture->tiles(), QStringList{QStringLiteral("c")});
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    QCOMPARE(m_fixture->requests().first().path, BatchPath);
    QCOMPARE(m_fixture->body(0),
        (QJsonObject{{QStringLiteral("service_ids"), QJsonArray{QStringLiteral("b")}},
            {QStringLiteral("action_type"), QStringLiteral("device_unbind")}}));
    QSignalSpy saved(m_fixture->window, &GroupWindow::updateGroup);
    m_fixture->window->onSaveGroup(QStringLiteral("x")); // its answer comes after the other
    QVERIFY(saved.wait());
    QCOMPARE(m_fixture->body(1).value(QStringLiteral("service_ids")).toArray(),
        (QJsonArray{QStringLiteral("a"), QStringLiteral("c")}));
}

void TestGroupController::removalFails()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->server.setAnswer(refusal("unknown"));
    QTest::ignoreMessage(QtWarningMsg, "unbind devices failed! unknown");
    m_fixture->window->onRemoveController(QStringLiteral("b"));
    QVERIFY(!m_fixture->window->contains(QStringLiteral("b")));
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    m_fixture->server.setAnswer(R"({"code": 200})");
    QSignalSpy saved(m_fixture->window, &GroupWindow::updateGroup);
    m_fixture->window->onSaveGroup(QStringLiteral("x"));
    QVERIFY(saved.wait());
}

void TestGroupController::promotion()
{
    QVERIFY(m_fixture->open(Three));
    GroupController &window = *m_fixture->window;
    window.onSetAsMainController(m_fixture->tile(1));
    QCOMPARE(m_fixture->master(), QStringLiteral("c"));
    QCOMPARE(m_fixture->tiles(), (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    QCOMPARE(
        window.serviceIds(), (QStringList{QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a")}));
    window.onSetAsMainController(m_fixture->tile(1));
    QCOMPARE(m_fixture->master(), QStringLiteral("a"));
    QCOMPARE(m_fixture->tiles(), (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
    QCOMPARE(window.serviceIds(), Three);
    window.onSetAsMainController(nullptr);
    QCOMPARE(m_fixture->master(), QStringLiteral("a"));
    // The service is not told; a request that was sent would be there before a later one.
    window.onRestartAllController();
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    QCOMPARE(m_fixture->body(0).value(QStringLiteral("action_type")).toString(), QStringLiteral("reboot"));
}

void TestGroupController::promotionByTheTile()
{
    QVERIFY(m_fixture->open(Three));
    takeCalls();
    emit m_fixture->tile(0)->setAsMainController();
    QCOMPARE(m_fixture->master(), QStringLiteral("b"));
    QCOMPARE(m_fixture->tiles(), (QStringList{QStringLiteral("a"), QStringLiteral("c")}));
    QCOMPARE(startedDevices(), (QStringList{QStringLiteral("VMa"), QStringLiteral("VMb")}));
    QVERIFY(m_fixture->window->mainController()->videoView()->hasFocus());
}

void TestGroupController::resume()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->window->resumeDevice(QStringLiteral("zzz"));
    QCOMPARE(startedDevices(), QStringList());
    m_fixture->window->resumeDevice(QStringLiteral("a"));
    QCOMPARE(startedDevices(), QStringList{QStringLiteral("VMa")});
    takeCalls();
    m_fixture->window->resumeDevice(QStringLiteral("c"));
    QCOMPARE(startedDevices(), QStringList{QStringLiteral("VMc")});
    takeCalls();
    emit m_fixture->tile(1)->removeController(true);
    takeCalls();
    m_fixture->window->resumeDevice(QStringLiteral("c"));
    QCOMPARE(startedDevices(), QStringList());
}

void TestGroupController::singleControl()
{
    QVERIFY(m_fixture->open(Three));
    QSignalSpy opened(m_fixture->window, &GroupWindow::openSingleController);
    emit m_fixture->tile(1)->openSingleController();
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.first(), (QVariantList{QStringLiteral("c"), QStringLiteral("Device c")}));
}

void TestGroupController::closing()
{
    QVERIFY(m_fixture->open(Three));
    QSignalSpy closed(m_fixture->window, &OvWindowBase::sigCloseBtnClicked);
    m_fixture->window->onBtnCloseClicked();
    QCOMPARE(closed.size(), 1);
    QTRY_VERIFY(!m_fixture->window);
    QCOMPARE(countCalls(QStringLiteral("SWDataSource::~SWDataSource")), 3);
}

void TestGroupController::closingWhileRequestsAreUnderWay()
{
    GroupController &window = *m_fixture->window;
    window.show();
    m_fixture->server.setAnswer(grantedAnswer(Three));
    m_fixture->server.hold();
    window.setDevices(devicesOf(Three));
    window.onSaveGroup(QStringLiteral("x"));
    window.onRestartAllController();
    QTRY_COMPARE(m_fixture->requests().size(), 3);
    window.onBtnCloseClicked();
    m_fixture->server.release();
    QTRY_VERIFY(!m_fixture->window);
    QCOMPARE(startedDevices(), QStringList());
}

void TestGroupController::closingWithDialogs()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->window->onSaveGroupBtnClicked();
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("a"), QStringLiteral("A"), 5);
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    QCOMPARE(m_fixture->questions().size(), 2);
    m_fixture->window->onBtnCloseClicked();
    QTRY_VERIFY(!m_fixture->window);
}

// Its owner must learn of it: another group could not be opened otherwise.
void TestGroupController::closedByTheWindowManager()
{
    QVERIFY(m_fixture->open(Three));
    QSignalSpy closed(m_fixture->window, &OvWindowBase::sigCloseBtnClicked);
    QWindow *handle = m_fixture->window->windowHandle();
    QVERIFY(handle);
    QCloseEvent event;
    QApplication::sendEvent(handle, &event); // as the window system's request comes
    QTRY_VERIFY(!m_fixture->window);
    QCOMPARE(closed.size(), 1);
}

void TestGroupController::destroyedWhileOpen()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    QTest::keyPress(m_fixture->window->mainController()->videoView(), Qt::Key_A);
    delete m_fixture->window;
    QVERIFY(!m_fixture->window);
}

QTEST_MAIN(TestGroupController)
#include "tst_groupcontroller.moc"
