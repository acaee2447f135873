// The page of a group's controlled devices: its grid and bar, who is live, what the tiles' menus do, and the
// way of the master's input to every tile.

#include "GroupTiles.h"

#include "group/BatchProcessThread.h"
#include "group/RemoveDeviceDialog.h"
#include "group/SubControlPage.h"
#include "net/HttpHelper.h"
#include "stream/StreamController.h"
#include "widgets/OvToast.h"

#include <TestHttpServer.h>

#include <QApplication>
#include <QComboBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLayout>
#include <QNetworkReply>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace grouptest;

Q_DECLARE_METATYPE(SubController *)

namespace {

const QString LastTileToast = QStringLiteral("Group control need to be more than 2 devices");

} // namespace

class tst_SubControlPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void measures();
    void oneTileGoesIntoTheCorner();
    void fourTilesMakeARow();
    void tileSizes_data();
    void tileSizes();
    void resizingTellsTheTiles();
    void scrollBarTakesNoRoom();

    void pagesOfFortyNine_data();
    void pagesOfFortyNine();
    void theBarLooksAsThePageSays();
    void turnsPages();
    void tilesKeepTheirOrder();

    void onlyTheShownPageIsLive();
    void nothingIsLiveWhileThePageIsHidden();
    void nothingIsLiveWhileTheWindowIsMinimised();
    void theLastPictureStays();
    void remainingTimesFollowTheClock();

    void removalAsks();
    void removalCanBeDeclined();
    void theLastTileStays();
    void theLastTileGoesSilently();
    void removalOfTheOnlyTileOfTheLastPage();
    void removalMovesTheOthersUp();
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

private:
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return m_page->findChild<Widget *>(QLatin1String(name));
    }
    QList<QPushButton *> pageButtons() const;
    QStringList shownTiles() const;
    void waitForInput(const QStringList &expected) const;
    void waitForAnswers() const;
    void askForRemoval(int index) const;
    RemoveDeviceDialog *dialog() const;

    std::unique_ptr<TestHttpServer> m_server;
    std::unique_ptr<QWidget> m_window;
    SubControlPage *m_page = nullptr;
};

void tst_SubControlPage::initTestCase()
{
    qRegisterMetaType<SubController *>();
    m_server = std::make_unique<TestHttpServer>();
    qputenv("ORVANE_API_BASE_URL", m_server->baseUrl().toUtf8());
}

void tst_SubControlPage::init()
{
    Recorder::instance().reset();
    Recorder::instance().setRemoteSize(720, 1280);
    m_server->setAnswer(R"({"code": 200, "msg": "", "data": {}})");
    m_window = std::make_unique<QWidget>();
    QCursor::setPos(1000, 900); // over no tile
    m_window->move(0, 0);
    auto *layout = new QHBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    m_page = new SubControlPage;
    layout->addWidget(m_page);
    m_window->resize(775, 660);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCOMPARE(m_page->size(), QSize(775, 660));
}

void tst_SubControlPage::cleanup()
{
    m_window.reset();
}

QList<QPushButton *> tst_SubControlPage::pageButtons() const
{
    return m_page->findChildren<QPushButton *>(QStringLiteral("pageButton"));
}

QStringList tst_SubControlPage::shownTiles() const
{
    QStringList ids;
    for (int i = 0; m_page->controllerAt(i); ++i) {
        if (m_page->controllerAt(i)->isVisible())
            ids.append(m_page->controllerAt(i)->serviceId());
    }
    return ids;
}

// Whatever else may come, comes within the thread's next round.
void tst_SubControlPage::waitForInput(const QStringList &expected) const
{
    QTRY_VERIFY(sentInput().size() >= expected.size());
    QCOMPARE(sentInput(), expected);
}

// They are gone when their callbacks have run.
void tst_SubControlPage::waitForAnswers() const
{
    QTRY_VERIFY(m_page->findChildren<QNetworkReply *>().isEmpty());
}

void tst_SubControlPage::askForRemoval(int index) const
{
    emit m_page->controllerAt(index)->removeController(false);
}

