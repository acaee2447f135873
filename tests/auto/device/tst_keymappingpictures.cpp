// What the device window looks like while the key mapping is edited and used. With ORVANE_PICTURES set to a
// folder, a picture of each state is left there; the names carry QT_SCALE_FACTOR.

#include "KeyMappingFixture.h"

#include "app/TranslateManager.h"
#include "keymap/OvAuxiliaryKeyEditor.h"
#include "keymap/ShareConfigDlg.h"
#include "widgets/OvComboBoxEditableItem.h"
#include "widgets/OvSlider.h"

#include <QAbstractItemView>
#include <QDir>
#include <QScreen>

using namespace devicetest;

class TestKeyMappingPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_fixture->window.reset(); }
    void cleanupTestCase();
    void editing_data();
    void editing();
    void playing_data();
    void playing();
    void dialogs_data();
    void dialogs();
    void menuHasRoom_data();
    void menuHasRoom();

private:
    KeyMappingFixture &f() const { return *m_fixture; }
    void turn(ScreenOrientation orientation) const;
    void save(const QString &name, bool ofScreen = false) const;
    // Whether a key is seen in its upper part, above its letters and beside its buttons.
    bool isSeen(OvAuxiliaryKey *key) const;

    std::unique_ptr<KeyMappingFixture> m_fixture;
};

void TestKeyMappingPictures::initTestCase()
{
    m_fixture = std::make_unique<KeyMappingFixture>();
    TranslateManager::instance()->setTranslationDir(QStringLiteral(COMPILED_TRANSLATIONS));
}

void TestKeyMappingPictures::init()
{
    QVERIFY(f().openWindow());
    showDevicePicture(*f().video());
}

void TestKeyMappingPictures::cleanupTestCase()
{
    TranslateManager::instance()->onLanguegeChanged(QStringLiteral("hi_IN")); // the source texts
}

void TestKeyMappingPictures::turn(ScreenOrientation orientation) const
{
    if (f().window->orientation() != orientation)
        f().window->onScreenRotateBtnClicked();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

// Pictures with windows beside are taken from the screen.
void TestKeyMappingPictures::save(const QString &name, bool ofScreen) const
{
    const QString folder = qEnvironmentVariable("ORVANE_PICTURES");
    if (folder.isEmpty())
        return;
    const SingleController &window = *f().window;
    const QPixmap picture = ofScreen
        ? window.screen()->grabWindow(0, window.x() - 50, window.y(), window.width() + 200, window.height())
        : f().window->grab();
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    QVERIFY(picture.save(QDir(folder).filePath(QStringLiteral("%1@%2.png").arg(name, scale))));
}

bool TestKeyMappingPictures::isSeen(OvAuxiliaryKey *key) const
{
    const QRect upper(key->x(), key->y(), key->width() - 18, 8);
    const QImage with = f().video()->grab(upper).toImage();
    key->hide();
    const QImage without = f().video()->grab(upper).toImage();
    key->show();
    int different = 0; // at fractional scales the picture below is cut into pixels in another way
    for (int i = 0; i < with.width() * with.height(); ++i) {
        const QPoint pixel(i % with.width(), i / with.width());
        different += with.pixel(pixel) != without.pixel(pixel) ? 1 : 0;
    }
    return different > with.width() * with.height() / 20;
}

void TestKeyMappingPictures::editing_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("opacity");
    for (const auto orientation : {ScreenOrientation::Portrait, ScreenOrientation::Landscape}) {
        const char *name = orientation == ScreenOrientation::Portrait ? "portrait" : "landscape";
        for (const int size : {20, 40}) {
            for (const int opacity : {0, 50, 100})
                QTest::addRow("editing-%s-%d-%d", name, size, opacity) << orientation << size << opacity;
        }
    }
}

void TestKeyMappingPictures::editing()
{
    QFETCH(ScreenOrientation, orientation);
    QFETCH(int, size);
    QFETCH(int, opacity);
    turn(orientation);
    QVERIFY(f().editArena());
    f().child<OvSlider>("sizeSlider")->setValue(size);
    f().child<OvSlider>("opacitySlider")->setValue(opacity);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    save(QString::fromLatin1(QTest::currentDataTag()));
    for (OvAuxiliaryKey *key : f().manager()->keys()) {
        QCOMPARE(isSeen(key), opacity > 0);
        if (key->type() != 1)
            QCOMPARE(key->size(), QSize(size + 10, size + 10));
        QVERIFY(f().video()->rect().contains(key->geometry()));
    }
    // All of the panel is within the window and has its room.
    const QRect body(QPoint(10, 10), f().window->contentSize());
    for (const QWidget *part : f().editor()->findChildren<QPushButton *>()) {
        if (part->isVisible())
            QVERIFY(body.contains(QRect(part->mapTo(f().window.get(), QPoint(0, 0)), part->size())));
    }
}

