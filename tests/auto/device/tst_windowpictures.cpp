// What an open device window looks like. With ORVANE_PICTURES set to a folder, a picture of each state is
// left there; the names carry QT_SCALE_FACTOR.

#include "DeviceWindowFixture.h"

#include "app/TranslateManager.h"
#include "device/MenuBar.h"
#include "device/MenuButton.h"
#include "device/QualityBox.h"
#include "device/StandbyTimer.h"
#include "device/StandbyWidget.h"
#include "widgets/OvBubble.h"
#include "widgets/OvToast.h"

#include <QAbstractItemView>
#include <QDir>
#include <QPushButton>
#include <QScreen>

using namespace devicetest;

class TestWindowPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void loading();
    void video_data();
    void video();
    void qualityList();
    void toastAndBubble();
    void standbyTextsFit_data();
    void standbyTextsFit();

private:
    void save(const QString &name, bool ofScreen = false) const;
    void turn(ScreenOrientation orientation);

    std::unique_ptr<Fixture> m_fixture;
};

void TestWindowPictures::initTestCase()
{
    m_fixture = std::make_unique<Fixture>();
    QVERIFY(m_fixture->server.isListening());
    TranslateManager::instance()->setTranslationDir(QStringLiteral(COMPILED_TRANSLATIONS));
}

void TestWindowPictures::init()
{
    m_fixture->makeWindow();
}

void TestWindowPictures::cleanup()
{
    m_fixture->window.reset();
}

void TestWindowPictures::cleanupTestCase()
{
    TranslateManager::instance()->onLanguegeChanged(QStringLiteral("hi_IN")); // the source texts
}

// Pictures of other windows over it are taken from the screen.
void TestWindowPictures::save(const QString &name, bool ofScreen) const
{
    const QString folder = qEnvironmentVariable("ORVANE_PICTURES");
    if (folder.isEmpty())
        return;
    const SingleController &window = *m_fixture->window;
    const QPixmap picture = ofScreen
        ? window.screen()->grabWindow(0, window.x() - 300, window.y(), window.width() + 300, window.height())
        : m_fixture->window->grab();
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    QVERIFY(picture.save(QDir(folder).filePath(QStringLiteral("%1@%2.png").arg(name, scale))));
}

void TestWindowPictures::turn(ScreenOrientation orientation)
{
    if (m_fixture->window->orientation() != orientation)
        m_fixture->window->onScreenRotateBtnClicked();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void TestWindowPictures::loading()
{
    m_fixture->window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_fixture->window.get()));
    save(QStringLiteral("loading"));
    QCOMPARE(m_fixture->window->grab().toImage().pixelColor(30, 100), QColor(0xF5, 0xF7, 0xFA));
}

void TestWindowPictures::video_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<QList<QColor>>("corners"); // top left, top right, bottom left, bottom right
    const QList<QColor> upright = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
    const QList<QColor> lying = {Qt::green, Qt::yellow, Qt::red, Qt::blue};
    QTest::newRow("portrait") << ScreenOrientation::Portrait << false << upright;
    QTest::newRow("landscape") << ScreenOrientation::Landscape << false << lying;
    QTest::newRow("portrait-maximised") << ScreenOrientation::Portrait << true << upright;
    QTest::newRow("landscape-maximised") << ScreenOrientation::Landscape << true << lying;
}