RemoveDeviceDialog *tst_SubControlPage::dialog() const
{
    return m_window->findChild<RemoveDeviceDialog *>();
}

// ---- Grid ----

void tst_SubControlPage::measures()
{
    QCOMPARE(m_page->minimumSize(), QSize(775, 660));
    QCOMPARE(SubControlPage::perPage, 50);
    m_page->setDevices(devices(1));
    QCOMPARE(child<QLabel>("totalLabel")->parentWidget()->height(), 35);
    QCOMPARE(child<QComboBox>("perPageBox")->size(), QSize(100, 25));
    QCOMPARE(child<QComboBox>("perPageBox")->currentText(), QStringLiteral("50/page"));
    QCOMPARE(child<QPushButton>("prevButton")->size(), QSize(25, 25));
    QCOMPARE(child<QPushButton>("nextButton")->size(), QSize(25, 25));
    QCOMPARE(pageButtons().first()->size(), QSize(25, 25));
}

void tst_SubControlPage::oneTileGoesIntoTheCorner()
{
    m_page->setDevices(devices(1));
    const SubController *tile = m_page->controllerAt(0);
    QTRY_COMPARE(tile->mapTo(m_page, QPoint(0, 0)), QPoint(15, 24));
    QCOMPARE(tile->size(), QSize(171, 295));
}

void tst_SubControlPage::fourTilesMakeARow()
{
    m_page->setDevices(devices(6));
    QTRY_COMPARE(m_page->controllerAt(5)->mapTo(m_page, QPoint(0, 0)), QPoint(15 + 171 + 20, 24 + 295 + 22));
    for (int i = 0; i < 6; ++i) {
        const QPoint place(15 + i % 4 * (171 + 20), 24 + i / 4 * (295 + 22));
        QCOMPARE(m_page->controllerAt(i)->mapTo(m_page, QPoint(0, 0)), place);
    }
}

void tst_SubControlPage::tileSizes_data()
{
    QTest::addColumn<QSize>("page");
    QTest::addColumn<QSize>("tile");
    QTest::newRow("smallest") << QSize(775, 660) << QSize(171, 295);
    QTest::newRow("exact") << QSize(890, 870) << QSize(200, 400);
    QTest::newRow("truncated") << QSize(893, 871) << QSize(200, 400);
    QTest::newRow("tiny") << QSize(50, 50) << QSize(0, 0);
}

void tst_SubControlPage::tileSizes()
{
    QFETCH(QSize, page);
    QFETCH(QSize, tile);
    QCOMPARE(SubControlPage::tileSize(page), tile);
}

void tst_SubControlPage::resizingTellsTheTiles()
{
    m_page->setDevices(devices(2));
    QSignalSpy resized(m_page, &SubControlPage::sigResizeSubContoller);
    m_window->resize(893, 871);
    QTRY_COMPARE(m_page->size(), QSize(893, 871));
    QCOMPARE(resized.last().first().toSize(), QSize(200, 400));
    QCOMPARE(m_page->controllerAt(1)->size(), QSize(200, 400));
}

void tst_SubControlPage::scrollBarTakesNoRoom()
{
    m_page->setDevices(devices(49));
    const auto *area = m_page->findChild<QScrollArea *>();
    QTRY_COMPARE(area->widget()->height(), 24 + 13 * 295 + 12 * 22 + 24);
    QCOMPARE(area->viewport()->width(), 775);
    QCOMPARE(m_page->controllerAt(3)->mapTo(m_page, QPoint(0, 0)).x() + 171, 15 + 4 * 171 + 3 * 20);
}

// ---- Pages ----

void tst_SubControlPage::pagesOfFortyNine_data()
{
    QTest::addColumn<int>("tiles");
    QTest::addColumn<int>("pages");
    QTest::addColumn<QString>("total");
    QTest::newRow("none") << 0 << 1 << QStringLiteral("Total 1");
    QTest::newRow("one") << 1 << 1 << QStringLiteral("Total 2");
    QTest::newRow("a page") << 49 << 1 << QStringLiteral("Total 50");
    QTest::newRow("one more") << 50 << 2 << QStringLiteral("Total 51");
    QTest::newRow("two pages") << 98 << 2 << QStringLiteral("Total 99");
    QTest::newRow("three") << 99 << 3 << QStringLiteral("Total 100");
}

