#include "GroupWindowFixture.h"

#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace grouptest;

namespace {

const QStringList Three = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
const QString GeneralFailure = QStringLiteral("The request failed. Please try again later.");

} // namespace

// What the group's window shows while the service is asked and when it refuses, and what becomes of requests
// when the window is closed.
class TestGroupRequests : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void tellsThatItConnects();
    void emptyGroupConnectsToNothing();
    void applyFails_data();
    void applyFails();
    void failureStaysInThePlaceOfThePicture();
    void failureOfALaterGroupLeavesThePicture();
    void closingDropsTheApplication();
    void closingKeepsARemoval();
    void closingKeepsASaving();
    void closedWindowGoesAfterAFailure();
    void closedWindowDoesNotWaitForEver();
    void savingOfAnEarlierGroup();

private:
    const QLabel &status() const { return *m_fixture->child<QLabel>("statusLabel"); }

    std::unique_ptr<Fixture> m_fixture;
};

void TestGroupRequests::initTestCase()
{
    m_fixture = std::make_unique<Fixture>();
}

void TestGroupRequests::init()
{
    m_fixture->makeWindow();
}

void TestGroupRequests::cleanup()
{
    m_fixture->endWindow();
}

// ---- Applying for the devices ----

void TestGroupRequests::tellsThatItConnects()
{
    GroupController &window = *m_fixture->window;
    window.show();
    QVERIFY(!status().isVisible());
    m_fixture->server.setAnswer(grantedAnswer(Three));
    m_fixture->server.hold();
    window.setDevices(devicesOf(Three));
    QVERIFY(status().isVisible());
    QCOMPARE(status().text(), QStringLiteral("Connecting"));
    QCOMPARE(status().geometry(), window.mainController()->videoView()->geometry());
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    m_fixture->server.release();
    QTRY_COMPARE(m_fixture->master(), QStringLiteral("a"));
    QVERIFY(status().isVisible()); // until the picture
    showDevicePicture(*window.mainController()->videoView(), Qt::darkGreen);
    QTRY_VERIFY(!status().isVisible());
}

void TestGroupRequests::emptyGroupConnectsToNothing()
{
    m_fixture->window->show();
    m_fixture->window->setDevices({});
    QVERIFY(!status().isVisible());
}

void TestGroupRequests::applyFails_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("httpStatus");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<QString>("shown");
    const QString transportError = QStringLiteral("Error transferring %1%2 - server replied: ");
    QTest::newRow("refused") << refusal("no device can be had") << 200
                             << QStringLiteral("no device can be had")
                             << QStringLiteral("no device can be had");
    QTest::newRow("server error") << QByteArray("{}") << 500 << transportError << GeneralFailure;
    QTest::newRow("without a message") << QByteArray("{}") << 200 << QString() << GeneralFailure;
    QTest::newRow("empty message") << refusal("") << 200 << QString() << GeneralFailure;
    QTest::newRow("blank message") << refusal(" ") << 200 << QStringLiteral(" ") << GeneralFailure;
    QTest::newRow("no JSON") << QByteArray("<html>") << 200 << QString() << GeneralFailure;
}

void TestGroupRequests::applyFails()
{
    QFETCH(QByteArray, answer);
    QFETCH(int, httpStatus);
    QFETCH(QString, logged);
    QFETCH(QString, shown);
    if (logged.contains(QLatin1Char('%')))
        logged = logged.arg(m_fixture->server.baseUrl(), QString::fromLatin1(BatchPath));
    GroupController &window = *m_fixture->window;
    window.show();
    m_fixture->server.setAnswer(answer, httpStatus);
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression(
            QStringLiteral("^batchActionDevice devcie_apply request failed!\nresponse data --> ")
            + QRegularExpression::escape(logged)));
    window.setDevices(devicesOf(Three));
    QTRY_COMPARE(m_fixture->toasts(), QStringList{shown});
    QVERIFY(window.isVisible());
    QCOMPARE(m_fixture->master(), QString());
    QCOMPARE(startedDevices(), QStringList());
    QCOMPARE(window.serviceIds(), Three); // for the owner to give back
}

// The toast goes by itself.
void TestGroupRequests::failureStaysInThePlaceOfThePicture()
{
    GroupController &window = *m_fixture->window;
    window.show();
    m_fixture->server.setAnswer(refusal("<b>none</b>"));
    window.setDevices(devicesOf(Three));
    QTRY_COMPARE(m_fixture->toasts().size(), 1);
    const auto toasts = window.findChildren<OvToast *>();
    for (OvToast *toast : toasts)
        toast->close();
    QVERIFY(status().isVisible());
    QCOMPARE(status().text(), QStringLiteral("<b>none</b>"));
    QCOMPARE(status().textFormat(), Qt::PlainText);
    QVERIFY(status().wordWrap());
    QEvent languageChange(QEvent::LanguageChange);
    QApplication::sendEvent(window.mainController(), &languageChange);
    QCOMPARE(status().text(), QStringLiteral("<b>none</b>"));
    // Another try begins anew.
    m_fixture->server.setAnswer(grantedAnswer(Three));
    window.setDevices(devicesOf(Three));
    QCOMPARE(status().text(), QStringLiteral("Connecting"));
    QTRY_COMPARE(m_fixture->master(), QStringLiteral("a"));
}