void TestWindowPictures::video()
{
    QFETCH(ScreenOrientation, orientation);
    QFETCH(bool, maximized);
    QFETCH(QList<QColor>, corners);
    QVERIFY(m_fixture->open());
    showDevicePicture(*m_fixture->video());
    m_fixture->window->onPlayInfo(R"({"delayTime": 42})");
    turn(orientation);
    if (maximized)
        m_fixture->window->onMaximizeShortcutActivated();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    save(QString::fromLatin1(QTest::currentDataTag()));

    const VideoView &video = *m_fixture->video();
    const QImage image = m_fixture->window->grab().toImage();
    const QRect area(video.mapTo(m_fixture->window.get(), QPoint(0, 0)), video.size());
    const QRect inner = area.adjusted(4, 4, -4, -4);
    const QPoint points[] = {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(image.pixelColor(points[i] * image.devicePixelRatio()), corners[i]);
    // Each point of the bar is the bar's.
    const auto *bar = m_fixture->child<MenuBar>();
    const QPoint barCorner = bar->mapTo(m_fixture->window.get(), QPoint(bar->width() - 3, bar->height() - 3));
    QCOMPARE(image.pixelColor(barCorner * image.devicePixelRatio()), QColor(68, 68, 68));

    emit m_fixture->child<StandbyTimer>()->sigExpired();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QVERIFY(m_fixture->child<StandbyWidget>()->isVisible());
    save(QStringLiteral("standby-") + QString::fromLatin1(QTest::currentDataTag()));
}

void TestWindowPictures::qualityList()
{
    QVERIFY(m_fixture->open());
    showDevicePicture(*m_fixture->video());
    auto *box = m_fixture->child<QualityBox>();
    box->showPopup();
    QTRY_VERIFY(box->view()->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));
    save(QStringLiteral("quality"), true);
    for (int i = 0; i < box->count(); ++i) { // none is cut
        const int room = box->view()->visualRect(box->model()->index(i, 0)).width();
        QVERIFY(box->view()->fontMetrics().horizontalAdvance(box->itemText(i)) < room);
    }
    box->hidePopup();
}

void TestWindowPictures::toastAndBubble()
{
    QVERIFY(m_fixture->open());
    showDevicePicture(*m_fixture->video());
    auto *toast = new OvToast(m_fixture->window.get());
    toast->show(QStringLiteral("The text is too long to paste."), 60);
    QTRY_COMPARE(toast->windowOpacity(), 1.0);
    const MenuButton *button = m_fixture->child<MenuBar>()->buttons().at(4);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(const_cast<MenuButton *>(button), &enter);
    QVERIFY(QTest::qWaitForWindowExposed(button->bubble()));
    save(QStringLiteral("toast-and-bubble"), true);
}

void TestWindowPictures::standbyTextsFit_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<QString>("language");
    for (const auto *language : {"en", "de", "ar", "th", "ru", "bn", "cn", "vi"}) {
        QTest::addRow("portrait-%s", language)
            << ScreenOrientation::Portrait << QString::fromLatin1(language);
        QTest::addRow("landscape-%s", language)
            << ScreenOrientation::Landscape << QString::fromLatin1(language);
    }
}

// Whole, one below the other, and on the page.
void TestWindowPictures::standbyTextsFit()
{
    QFETCH(ScreenOrientation, orientation);
    QFETCH(QString, language);
    QVERIFY(m_fixture->open());
    showDevicePicture(*m_fixture->video());
    turn(orientation);
    emit m_fixture->child<StandbyTimer>()->sigExpired();
    TranslateManager::instance()->onLanguegeChanged(language);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    save(QStringLiteral("standby-") + QString::fromLatin1(QTest::currentDataTag()));

    const auto *page = m_fixture->child<StandbyWidget>();
    QRect above;
    for (const char *name : {"picture", "titleText", "leavingText"}) {
        const auto *label = page->findChild<QLabel *>(QString::fromLatin1(name));
        QVERIFY(page->rect().contains(label->geometry()));
        QVERIFY2(label->height() >= label->heightForWidth(label->width()), name);
        QVERIFY(label->y() > above.bottom());
        above = label->geometry();
    }
    for (const char *name : {"resumeButton", "exitButton"}) {
        const auto *button = page->findChild<QPushButton *>(QString::fromLatin1(name));
        QVERIFY(page->rect().contains(button->geometry()));
        QVERIFY(QFontMetrics(button->font()).horizontalAdvance(button->text()) <= button->width());
        for (const char *other : {"picture", "titleText", "leavingText"})
            QVERIFY(!page->findChild<QLabel *>(QString::fromLatin1(other))
                         ->geometry()
                         .intersects(button->geometry()));
    }
}

QTEST_MAIN(TestWindowPictures)
#include "tst_windowpictures.moc"