void tst_SubControlPage::pagesOfFortyNine()
{
    QFETCH(int, tiles);
    QFETCH(int, pages);
    QFETCH(QString, total);
    m_page->setDevices(devices(tiles));
    QCOMPARE(m_page->pageCount(), pages);
    QCOMPARE(m_page->currentPage(), 1);
    QCOMPARE(pageButtons().size(), pages);
    QCOMPARE(child<QLabel>("totalLabel")->text(), total);
    QCOMPARE(shownTiles().size(), qMin(tiles, 49));
    m_page->onNextPageBtnClicked();
    QCOMPARE(m_page->currentPage(), qMin(2, pages));
}

void tst_SubControlPage::theBarLooksAsThePageSays()
{
    m_page->setDevices(devices(99));
    const auto isCurrent = [this](int page) {
        const QPushButton *button = pageButtons().at(page - 1);
        return button->property("current").toBool() && button->cursor().shape() == Qt::ForbiddenCursor;
    };
    const auto shape = [this](const char *name) { return child<QPushButton>(name)->cursor().shape(); };
    const auto shows = [this](const char *name, const char *icon) {
        const QSize size(16, 16);
        return child<QPushButton>(name)->icon().pixmap(size).toImage()
            == QIcon(QLatin1String(icon)).pixmap(size).toImage();
    };
    QVERIFY(!QIcon(QStringLiteral(":/icon/svg/left.svg")).pixmap(16, 16).isNull());
    QVERIFY(isCurrent(1) && !isCurrent(2) && !isCurrent(3));
    QCOMPARE(shape("prevButton"), Qt::ForbiddenCursor);
    QCOMPARE(shape("nextButton"), Qt::PointingHandCursor);
    QVERIFY(shows("prevButton", ":/icon/svg/left_disabled.svg"));
    QVERIFY(shows("nextButton", ":/icon/svg/right.svg"));

    QTest::mouseClick(pageButtons().at(1), Qt::LeftButton);
    QVERIFY(!isCurrent(1) && isCurrent(2) && !isCurrent(3));
    QCOMPARE(shape("prevButton"), Qt::PointingHandCursor);
    QVERIFY(shows("prevButton", ":/icon/svg/left.svg"));
    QVERIFY(shows("nextButton", ":/icon/svg/right.svg"));
    const QColor accent(255, 155, 122);
    QCOMPARE(pageButtons().at(1)->grab().toImage().pixelColor(12, 3), accent);
    QVERIFY(pageButtons().at(0)->grab().toImage().pixelColor(12, 3) != accent);

    QTest::mouseClick(pageButtons().at(2), Qt::LeftButton);
    QVERIFY(isCurrent(3));
    QCOMPARE(shape("nextButton"), Qt::ForbiddenCursor);
    QVERIFY(shows("nextButton", ":/icon/svg/right_disabled.svg"));
}

void tst_SubControlPage::turnsPages()
{
    m_page->setDevices(devices(99));
    m_page->onPrePageBtnClicked();
    QCOMPARE(m_page->currentPage(), 1);
    QTest::mouseClick(child<QPushButton>("nextButton"), Qt::LeftButton);
    QCOMPARE(m_page->currentPage(), 2);
    QCOMPARE(shownTiles().size(), 49);
    QCOMPARE(shownTiles().first(), QStringLiteral("100050"));
    QTest::mouseClick(child<QPushButton>("nextButton"), Qt::LeftButton);
    QCOMPARE(m_page->currentPage(), 3);
    QCOMPARE(shownTiles(), QStringList{QStringLiteral("100099")});
    m_page->onNextPageBtnClicked();
    QCOMPARE(m_page->currentPage(), 3);
    QTest::mouseClick(child<QPushButton>("prevButton"), Qt::LeftButton);
    QCOMPARE(m_page->currentPage(), 2);
    m_page->onUpdatePageBtn(); // of nobody's button
    QCOMPARE(m_page->currentPage(), 2);
}

