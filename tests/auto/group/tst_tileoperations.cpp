// What the tiles' menus do on the page of a group's controlled devices, and the way of the master's input to
// every tile.

#include "SubControlPageFixture.h"

#include "group/BatchProcessThread.h"
#include "widgets/OvToast.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTimer>

using namespace grouptest;

namespace {

const QString LastTileToast = QStringLiteral("Group control need to be more than 2 devices");

} // namespace

class tst_TileOperations : public SubControlPageFixture
{
    Q_OBJECT

private slots:
    void removalAsks();
    void removalCanBeDeclined();
    void theLastTileStays();
    void theLastTileGoesSilently();
    void removalOfTheOnlyTileOfTheLastPage();
    void removalOfAPageMovesToTheLast();
    void removalMovesTheOthersUp();
    void removalKeepsTheScrollPosition();
    void removalOfAPageThatIsNotShown();
    void removalOfTheLastRow();
    void removalOfWhatIsNoLongerThere();
    void removedTilesGetNoInput();

    void promotionNamesTheTile();
    void singleControlNamesTheDevice();
    void restartAsksTheService_data();
    void restartAsksTheService();
    void restartFailsAtTheServer();
    void restartsOneStream();
    void findsTiles();
    void replacesAnEarlierGroup();

    void inputGoesToEveryTile();
    void inputWithoutDevicesIsDropped();
    void inputReachesTilesOfOtherPages();
};

// ---- Removal ----

void tst_TileOperations::removalAsks()
{
    m_page->setDevices(devices(3));
    QSignalSpy removed(m_page, &SubControlPage::removeController);
    askForRemoval(1);
    QVERIFY(dialog() && dialog()->isVisible());
    QCOMPARE(removed.count(), 0);
    QCOMPARE(m_page->controllerCount(), 3);
    const QPointer<SubController> tile = m_page->controllerAt(1);
    dialog()->accept();
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.first().first().toString(), QStringLiteral("100002"));
    QCOMPARE(shownTiles(), (QStringList{QStringLiteral("100001"), QStringLiteral("100003")}));
    QCOMPARE(child<QLabel>("totalLabel")->text(), QStringLiteral("Total 3"));
    QTRY_VERIFY(!tile);
}

void tst_TileOperations::removalCanBeDeclined()
{
    m_page->setDevices(devices(2));
    QSignalSpy removed(m_page, &SubControlPage::removeController);
    askForRemoval(0);
    dialog()->reject();
    QCOMPARE(removed.count(), 0);
    QCOMPARE(m_page->controllerCount(), 2);
}

void tst_TileOperations::theLastTileStays()
{
    m_page->setDevices(devices(1));
    QSignalSpy removed(m_page, &SubControlPage::removeController);
    askForRemoval(0);
    QVERIFY(!m_window->findChild<OvToast *>());
    dialog()->accept();
    const auto *toast = m_window->findChild<OvToast *>();
    QVERIFY(toast);
    QCOMPARE(toast->text(), LastTileToast);
    QCOMPARE(toast->findChild<QTimer *>()->interval(), 3000);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(shownTiles(), QStringList{QStringLiteral("100001")});
}

void tst_TileOperations::theLastTileGoesSilently()
{
    m_page->setDevices(devices(1));
    QSignalSpy removed(m_page, &SubControlPage::removeController);
    emit m_page->controllerAt(0)->removeController(true);
    QVERIFY(!dialog());
    QCOMPARE(removed.count(), 1);
    QCOMPARE(m_page->controllerCount(), 0);
    QCOMPARE(child<QLabel>("totalLabel")->text(), QStringLiteral("Total 1"));
    QCOMPARE(m_page->pageCount(), 1);
    QVERIFY(!m_window->findChild<OvToast *>());
}

