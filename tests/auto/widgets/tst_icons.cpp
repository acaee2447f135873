#include <QColor>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>

// The pictures that the widgets and windows take from the resources.
class TestIcons : public QObject
{
    Q_OBJECT

private slots:
    void icons_data();
    void icons();
    void family();
    void auxiliaryKeys_data();
    void auxiliaryKeys();
    void standby();
};

void TestIcons::icons_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path : {":/icon/svg/emitHome.svg", ":/icon/svg/volumeUp.svg",
             ":/icon/svg/volumeDown.svg", ":/icon/svg/snapshot.svg", ":icon/svg/switchScreen.svg",
             ":icon/svg/key.svg", ":icon/svg/useLastConfig.svg", ":/icon/svg/switchScreen.svg",
             ":/icon/svg/key.svg", ":/icon/svg/useLastConfig.svg", ":/icon/svg/arrowDown.svg",
             ":/icon/svg/addConfig.svg", ":/icon/svg/refreshConfigList.svg", ":icon/svg/option_click.svg",
             ":icon/svg/option_walking.svg", ":icon/svg/option_crosshair.svg", ":/icon/svg/optionEdit.svg",
             ":/icon/svg/optionShare.svg", ":/icon/svg/optionCopy.svg", ":/icon/svg/optionDelete.svg"})
        QTest::newRow(path) << QString::fromLatin1(path);
}

void TestIcons::icons()
{
    QFETCH(QString, path);
    QSvgRenderer drawing(path);
    QVERIFY(drawing.isValid());
    QCOMPARE(drawing.viewBox(), QRect(0, 0, 24, 24));
    const QImage image = QIcon(path).pixmap(104, 104).toImage();
    QCOMPARE(image.size(), QSize(104, 104));
    int painted = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isPainted = image.pixelColor(x, y).alpha() > 0;
            painted += isPainted ? 1 : 0;
            // Nothing touches the border, where it would be cut.
            QVERIFY(!isPainted || (x > 4 && y > 4 && x < 99 && y < 99));
        }
    }
    QVERIFY(painted > 250);
    QVERIFY(painted < 104 * 104 / 3); // lines, not areas
}

// One pen for all, so that they look as one set.
void TestIcons::family()
{
    for (const char *name : {"emitHome", "volumeUp", "volumeDown", "snapshot", "switchScreen", "key",
             "useLastConfig", "addConfig", "refreshConfigList", "option_click", "option_walking",
             "option_crosshair", "optionEdit", "optionShare", "optionCopy", "optionDelete"}) {
        QFile file(QStringLiteral(":/icon/svg/%1.svg").arg(QLatin1String(name)));
        QVERIFY2(file.open(QFile::ReadOnly), name);
        QVERIFY2(file.readAll().contains(
                     "fill=\"none\" stroke=\"#E5E7ED\" stroke-width=\"1.5\" stroke-linecap=\"round\" "
                     "stroke-linejoin=\"round\">"),
            name);
    }
}

void TestIcons::auxiliaryKeys_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("fillsItsPlace");
    for (const char *path : {":/icon/svg/auxiliary_click.svg", ":/icon/svg/auxiliary_walking.svg",
             ":/icon/svg/auxiliary_crosshair.svg"})
        QTest::newRow(path) << QString::fromLatin1(path) << true;
    for (const char *path : {":/icon/svg/auxiliary_delete", ":/icon/svg/auxiliary_edit",
             ":/icon/svg/auxiliarykey_close", ":/icon/svg/auxiliarykey_confirm"})
        QTest::newRow(path) << QString::fromLatin1(path) << false;
}

// The pictures over the video and of the notes' popup: drawn in the family's pen. The keys' fill their place.
void TestIcons::auxiliaryKeys()
{
    QFETCH(QString, path);
    QFETCH(bool, fillsItsPlace);
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray source = file.readAll();
    QVERIFY(source.contains("stroke-width=\"1.5\" stroke-linecap=\"round\" stroke-linejoin=\"round\">"));
    QSvgRenderer drawing(source);
    QVERIFY(drawing.isValid());
    QCOMPARE(drawing.viewBox(), QRect(0, 0, 24, 24));
    QImage image(104, 104, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    int painted = 0;
    bool isAtBorder = false;
    for (int i = 0; i < 104 * 104; ++i) {
        const QPoint pixel(i % 104, i / 104);
        const bool isPainted = image.pixelColor(pixel).alpha() > 0;
        painted += isPainted ? 1 : 0;
        isAtBorder = isAtBorder
            || (isPainted && (pixel.x() < 5 || pixel.y() < 5 || pixel.x() > 98 || pixel.y() > 98));
    }
    QCOMPARE(isAtBorder, fillsItsPlace);
    QVERIFY(painted > 250);
}

// Shown with 93 pixels, also on screens scaled by 2 and more.
void TestIcons::standby()
{
    const QImage image(QStringLiteral(":/icon/image/standby.png"));
    QVERIFY(image.width() >= 280);
    QCOMPARE(image.width(), image.height());
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1).alpha(), 0);
    QCOMPARE(image.pixelColor(image.rect().center()).alpha(), 255);
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