void tst_SubControlPage::tilesKeepTheirOrder()
{
    QList<group::GroupDevice> mixed{device(3), device(1), device(2)};
    m_page->setDevices(mixed);
    QCOMPARE(shownTiles(),
        (QStringList{QStringLiteral("100003"), QStringLiteral("100001"), QStringLiteral("100002")}));
}

// ---- Live ----

void tst_SubControlPage::onlyTheShownPageIsLive()
{
    m_page->setDevices(devices(51));
    QVERIFY(m_page->controllerAt(0)->isLive() && m_page->controllerAt(48)->isLive());
    QVERIFY(!m_page->controllerAt(49)->isLive() && !m_page->controllerAt(50)->isLive());
    takeCalls();
    m_page->onNextPageBtnClicked();
    QVERIFY(!m_page->controllerAt(0)->isLive() && m_page->controllerAt(49)->isLive());
    QStringList expected; // the pictures that are waited for come first
    for (int i = 0; i < 2; ++i)
        expected += {QStringLiteral("SWDataSource::setVideoLevel(3)"), castCall(1)};
    for (int i = 0; i < 49; ++i)
        expected += castCall(0);
    const QStringList calls = takeCalls();
    QCOMPARE(calls.filter(QStringLiteral("SWDataSource")), expected);
}

void tst_SubControlPage::nothingIsLiveWhileThePageIsHidden()
{
    m_page->setDevices(devices(2));
    takeCalls();
    m_window->hide();
    QCOMPARE(takeCalls(), (QStringList{castCall(0), castCall(0)}));
    m_page->onPrePageBtnClicked();
    m_page->restartDevice(QStringLiteral("100001"));
    QVERIFY(!m_page->controllerAt(0)->isLive());
    m_window->show();
    QVERIFY(m_page->controllerAt(0)->isLive() && m_page->controllerAt(1)->isLive());
}

void tst_SubControlPage::nothingIsLiveWhileTheWindowIsMinimised()
{
    m_page->setDevices(devices(2));
    m_window->showMinimized();
    QTRY_VERIFY(!m_page->controllerAt(0)->isLive());
    m_window->showNormal();
    QTRY_VERIFY(m_page->controllerAt(0)->isLive());
}

void tst_SubControlPage::theLastPictureStays()
{
    m_page->setDevices(devices(50));
    showDevicePicture(*m_page->controllerAt(0), Qt::red);
    const auto *info = m_page->controllerAt(0)->findChild<QLabel *>(QStringLiteral("infoLabel"));
    QTRY_VERIFY(info->isHidden());
    m_page->onNextPageBtnClicked();
    m_page->onPrePageBtnClicked();
    QVERIFY(info->isHidden());
    QCOMPARE(m_page->controllerAt(0)->grab().toImage().pixelColor(80, 100), QColor(Qt::red));
}

void tst_SubControlPage::remainingTimesFollowTheClock()
{
    QDateTime now(QDate(2026, 3, 1), QTime(12, 0));
    m_page->setClock([&now] { return now; });
    QList<group::GroupDevice> list = devices(50);
    for (group::GroupDevice &each : list)
        each.expireTime = now.addSecs(93784);
    m_page->setDevices(list);
    const auto caption = [this](int index) {
        return m_page->controllerAt(index)->findChild<QLabel *>(QStringLiteral("captionLabel"))->text();
    };
    QVERIFY(caption(0).contains(QStringLiteral("1d 2h 3min 4s")));
    now = now.addSecs(5);
    QTRY_VERIFY(caption(0).contains(QStringLiteral("1d 2h 2min 59s"))); // within a second
    m_page->onNextPageBtnClicked();
    QVERIFY(caption(49).contains(QStringLiteral("1d 2h 2min 59s"))); // at once
}

// ---- Removal ----

void tst_SubControlPage::removalAsks()
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