void tst_TileOperations::removalOfTheOnlyTileOfTheLastPage()
{
    m_page->setDevices(devices(99));
    QTest::mouseClick(pageButtons().at(2), Qt::LeftButton);
    QCOMPARE(shownTiles(), QStringList{QStringLiteral("100099")});
    emit m_page->controllerAt(98)->removeController(true);
    QCOMPARE(m_page->pageCount(), 2);
    QCOMPARE(m_page->currentPage(), 2);
    QCOMPARE(pageButtons().size(), 2);
    QVERIFY(pageButtons().at(1)->property("current").toBool());
    QCOMPARE(child<QPushButton>("nextButton")->cursor().shape(), Qt::ForbiddenCursor);
    QCOMPARE(shownTiles().size(), 49);
    QCOMPARE(shownTiles().last(), QStringLiteral("100098"));
    QVERIFY(m_page->controllerAt(97)->isLive());
    QCOMPARE(child<QLabel>("totalLabel")->text(), QStringLiteral("Total 99"));
}

// The view goes to the page that is the last one then, whichever was shown.
void tst_TileOperations::removalOfAPageMovesToTheLast()
{
    m_page->setDevices(devices(99));
    QCOMPARE(m_page->currentPage(), 1);
    QTRY_VERIFY(scrollBar().maximum() > 100);
    scrollBar().setValue(100);
    emit m_page->controllerAt(0)->removeController(true);
    QCOMPARE(m_page->pageCount(), 2);
    QCOMPARE(m_page->currentPage(), 2);
    QCOMPARE(pageButtons().size(), 2);
    QVERIFY(pageButtons().at(1)->property("current").toBool());
    QVERIFY(!pageButtons().at(0)->property("current").toBool());
    QCOMPARE(shownTiles().size(), 49);
    QCOMPARE(shownTiles().first(), QStringLiteral("100051"));
    QCOMPARE(shownTiles().last(), QStringLiteral("100099"));
    QTest::qWait(0); // the rows are laid out
    QCOMPARE(scrollBar().value(), 0);
}

void tst_TileOperations::removalKeepsTheScrollPosition()
{
    m_page->setDevices(devices(13));
    QScrollBar &bar = scrollBar();
    const auto *content = m_page->findChild<QScrollArea *>()->widget();
    QTRY_COMPARE(content->height(), 24 + 4 * 295 + 3 * 22 + 24);
    bar.setValue(bar.maximum());
    const int before = bar.value();
    emit m_page->controllerAt(0)->removeController(true); // and with it the last row
    QTRY_COMPARE(content->height(), 24 + 3 * 295 + 2 * 22 + 24);
    QCOMPARE(bar.value(), before - 295 - 22);
    QCOMPARE(bar.value(), bar.maximum());
    bar.setValue(100);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    emit m_page->controllerAt(0)->removeController(true);
    QTRY_COMPARE(m_page->controllerAt(0)->mapTo(m_page, QPoint(0, 0)), QPoint(15, 24 - 100));
    QCOMPARE(bar.value(), 100);
}

void tst_TileOperations::removalOfAPageThatIsNotShown()
{
    m_page->setDevices(devices(50));
    QScrollBar &bar = scrollBar();
    QTRY_VERIFY(bar.maximum() > 500);
    bar.setValue(500);
    emit m_page->controllerAt(0)->removeController(true);
    QCOMPARE(m_page->pageCount(), 1);
    QTRY_COMPARE(m_page->controllerAt(0)->mapTo(m_page, QPoint(0, 0)), QPoint(15, 24 - 500));
    QCOMPARE(bar.value(), 500);
}

void tst_TileOperations::removalMovesTheOthersUp()
{
    m_page->setDevices(devices(60));
    emit m_page->controllerAt(0)->removeController(true);
    QCOMPARE(m_page->pageCount(), 2);
    QCOMPARE(shownTiles().size(), 49);
    QCOMPARE(shownTiles().first(), QStringLiteral("100002"));
    QCOMPARE(shownTiles().last(), QStringLiteral("100050"));
    QVERIFY(m_page->findController(QStringLiteral("100050"))->isLive());
    QTRY_COMPARE(m_page->controllerAt(0)->mapTo(m_page, QPoint(0, 0)), QPoint(15, 24));
}

