// The menu over a tile, by itself.

#include "GroupWindowFixture.h"

#include "group/TileMenu.h"

#include <QPushButton>
#include <QSignalSpy>

using namespace grouptest;

class TestTileMenu : public QObject
{
    Q_OBJECT

private slots:
    void doubleClickAsksOnce_data();
    void doubleClickAsksOnce();
    void clicksInARowAskEach();
    void doubleClickOfAnotherButton();
};

void TestTileMenu::doubleClickAsksOnce_data()
{
    QTest::addColumn<QString>("entry");
    for (const char *entry : {"setAsMainButton", "restartButton", "removeButton", "singleControlButton"})
        QTest::newRow(entry) << QString::fromLatin1(entry);
}

// A promotion done twice would be none, and a device would restart twice.
void TestTileMenu::doubleClickAsksOnce()
{
    QFETCH(QString, entry);
    QWidget tile;
    TileMenu menu(&tile);
    tile.show();
    QSignalSpy promotions(&menu, &TileMenu::setAsMainClicked);
    QSignalSpy restarts(&menu, &TileMenu::restartClicked);
    QSignalSpy removals(&menu, &TileMenu::removeClicked);
    QSignalSpy openings(&menu, &TileMenu::singleControlClicked);
    auto *button = menu.findChild<QPushButton *>(entry);
    doubleClick(button);
    QVERIFY(!button->isDown());
    QCOMPARE(promotions.size() + restarts.size() + removals.size() + openings.size(), 1);
}

void TestTileMenu::clicksInARowAskEach()
{
    QWidget tile;
    TileMenu menu(&tile);
    tile.show();
    QSignalSpy promotions(&menu, &TileMenu::setAsMainClicked);
    auto *button = menu.findChild<QPushButton *>(QStringLiteral("setAsMainButton"));
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(promotions.size(), 2);
    // The release of a double click may be lost, with the window that it hides.
    QTest::mouseDClick(button, Qt::LeftButton);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(promotions.size(), 3);
}

void TestTileMenu::doubleClickOfAnotherButton()
{
    QWidget tile;
    TileMenu menu(&tile);
    tile.show();
    QSignalSpy restarts(&menu, &TileMenu::restartClicked);
    auto *button = menu.findChild<QPushButton *>(QStringLiteral("restartButton"));
    QMouseEvent right(QEvent::MouseButtonDblClick, button->rect().center(), Qt::RightButton, Qt::RightButton,
        Qt::NoModifier);
    QApplication::sendEvent(button, &right);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(restarts.size(), 1);
}

QTEST_MAIN(TestTileMenu)
#include "tst_tilemenu.moc"
