// What the video view paints and saves.

#include "stream/VideoView.h"

#include <Recorder.h>

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

namespace {

constexpr int FrameWidth = 720;
constexpr int FrameHeight = 1280;

// Corners of four colours: red and green above, blue and yellow below. `alpha` is what the decoder leaves in
// the fourth byte.
QImage cornerPicture(int alpha = 255)
{
    QImage image(FrameWidth, FrameHeight, QImage::Format_ARGB32);
    const auto fill = [&](const QRect &rect, const QColor &colour) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x)
                image.setPixel(x, y, qRgba(colour.red(), colour.green(), colour.blue(), alpha));
        }
    };
    fill({0, 0, 360, 640}, Qt::red);
    fill({360, 0, 360, 640}, Qt::green);
    fill({0, 640, 360, 640}, Qt::blue);
    fill({360, 640, 360, 640}, Qt::yellow);
    return image;
}

int show(VideoView &view, const QImage &image)
{
    return showPicture(
        view, reinterpret_cast<const std::uint32_t *>(image.constBits()), image.width(), image.height());
}

// The colours near the corners: top left, top right, bottom left, bottom right.
QList<QColor> corners(const QImage &image)
{
    const int right = image.width() - 5;
    const int bottom = image.height() - 5;
    return {image.pixelColor(4, 4), image.pixelColor(right, 4), image.pixelColor(4, bottom),
        image.pixelColor(right, bottom)};
}

const QList<QColor> PortraitCorners = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
const QList<QColor> LandscapeCorners = {Qt::green, Qt::yellow, Qt::red, Qt::blue};

// On a screen whose pixels the test chooses.
class ScaledView : public VideoView
{
public:
    double scale = 1;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        if (metric == PdmDevicePixelRatioScaled)
            return qRound(scale * devicePixelRatioFScale());
        return VideoView::metric(metric);
    }
};

void moveToAnotherScreen(QWidget &view)
{
    QEvent moved(QEvent::ScreenChangeInternal); // as the window tells all of its widgets
    QApplication::sendEvent(&view, &moved);
}

// Counts paint events.
class CountingView : public VideoView
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        VideoView::paintEvent(event);
    }
};

} // namespace

class tst_VideoViewPictures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void whiteWithoutPicture();
    void portraitFillsTheWidget();
    void landscapeIsTurned();
    void alphaIsOpaque();
    void edgesAreCoveredOnHighDpi();
    void scalingIsSmooth();
    void newestPictureIsPainted();
    void arrivalsAreCoalesced();
    void hiddenViewIsNotUpdated();
    void pictureOfOtherSizeIsRefused();
    void fitsPicturesOnAnotherScreen();
    void keepsThePictureSizeOnAnotherScreen();
    void picture_data();
    void picture();
    void screenshot_data();
    void screenshot();
    void screenshotThatCannotBeSaved();
    void screenshotWithoutPicture();

private:
    std::unique_ptr<CountingView> m_view;
};

void tst_VideoViewPictures::init()
{
    m_view = std::make_unique<CountingView>();
    m_view->setDstFormat(-1, FrameWidth, FrameHeight, 0);
    m_view->resize(340, 600);
}

void tst_VideoViewPictures::whiteWithoutPicture()
{
    const QImage image = m_view->grab().toImage();
    QCOMPARE(image.size(), QSize(340, 600));
    for (const QPoint &point : {QPoint(0, 0), QPoint(170, 300), QPoint(339, 599)})
        QCOMPARE(image.pixelColor(point), QColor(Qt::white));
}

void tst_VideoViewPictures::portraitFillsTheWidget()
{
    QCOMPARE(show(*m_view, cornerPicture()), 0);
    const QImage image = m_view->grab().toImage();
    QCOMPARE(corners(image), PortraitCorners);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(339, 599), QColor(Qt::yellow));
    QCOMPARE(image.pixelColor(160, 290), QColor(Qt::red));
    QCOMPARE(image.pixelColor(180, 310), QColor(Qt::yellow));
}

void tst_VideoViewPictures::landscapeIsTurned()
{
    m_view->setOrientation(ScreenOrientation::Landscape);
    QCOMPARE(m_view->size(), QSize(600, 340));
    show(*m_view, cornerPicture());
    const QImage image = m_view->grab().toImage();
    QCOMPARE(corners(image), LandscapeCorners);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(image.pixelColor(599, 339), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(599, 0), QColor(Qt::yellow));
    QCOMPARE(image.pixelColor(0, 339), QColor(Qt::red));
}