void tst_TileOperations::removalOfTheLastRow()
{
    m_page->setDevices(devices(13));
    const auto *content = m_page->findChild<QScrollArea *>()->widget();
    QTRY_COMPARE(content->height(), 24 + 4 * 295 + 3 * 22 + 24);
    emit m_page->controllerAt(12)->removeController(true);
    QTRY_COMPARE(content->height(), 24 + 3 * 295 + 2 * 22 + 24);
}

void tst_TileOperations::removalOfWhatIsNoLongerThere()
{
    m_page->setDevices(devices(3));
    QSignalSpy removed(m_page, &SubControlPage::removeController);
    askForRemoval(1);
    emit m_page->controllerAt(1)->removeController(true); // it expires while the user is being asked
    QCOMPARE(removed.count(), 1);
    dialog()->accept();
    QCOMPARE(removed.count(), 1);
    QCOMPARE(m_page->controllerCount(), 2);

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    askForRemoval(0);
    m_page->controllerAt(0)->setDevice(device(9)); // it changes places with the master
    dialog()->accept();
    QCOMPARE(removed.count(), 1);
    QCOMPARE(shownTiles(), (QStringList{QStringLiteral("100009"), QStringLiteral("100003")}));
}

void tst_TileOperations::removedTilesGetNoInput()
{
    m_page->setDevices(devices(3));
    takeCalls();
    emit m_page->controllerAt(0)->removeController(true);
    m_page->onFunctionBtnClicked(114);
    m_page->onFunctionBtnClicked(115);
    waitForInput({keyCall(3, 114), keyCall(3, 114), keyCall(3, 115), keyCall(3, 115)});
}

// ---- What the tiles' menus ask for ----

void tst_TileOperations::promotionNamesTheTile()
{
    m_page->setDevices(devices(2));
    QSignalSpy promoted(m_page, &SubControlPage::setAsMainController);
    emit m_page->controllerAt(1)->setAsMainController();
    QCOMPARE(promoted.count(), 1);
    QCOMPARE(promoted.first().first().value<SubController *>(), m_page->controllerAt(1));
}

void tst_TileOperations::singleControlNamesTheDevice()
{
    m_page->setDevices(devices(2));
    QSignalSpy opened(m_page, &SubControlPage::openSingleController);
    emit m_page->controllerAt(1)->openSingleController();
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.first(), (QList<QVariant>{QStringLiteral("100002"), QStringLiteral("Device 2")}));
}

void tst_TileOperations::restartAsksTheService_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("line");
    QTest::newRow("done") << QByteArray(R"({"code": 200, "msg": "success", "data": {}})") << int(QtDebugMsg)
                          << QStringLiteral("restart controller success!");
    QTest::newRow("refused") << QByteArray(R"({"code": 500, "msg": "no such device", "data": {}})")
                             << int(QtWarningMsg)
                             << QStringLiteral("restart controller failed, error msg ---> no such device");
}

void tst_TileOperations::restartAsksTheService()
{
    QFETCH(QByteArray, answer);
    QFETCH(int, level);
    QFETCH(QString, line);
    m_page->setDevices(devices(2));
    m_server->setAnswer(answer);
    const int before = m_server->requests().size();
    takeCalls();
    QTest::ignoreMessage(QtMsgType(level), line.toUtf8().constData());
    emit m_page->controllerAt(1)->restartController();
    QTRY_COMPARE(m_server->requests().size(), before + 1);
    const TestHttpServer::Request &request = m_server->requests().last();
    QCOMPARE(request.method, QByteArray("POST"));
    QCOMPARE(request.path, QByteArray("/apiv1/device/actionDevice"));
    QCOMPARE(QJsonDocument::fromJson(request.body).object(),
        (QJsonObject{{QStringLiteral("service_id"), QStringLiteral("100002")},
            {QStringLiteral("action_type"), QStringLiteral("reboot")}}));
    waitForAnswers();
}