void TestKeyMappingPictures::playing_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::newRow("playing-portrait") << ScreenOrientation::Portrait;
    QTest::newRow("playing-landscape") << ScreenOrientation::Landscape;
}

// The notes are shown, the crosshair is not.
void TestKeyMappingPictures::playing()
{
    QFETCH(ScreenOrientation, orientation);
    turn(orientation);
    f().setLocalCopy(QJsonDocument(arenaCopy()).toJson());
    f().window->onApplyKeyBindingBtnClicked();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    save(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(isSeen(f().manager()->lastClickKey()));
    QVERIFY(isSeen(f().manager()->walkingKey()));
    QVERIFY(!isSeen(f().manager()->crosshairKey()));
    const QWidget *note = f().manager()->lastClickKey()->noteBubble();
    QVERIFY(note->isVisible());
    QCOMPARE(note->y(), f().manager()->lastClickKey()->geometry().bottom() + 1);
}

void TestKeyMappingPictures::dialogs_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::newRow("portrait") << ScreenOrientation::Portrait;
    QTest::newRow("landscape") << ScreenOrientation::Landscape;
}

// Each as a user opens it, within the window or on the screen.
void TestKeyMappingPictures::dialogs()
{
    QFETCH(ScreenOrientation, orientation);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QRect screen = f().window->screen()->geometry();
    turn(orientation);
    QVERIFY(f().changeArena());

    f().manager()->crosshairKey()->onNoteBtnClicked();
    OvAuxiliaryKeyEditor *note = f().manager()->crosshairKey()->noteEditor();
    QVERIFY(QTest::qWaitForWindowExposed(note));
    save(QStringLiteral("note-") + name, true);
    QVERIFY(screen.contains(note->frameGeometry()));
    note->onCancelBtnClicked();

    f().box()->showPopup();
    QTRY_VERIFY(f().box()->isOpen());
    QVERIFY(QTest::qWaitForWindowExposed(f().box()->view()->window()));
    save(QStringLiteral("schemes-") + name, true);
    f().box()->hidePopup();

    f().button("uploadButton")->click();
    auto *upload = f().child<ShareConfigDlg>();
    QVERIFY(QTest::qWaitForWindowExposed(upload));
    save(QStringLiteral("upload-") + name, true);
    QVERIFY(screen.contains(upload->frameGeometry()));
    upload->reject();

    f().window->onExitKeyBoardEditBtnClicked();
    QVERIFY(f().question());
    save(QStringLiteral("question-") + name);
    QTest::keyClick(f().question(), Qt::Key_Escape);
    QVERIFY(!f().question());

    for (QPushButton *button : f().box()->editableItem(0)->findChildren<QPushButton *>()) {
        if (button->toolTip() == QLatin1String("Share"))
            button->click();
    }
    QVERIFY(f().question());
    save(QStringLiteral("share-") + name);
    for (const QLabel *label : f().question()->findChildren<QLabel *>()) {
        const QRect inWindow(label->mapTo(f().window.get(), QPoint(0, 0)), label->size());
        QVERIFY(QRect(QPoint(10, 10), f().window->contentSize()).contains(inWindow));
    }
}

void TestKeyMappingPictures::menuHasRoom_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"hi_IN", "de", "ru", "fr", "pt", "th", "vi", "es", "ar"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

// Nothing of the title bar is cut or runs into another part.
void TestKeyMappingPictures::menuHasRoom()
{
    QFETCH(QString, language);
    TranslateManager::instance()->onLanguegeChanged(language);
    QVERIFY(f().edit());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    save(QStringLiteral("menu-") + language);
    const auto *bar = f().window->titleBar();
    const auto *title = bar->findChild<QLabel *>(QStringLiteral("titleLabel"));
    int left = title->geometry().right();
    QVERIFY(title->width() >= title->sizeHint().width());
    for (const char *name : {"tutorialButton", "uploadButton", "exitButton", "minButton", "closeButton"}) {
        const auto *button = f().button(name);
        const int x = button->mapTo(bar, QPoint(0, 0)).x();
        QVERIFY2(x > left && button->width() >= button->minimumSizeHint().width(), name);
        left = x + button->width() - 1;
    }
    QVERIFY(left < bar->width());
}

QTEST_MAIN(TestKeyMappingPictures)

#include "tst_keymappingpictures.moc"