void TestGroupRequests::failureOfALaterGroupLeavesThePicture()
{
    QVERIFY(m_fixture->open(Three));
    GroupController &window = *m_fixture->window;
    showDevicePicture(*window.mainController()->videoView(), Qt::darkGreen);
    QTRY_VERIFY(!status().isVisible());
    m_fixture->server.setAnswer(refusal("none"));
    window.setDevices(devicesOf({QStringLiteral("x")}));
    QVERIFY(!status().isVisible());
    QTRY_COMPARE(m_fixture->toasts(), QStringList{QStringLiteral("none")});
    QVERIFY(!status().isVisible());
}

// ---- Closing ----

void TestGroupRequests::closingDropsTheApplication()
{
    m_fixture->window->show();
    m_fixture->server.setAnswer(grantedAnswer(Three));
    m_fixture->server.hold();
    m_fixture->window->setDevices(devicesOf(Three));
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    m_fixture->window->onBtnCloseClicked();
    QTRY_VERIFY(!m_fixture->window);
    m_fixture->server.release();
    QCOMPARE(startedDevices(), QStringList());
}

// The device would stay the user's otherwise: the owner gives back only those that are in the group.
void TestGroupRequests::closingKeepsARemoval()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->server.hold();
    emit m_fixture->tile(0)->removeController(true);
    m_fixture->window->onBtnCloseClicked();
    QVERIFY(!m_fixture->window->isVisible());
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    QCOMPARE(m_fixture->body(0),
        (QJsonObject{{QStringLiteral("service_ids"), QJsonArray{QStringLiteral("b")}},
            {QStringLiteral("action_type"), QStringLiteral("device_unbind")}}));
    // No session lasts as long as the service takes.
    QVERIFY(m_fixture->window);
    QTRY_COMPARE(countCalls(QStringLiteral("SWDataSource::~SWDataSource")), 3);
    QTest::ignoreMessage(QtDebugMsg, "unbind devices success!");
    m_fixture->server.release();
    QTRY_VERIFY(!m_fixture->window);
}

void TestGroupRequests::closingKeepsASaving()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->server.hold();
    QSignalSpy updated(m_fixture->window, &GroupWindow::updateGroup);
    m_fixture->window->onSaveGroup(QStringLiteral("Farm"));
    m_fixture->window->onRestartAllController();
    m_fixture->window->onBtnCloseClicked();
    QTRY_COMPARE(m_fixture->requests().size(), 2);
    const QString first = m_fixture->body(0).value(QStringLiteral("action_type")).toString();
    const QString second = m_fixture->body(1).value(QStringLiteral("action_type")).toString();
    QVERIFY(QStringList({first, second}).contains(QStringLiteral("create")));
    QCOMPARE(updated.size(), 0);
    m_fixture->server.release();
    QTRY_VERIFY(!m_fixture->window);
    QCOMPARE(updated.size(), 1); // the page shows the new group
}

void TestGroupRequests::closedWindowGoesAfterAFailure()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->server.hold();
    m_fixture->window->onSaveGroup(QStringLiteral("Farm"));
    QTRY_COMPARE(m_fixture->requests().size(), 1);
    m_fixture->window->close();
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("^save group failed, error msg ---> .+")));
    m_fixture->server.setAnswer("{}", 500);
    m_fixture->server.release();
    QTRY_VERIFY(!m_fixture->window);
}

void TestGroupRequests::closedWindowDoesNotWaitForEver()
{
    QVERIFY(m_fixture->open(Three));
    m_fixture->server.hold();
    m_fixture->window->onSaveGroup(QStringLiteral("Farm"));
    QVERIFY(!m_fixture->window->findChild<QTimer *>(QStringLiteral("answerLimit")));
    m_fixture->window->onBtnCloseClicked();
    auto *limit = m_fixture->window->findChild<QTimer *>(QStringLiteral("answerLimit"));
    QVERIFY(limit);
    QCOMPARE(limit->intervalAsDuration(), std::chrono::milliseconds(30000));
    limit->start(0);
    QTRY_VERIFY(!m_fixture->window);
    m_fixture->server.release();
}

void TestGroupRequests::savingOfAnEarlierGroup()
{
    QVERIFY(m_fixture->open(Three));
    GroupController &window = *m_fixture->window;
    m_fixture->server.setAnswer(grantedAnswer({QStringLiteral("x")}));
    m_fixture->server.hold();
    QSignalSpy updated(&window, &GroupWindow::updateGroup);
    window.onSaveGroup(QStringLiteral("Farm"));
    window.setDevices(devicesOf({QStringLiteral("x")}));
    window.setGroupName(QStringLiteral("Ranch"));
    QTRY_COMPARE(m_fixture->requests().size(), 2);
    m_fixture->server.release();
    QTRY_COMPARE(m_fixture->master(), QStringLiteral("x"));
    QTRY_COMPARE(updated.size(), 1); // it is saved all the same
    QCOMPARE(window.groupName(), QStringLiteral("Ranch"));
}

QTEST_MAIN(TestGroupRequests)
#include "tst_grouprequests.moc"