void tst_TileOperations::restartFailsAtTheServer()
{
    m_page->setDevices(devices(1));
    m_server->hold();
    const int before = m_server->requests().size();
    emit m_page->controllerAt(0)->restartController();
    QTRY_COMPARE(m_server->requests().size(), before + 1);
    m_page->setDevices({}); // the tile has gone before the answer
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("^restart controller failed, error msg ---> .+")));
    m_server->setAnswer("{}", 500);
    m_server->release();
    waitForAnswers();
}

void tst_TileOperations::restartsOneStream()
{
    m_page->setDevices(devices(3));
    takeCalls();
    m_page->restartDevice(QStringLiteral("100002"));
    QCOMPARE(takeCalls().filter(QStringLiteral("setLoginParams")),
        QStringList{QStringLiteral(
            "SWDataSource::setLoginParams(\"10.1.2.3\", 8181, 17, \"s-2\", \"VM100002\", 0)")});
    m_page->restartDevice(QStringLiteral("100004"));
    QVERIFY(takeCalls().isEmpty());
}

void tst_TileOperations::findsTiles()
{
    m_page->setDevices(devices(2));
    QCOMPARE(m_page->findController(QStringLiteral("100002")), m_page->controllerAt(1));
    QVERIFY(!m_page->findController(QStringLiteral("100003")));
    QVERIFY(!m_page->controllerAt(-1) && !m_page->controllerAt(2));
    delete m_page->controllerAt(0);
    QVERIFY(!m_page->controllerAt(0));
    QVERIFY(!m_page->findController(QStringLiteral("100001")));
}

void tst_TileOperations::replacesAnEarlierGroup()
{
    m_page->setDevices(devices(60));
    m_page->onNextPageBtnClicked();
    QSignalSpy removed(m_page, &SubControlPage::removeController);
    m_page->setDevices({device(70), device(71)});
    QCOMPARE(removed.count(), 0); // they have not been taken out of the group
    QCOMPARE(m_page->pageCount(), 1);
    QCOMPARE(m_page->currentPage(), 1);
    QCOMPARE(pageButtons().size(), 1);
    QCOMPARE(shownTiles(), (QStringList{QStringLiteral("100070"), QStringLiteral("100071")}));
    takeCalls();
    m_page->onKeyPressEvent(1);
    waitForInput({keyCall(1, 1), keyCall(1, 1)});
}

// ---- Input ----

void tst_TileOperations::inputGoesToEveryTile()
{
    m_page->setDevices(devices(2));
    takeCalls();
    m_page->onSubControlTouchEvent(0, 0.5F, 0.25F);
    m_page->onSubControlTouchEvent(1, 0.5F, 0.25F);
    m_page->onFunctionBtnClicked(172);
    m_page->onKeyPressEvent(30);
    m_page->onKeyReleaseEvent(30);
    m_page->onInputEvent(QStringLiteral("paste"));
    QStringList expected;
    for (const QString &call : {touchCall(0, 360, 320), touchCall(1, -1, -1), keyCall(3, 172), keyCall(1, 30),
             keyCall(2, 30), textCall(QStringLiteral("paste"))})
        expected += {call, call};
    waitForInput(expected);
}

void tst_TileOperations::inputWithoutDevicesIsDropped()
{
    m_page->onKeyPressEvent(1); // before there ever was one
    m_page->setDevices({});
    m_page->onKeyPressEvent(2);
    const auto *thread = m_page->findChild<BatchProcessThread *>();
    QVERIFY(thread && thread->isRunning());
    QTRY_COMPARE(thread->waitingEvents(), 0);
    m_page->setDevices(devices(1));
    takeCalls();
    m_page->onKeyPressEvent(3);
    waitForInput({keyCall(1, 3)});
}

void tst_TileOperations::inputReachesTilesOfOtherPages()
{
    m_page->setDevices(devices(60));
    takeCalls();
    m_page->onKeyPressEvent(1);
    QTRY_COMPARE(sentInput().count(keyCall(1, 1)), 60);
}

QTEST_MAIN(tst_TileOperations)
#include "tst_tileoperations.moc"
