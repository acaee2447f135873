// The page of a group's controlled devices: its grid and bar, and who is live.

#include "SubControlPageFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QSignalSpy>

using namespace grouptest;

namespace {

// Whether anything painted there is of this colour, but for a little blur at its edges.
bool hasColour(const QImage &image, const QColor &colour)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (qAbs(pixel.red() - colour.red()) < 12 && qAbs(pixel.green() - colour.green()) < 12
                && qAbs(pixel.blue() - colour.blue()) < 12)
                return true;
        }
    }
    return false;
}

} // namespace

class tst_SubControlPage : public SubControlPageFixture
{
    Q_OBJECT

private slots:
    void metaObject();
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
    void coloursOfTheBar();
    void turnsPages();
    void anotherPageBeginsAtItsTop();
    void otherDevicesBeginAtTheTop();
    void tilesKeepTheirOrder();

    void onlyTheShownPageIsLive();
    void nothingIsLiveWhileThePageIsHidden();
    void nothingIsLiveWhileTheWindowIsMinimised();
    void theLastPictureStays();
    void remainingTimesFollowTheClock();
};

void tst_SubControlPage::metaObject()
{
    QCOMPARE(ownMethods(SubControlPage::staticMetaObject, QMetaMethod::Signal),
        (QStringList{QStringLiteral("subControlTouchEvent(int,float,float)"),
            QStringLiteral("functionBtnClicked(int)"),
            QStringLiteral("openSingleController(QString,QString)"),
            QStringLiteral("setAsMainController(SubController*)"),
            QStringLiteral("removeController(QString)"), QStringLiteral("sigResizeSubContoller(QSize)")}));
    QCOMPARE(ownMethods(SubControlPage::staticMetaObject, QMetaMethod::Slot),
        (QStringList{QStringLiteral("onPrePageBtnClicked()"), QStringLiteral("onNextPageBtnClicked()"),
            QStringLiteral("onSetAsMainController()"), QStringLiteral("onRestartController()"),
            QStringLiteral("onRemoveController(bool)"), QStringLiteral("onOpenSingleController()"),
            QStringLiteral("onSubControlTouchEvent(int,float,float)"),
            QStringLiteral("onInputEvent(QString)"), QStringLiteral("onFunctionBtnClicked(int)"),
            QStringLiteral("onKeyPressEvent(int)"), QStringLiteral("onKeyReleaseEvent(int)"),
            QStringLiteral("onUpdatePageBtn()")}));
    const QMetaObject &meta = SubControlPage::staticMetaObject;
    const QMetaMethod removal = meta.method(meta.indexOfSlot("onRemoveController(bool)"));
    QCOMPARE(removal.parameterNames(), QByteArrayList{"slient"}); // the name that the callers know
}

// ---- Grid ----

void tst_SubControlPage::measures()
{
    QCOMPARE(m_page->minimumSize(), QSize(775, 660));
    QCOMPARE(SubControlPage::perPage, 50);
    // The bar has its texts before the first devices.
    QCOMPARE(child<QComboBox>("perPageBox")->currentText(), QStringLiteral("50/page"));
    QCOMPARE(child<QLabel>("totalLabel")->text(), QStringLiteral("Total 1"));
    QCOMPARE(child<QPushButton>("prevButton")->accessibleName(), QStringLiteral("Previous page"));
    QCOMPARE(child<QPushButton>("nextButton")->accessibleName(), QStringLiteral("Next page"));
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

void tst_SubControlPage::coloursOfTheBar()
{
    m_page->setDevices(devices(99));
    auto *total = child<QLabel>("totalLabel");
    QCOMPARE(total->palette().color(QPalette::WindowText), QColor(217, 108, 108));
    QVERIFY(hasColour(total->grab().toImage(), QColor(217, 108, 108)));
    QCOMPARE(total->parentWidget()->layout()->spacing(), 8);
    const QList<QPushButton *> pages = pageButtons();
    QTRY_COMPARE(pages.at(1)->x() - pages.at(0)->x(), 25 + 8);
    QCOMPARE(pages.at(0)->x() - child<QPushButton>("prevButton")->x(), 25 + 8);
    QCOMPARE(child<QPushButton>("nextButton")->x() - pages.at(2)->x(), 25 + 8);
    QVERIFY(hasColour(pages.at(0)->grab().toImage(), Qt::white));
    QVERIFY(!hasColour(pages.at(1)->grab().toImage(), Qt::white));
    QCOMPARE(pages.at(0)->cursor().shape(), Qt::ForbiddenCursor);
    QCOMPARE(pages.at(1)->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(pages.at(2)->cursor().shape(), Qt::PointingHandCursor);
    // The text takes the selected style with it.
    QTest::mouseClick(pages.at(1), Qt::LeftButton);
    QVERIFY(!hasColour(pages.at(0)->grab().toImage(), Qt::white));
    QVERIFY(hasColour(pages.at(1)->grab().toImage(), Qt::white));
    QCOMPARE(pages.at(0)->cursor().shape(), Qt::PointingHandCursor);
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

void tst_SubControlPage::anotherPageBeginsAtItsTop()
{
    m_page->setDevices(devices(99));
    QScrollBar &bar = scrollBar();
    QTRY_VERIFY(bar.maximum() > 0);
    bar.setValue(bar.maximum());
    m_page->onNextPageBtnClicked();
    QTest::qWait(0); // the rows are laid out
    QVERIFY(bar.maximum() > 0);
    QCOMPARE(bar.value(), 0);
    // The button of the page that is shown turns to no other page.
    bar.setValue(100);
    pageButtons().at(1)->click();
    QTest::qWait(0);
    QCOMPARE(bar.value(), 100);
}

void tst_SubControlPage::otherDevicesBeginAtTheTop()
{
    m_page->setDevices(devices(49));
    QScrollBar &bar = scrollBar();
    QTRY_VERIFY(bar.maximum() > 0);
    bar.setValue(bar.maximum());
    m_page->setDevices(devices(49));
    QTest::qWait(0);
    QCOMPARE(bar.value(), 0);
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

QTEST_MAIN(tst_SubControlPage)
#include "tst_subcontrolpage.moc"