void tst_SubControlPage::removalCanBeDeclined()
{
    m_page->setDevices(devices(2));
    QSignalSpy removed(m_page, &SubControlPage::removeController);
    askForRemoval(0);
    dialog()->reject();
    QCOMPARE(removed.count(), 0);
    QCOMPARE(m_page->controllerCount(), 2);
}

void tst_SubControlPage::theLastTileStays()
{
    m_page->setDevices(devices(1));
    QSignalSpy removed(m_page, &SubControlPage::removeController);
    askForRemoval(0);
    QVERIFY(!m_window->findChild<OvToast *>());
    dialog()->accept();
    const auto *toast = m_window->findChild<OvToast *>();
    QVERIFY(toast);
    QCOMPARE(toast->text(), LastTileToast);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(shownTiles(), QStringList{QStringLiteral("100001")});
}

void tst_SubControlPage::theLastTileGoesSilently()
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

void tst_SubControlPage::removalOfTheOnlyTileOfTheLastPage()
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

void tst_SubControlPage::removalMovesTheOthersUp()
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

void tst_SubControlPage::removalOfTheLastRow()
{
    m_page->setDevices(devices(13));
    const auto *content = m_page->findChild<QScrollArea *>()->widget();
    QTRY_COMPARE(content->height(), 24 + 4 * 295 + 3 * 22 + 24);
    emit m_page->controllerAt(12)->removeController(true);
    QTRY_COMPARE(content->height(), 24 + 3 * 295 + 2 * 22 + 24);
}

void tst_SubControlPage::removalOfWhatIsNoLongerThere()
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

void tst_SubControlPage::removedTilesGetNoInput()
{
    m_page->setDevices(devices(3));
    takeCalls();
    emit m_page->controllerAt(0)->removeController(true);
    m_page->onFunctionBtnClicked(114);
    m_page->onFunctionBtnClicked(115);
    waitForInput({keyCall(3, 114), keyCall(3, 114), keyCall(3, 115), keyCall(3, 115)});
}

// ---- What the tiles' menus ask for ----

void tst_SubControlPage::promotionNamesTheTile()
{
    m_page->setDevices(devices(2));
    QSignalSpy promoted(m_page, &SubControlPage::setAsMainController);
    emit m_page->controllerAt(1)->setAsMainController();
    QCOMPARE(promoted.count(), 1);
    QCOMPARE(promoted.first().first().value<SubController *>(), m_page->controllerAt(1));
}

void tst_SubControlPage::singleControlNamesTheDevice()
{
    m_page->setDevices(devices(2));
    QSignalSpy opened(m_page, &SubControlPage::openSingleController);
    emit m_page->controllerAt(1)->openSingleController();
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.first(), (QList<QVariant>{QStringLiteral("100002"), QStringLiteral("Device 2")}));
}

void tst_SubControlPage::restartAsksTheService_data()
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

void tst_SubControlPage::restartAsksTheService()
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

void tst_SubControlPage::restartFailsAtTheServer()
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

void tst_SubControlPage::restartsOneStream()
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

void tst_SubControlPage::findsTiles()
{
    m_page->setDevices(devices(2));
    QCOMPARE(m_page->findController(QStringLiteral("100002")), m_page->controllerAt(1));
    QVERIFY(!m_page->findController(QStringLiteral("100003")));
    QVERIFY(!m_page->controllerAt(-1) && !m_page->controllerAt(2));
    delete m_page->controllerAt(0);
    QVERIFY(!m_page->controllerAt(0));
    QVERIFY(!m_page->findController(QStringLiteral("100001")));
}

void tst_SubControlPage::replacesAnEarlierGroup()
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

void tst_SubControlPage::inputGoesToEveryTile()
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

void tst_SubControlPage::inputWithoutDevicesIsDropped()
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

void tst_SubControlPage::inputReachesTilesOfOtherPages()
{
    m_page->setDevices(devices(60));
    takeCalls();
    m_page->onKeyPressEvent(1);
    QTRY_COMPARE(sentInput().count(keyCall(1, 1)), 60);
}

QTEST_MAIN(tst_SubControlPage)
#include "tst_subcontrolpage.moc"