void tst_VideoViewPictures::alphaIsOpaque()
{
    show(*m_view, cornerPicture(0));
    QCOMPARE(corners(m_view->grab().toImage()), PortraitCorners);
}

void tst_VideoViewPictures::edgesAreCoveredOnHighDpi()
{
    show(*m_view, cornerPicture());
    for (const auto orientation : {ScreenOrientation::Portrait, ScreenOrientation::Landscape}) {
        if (m_view->orientation() != orientation)
            m_view->setOrientation(orientation);
        QPixmap pixmap(m_view->size() * 1.5);
        pixmap.setDevicePixelRatio(1.5);
        pixmap.fill(Qt::magenta);
        m_view->render(&pixmap);
        const bool portrait = orientation == ScreenOrientation::Portrait;
        QCOMPARE(corners(pixmap.toImage()), portrait ? PortraitCorners : LandscapeCorners);
    }
}

// A pattern of single black and white lines, drawn smaller, turns grey.
void tst_VideoViewPictures::scalingIsSmooth()
{
    QImage lines(FrameWidth, FrameHeight, QImage::Format_RGB32);
    for (int y = 0; y < FrameHeight; ++y) {
        for (int x = 0; x < FrameWidth; ++x)
            lines.setPixel(x, y, y % 2 != 0 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    }
    m_view->resize(500, 900);
    show(*m_view, lines);
    const QImage image = m_view->grab().toImage();
    int grey = 0;
    for (int y = 0; y < image.height(); ++y) {
        const int value = qGray(image.pixel(250, y));
        grey += value > 20 && value < 235 ? 1 : 0;
    }
    QVERIFY2(grey > image.height() / 2, qPrintable(QString::number(grey)));
}

void tst_VideoViewPictures::newestPictureIsPainted()
{
    show(*m_view, cornerPicture());
    QImage blue(FrameWidth, FrameHeight, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    show(*m_view, blue);
    QCOMPARE(m_view->grab().toImage().pixelColor(4, 4), QColor(Qt::blue));
}

// However many pictures arrive before the event loop runs, the view is painted once.
void tst_VideoViewPictures::arrivalsAreCoalesced()
{
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    QCoreApplication::processEvents();
    const QImage image = cornerPicture();
    m_view->paints = 0;
    std::thread sdk([this, &image] {
        for (int i = 0; i < 50; ++i)
            show(*m_view, image);
    });
    sdk.join();
    QCOMPARE(m_view->paints, 0);
    QTRY_COMPARE(m_view->paints, 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_view->paints, 1);
    // And the next one is not lost.
    std::thread again([this, &image] { show(*m_view, image); });
    again.join();
    QTRY_COMPARE(m_view->paints, 2);
}

void tst_VideoViewPictures::hiddenViewIsNotUpdated()
{
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_view->hide();
    QCoreApplication::processEvents();
    m_view->paints = 0;
    const QImage image = cornerPicture();
    std::thread sdk([this, &image] { show(*m_view, image); });
    sdk.join();
    QVERIFY(!m_view->testAttribute(Qt::WA_PendingUpdate));
    QCoreApplication::processEvents();
    QCOMPARE(m_view->paints, 0);
    m_view->show();
    QTRY_VERIFY(m_view->paints > 0);
    QCOMPARE(corners(m_view->grab().toImage()), PortraitCorners);
}

void tst_VideoViewPictures::pictureOfOtherSizeIsRefused()
{
    QImage small(10, 10, QImage::Format_RGB32);
    small.fill(Qt::red);
    QVERIFY(show(*m_view, small) < 0);
    QCOMPARE(m_view->grab().toImage().pixelColor(4, 4), QColor(Qt::white));
}

// With the same size in device-independent pixels.
void tst_VideoViewPictures::fitsPicturesOnAnotherScreen()
{
    ScaledView view;
    view.resize(90, 160);
    view.fitPicturesToView();
    QImage blue(90, 160, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    QCOMPARE(show(view, blue), 0);
    view.scale = 2;
    moveToAnotherScreen(view);
    QImage green(180, 320, QImage::Format_RGB32);
    green.fill(Qt::green);
    QCOMPARE(show(view, green), 0);
    QCOMPARE(view.picture().size(), QSize(180, 320));
    QVERIFY(show(view, blue) < 0);
}

void tst_VideoViewPictures::keepsThePictureSizeOnAnotherScreen()
{
    moveToAnotherScreen(*m_view);
    QCOMPARE(show(*m_view, cornerPicture()), 0);
    QCOMPARE(m_view->picture().size(), QSize(FrameWidth, FrameHeight));
}

void tst_VideoViewPictures::picture_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("portrait");
    QTest::newRow("portrait") << ScreenOrientation::Portrait << QSize(720, 1280) << true;
    QTest::newRow("landscape") << ScreenOrientation::Landscape << QSize(1280, 720) << false;
}

void tst_VideoViewPictures::picture()
{
    QFETCH(ScreenOrientation, orientation);
    QFETCH(QSize, size);
    QFETCH(bool, portrait);
    QVERIFY(m_view->picture().isNull());
    m_view->setOrientation(orientation);
    show(*m_view, cornerPicture());
    const QImage image = m_view->picture();
    QCOMPARE(image.size(), size);
    QCOMPARE(corners(image), portrait ? PortraitCorners : LandscapeCorners);
    // Its own pixels: the next picture does not change it.
    QImage blue(FrameWidth, FrameHeight, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    show(*m_view, blue);
    m_view->grab();
    QCOMPARE(corners(image), portrait ? PortraitCorners : LandscapeCorners);
}

void tst_VideoViewPictures::screenshot_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");
    QTest::newRow("png") << "shot.png"
                         << "shot.png";
    QTest::newRow("jpg") << "shot.jpg"
                         << "shot.jpg";
    QTest::newRow("no ending") << "shot"
                               << "shot.png";
}

void tst_VideoViewPictures::screenshot()
{
    QFETCH(QString, typed);
    QFETCH(QString, saved);
    QTemporaryDir folder;
    show(*m_view, cornerPicture());
    m_view->show();
    m_view->onScreenCaptureBtnClicked();
    auto *dialog = m_view->findChild<QFileDialog *>();
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Save File"));
    QCOMPARE(dialog->nameFilters(), QStringList("Image(*.jpg *.png)"));
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    QVERIFY(dialog->selectedFiles().value(0).contains(QStringLiteral("Screen capture")));
    // What comes while the dialog is open is not what the user asked for.
    QImage blue(FrameWidth, FrameHeight, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    show(*m_view, blue);

    dialog->selectFile(QDir(folder.path()).filePath(typed));
    QSignalSpy closed(dialog, &QObject::destroyed);
    QMetaObject::invokeMethod(dialog, "accept");
    QTRY_COMPARE(closed.count(), 1);
    const QImage image(QDir(folder.path()).filePath(saved));
    QCOMPARE(image.size(), QSize(FrameWidth, FrameHeight));
    QVERIFY(image.pixelColor(4, 4).red() > 240 && image.pixelColor(4, 4).blue() < 20);
}

void tst_VideoViewPictures::screenshotThatCannotBeSaved()
{
    QTemporaryDir folder;
    show(*m_view, cornerPicture());
    m_view->show();
    m_view->onScreenCaptureBtnClicked();
    auto *dialog = m_view->findChild<QFileDialog *>();
    QVERIFY(dialog);
    const QString impossible = QDir(folder.path()).filePath(QStringLiteral("shot.unknown"));
    QTest::ignoreMessage(
        QtWarningMsg, qPrintable(QStringLiteral("the picture could not be saved as %1").arg(impossible)));
    emit dialog->fileSelected(impossible);
    auto *box = m_view->findChild<QMessageBox *>();
    QVERIFY(box);
    QCOMPARE(box->text(), QStringLiteral("The picture could not be saved."));
}

void tst_VideoViewPictures::screenshotWithoutPicture()
{
    QTest::ignoreMessage(QtWarningMsg, "there is no picture yet to save");
    m_view->onScreenCaptureBtnClicked();
    QVERIFY(!m_view->findChild<QFileDialog *>());
}

QTEST_MAIN(tst_VideoViewPictures)

#include "tst_videoviewpictures.moc"
