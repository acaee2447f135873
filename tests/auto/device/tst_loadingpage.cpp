#include "device/LoadingPage.h"

#include <QLabel>
#include <QMovie>
#include <QTest>

class tst_LoadingPage : public QObject
{
    Q_OBJECT

private slots:
    void look();
    void animationRunsWhileVisible();
};

void tst_LoadingPage::look()
{
    LoadingPage page;
    page.resize(340, 600);
    QLabel *text = nullptr;
    QLabel *picture = nullptr;
    const auto labels = page.findChildren<QLabel *>();
    for (QLabel *label : labels)
        (label->movie() ? picture : text) = label;
    QVERIFY(text && picture);
    QCOMPARE(text->text(), QStringLiteral("Initialising"));
    QCOMPARE(text->font().pixelSize(), 14);
    QCOMPARE(text->palette().color(QPalette::WindowText), QColor(0x60, 0x62, 0x66));
    QCOMPARE(picture->movie()->fileName(), QStringLiteral(":/gif/loading.gif"));
    QVERIFY(picture->movie()->isValid());
    QVERIFY(picture->movie()->frameCount() > 1);

    const QImage image = page.grab().toImage();
    QCOMPARE(image.pixelColor(2, 2), QColor(0xF5, 0xF7, 0xFA));
    QCOMPARE(image.pixelColor(337, 597), QColor(0xF5, 0xF7, 0xFA));
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

QTEST_MAIN(tst_LoadingPage)

#include "tst_loadingpage.moc"
