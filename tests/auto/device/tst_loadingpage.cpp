#include "device/LoadingPage.h"

#include <QLabel>
#include <QMovie>
#include <QSignalSpy>
#include <QTest>

class tst_LoadingPage : public QObject
{
    Q_OBJECT

private slots:
    void look();
    void animationRunsWhileVisible();
    void framesHaveTheScreensPixels();
};

void tst_LoadingPage::look()
{
    LoadingPage page;
    page.resize(340, 600);
    const auto *text = page.findChild<QLabel *>(QStringLiteral("text"));
    const auto *picture = page.findChild<QLabel *>(QStringLiteral("picture"));
    const auto *movie = page.findChild<QMovie *>();
    QVERIFY(text && picture && movie);
    QCOMPARE(text->text(), QStringLiteral("Initialising"));
    QCOMPARE(text->font().pixelSize(), 14);
    QCOMPARE(text->palette().color(QPalette::WindowText), QColor(0x60, 0x62, 0x66));
    QCOMPARE(movie->fileName(), QStringLiteral(":/gif/loading.gif"));
    QVERIFY(movie->isValid());
    QVERIFY(movie->frameCount() > 1);

    const QImage image = page.grab().toImage();
    QCOMPARE(image.pixelColor(2, 2), QColor(0xF5, 0xF7, 0xFA));
    QCOMPARE(image.pixelColor(337, 597), QColor(0xF5, 0xF7, 0xFA));
    QCOMPARE(picture->size(), QSize(72, 72));
    QVERIFY(text->y() >= picture->geometry().bottom());
    QVERIFY(qAbs(picture->geometry().center().x() - 170) <= 1);
    QVERIFY(qAbs(text->geometry().center().x() - 170) <= 1);
}

void tst_LoadingPage::animationRunsWhileVisible()
{
    LoadingPage page;
    auto *movie = page.findChild<QMovie *>();
    QVERIFY(movie);
    QCOMPARE(movie->state(), QMovie::NotRunning);
    page.show();
    QCOMPARE(movie->state(), QMovie::Running);
    page.hide();
    QCOMPARE(movie->state(), QMovie::NotRunning);
}

// Also when the page is shown again.
void tst_LoadingPage::framesHaveTheScreensPixels()
{
    LoadingPage page;
    for (int i = 0; i < 2; ++i) {
        page.show();
        const auto *movie = page.findChild<QMovie *>();
        QSignalSpy frames(movie, &QMovie::frameChanged);
        QVERIFY(frames.wait());
        const auto *picture = page.findChild<QLabel *>(QStringLiteral("picture"));
        QVERIFY(picture);
        const QPixmap frame = picture->pixmap(Qt::ReturnByValue);
        QCOMPARE(frame.devicePixelRatio(), page.devicePixelRatioF());
        QCOMPARE(frame.size(), QSize(72, 72) * page.devicePixelRatioF());
        page.hide();
    }
}

QTEST_MAIN(tst_LoadingPage)

#include "tst_loadingpage.moc"
