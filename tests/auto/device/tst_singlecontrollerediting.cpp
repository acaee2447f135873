// The device window while the key mapping is edited: its shape, what is added, and what reaches the device.

#include "KeyMappingFixture.h"

#include "device/QualityBox.h"
#include "widgets/OvSlider.h"

#include <QClipboard>
#include <QSignalSpy>
#include <QTranslator>

using namespace devicetest;

class tst_SingleControllerEditing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_fixture = std::make_unique<KeyMappingFixture>(); }
    void init() { QVERIFY(m_fixture->openWindow()); }
    void cleanup() { m_fixture->window.reset(); }
    void opens_data();
    void opens();
    void onlyWithTheVideo();
    void saves();
    void savesLandscape();
    void newKeys_data();
    void newKeys();
    void noSecondPendingKey();
    void slidersReachTheKeys();
    void nothingReachesTheDevice();
    void turnsWhileEditing();
    void maximizedBefore();
    void editingShapeIsTheOnlyOne();
    void standByWhileEditing();
    void editingIsAnOperation_data();
    void editingIsAnOperation();
    void resizedWindow();
    void menuFollowsTheLanguage();

private:
    KeyMappingFixture &f() const { return *m_fixture; }
    SingleController &window() const { return *m_fixture->window; }
    bool isBarButtonShown(const char *name) const
    {
        return window().titleBar()->findChild<QPushButton *>(QString::fromLatin1(name))->isVisible();
    }

    std::unique_ptr<KeyMappingFixture> m_fixture;
};

void tst_SingleControllerEditing::opens_data()
{
    QTest::addColumn<bool>("landscape");
    QTest::addColumn<QSize>("content");
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<QSize>("closed");
    QTest::newRow("portrait") << false << QSize(640, 640) << QSize(340, 600) << QSize(300, 600)
                              << QSize(390, 640);
    QTest::newRow("landscape") << true << QSize(900, 380) << QSize(600, 340) << QSize(300, 340)
                               << QSize(650, 380);
}

void tst_SingleControllerEditing::opens()
{
    QFETCH(bool, landscape);
    QFETCH(QSize, view);
    if (landscape)
        window().onScreenRotateBtnClicked();
    f().server.requestLines.clear();
    QTest::mouseClick(f().child<MenuBar>()->buttons().at(5), Qt::LeftButton);
    QTEST(window().contentSize(), "content");
    QTRY_COMPARE(f().video()->size(), view);
    QTEST(f().editor()->size(), "panel");
    QCOMPARE(f().editor()->x(), view.width());
    QVERIFY(f().editor()->isVisible() && !f().child<MenuBar>()->isVisible());
    QVERIFY(f().menu()->isVisible());
    QVERIFY(!f().child<QualityBox>()->isVisible() && !f().child<QLabel>("delayLabel")->isVisible());
    QVERIFY(isBarButtonShown("minButton") && isBarButtonShown("closeButton"));
    QVERIFY(!isBarButtonShown("maxButton") && !isBarButtonShown("restoreButton"));
    QVERIFY(f().manager()->isRecording());
    QTRY_COMPARE(f().server.requestLines, QByteArrayList{"GET /apiv1/keyboard_map/mapConfigList HTTP/1.1"});
    QTRY_COMPARE(f().box()->count(), 2);

    window().onExitKeyBoardEditBtnClicked();
    QTEST(window().contentSize(), "closed");
    QTRY_COMPARE(f().video()->size(), view);
    QVERIFY(!f().editor()->isVisible() && f().child<MenuBar>()->isVisible() && !f().menu()->isVisible());
    QVERIFY(f().child<QualityBox>()->isVisible() && f().child<QLabel>("delayLabel")->isVisible());
    QVERIFY(isBarButtonShown("maxButton"));
    QVERIFY(!f().manager()->isRecording() && f().video()->hasFocus());
}

void tst_SingleControllerEditing::onlyWithTheVideo()
{
    f().makeWindow();
    window().show();
    window().onKeyboardMapBtnClicked();
    QVERIFY(!f().manager()->isRecording());
    QCOMPARE(window().contentSize(), QSize(390, 640));
    window().onExitKeyBoardEditBtnClicked();
    window().onSaveAndCloseKeyboardEditor();
    window().onAuxiliaryClickBtnClicked();
    QVERIFY(f().manager()->keys().isEmpty());
}

void tst_SingleControllerEditing::saves()
{
    QVERIFY(f().changeArena());
    f().server.bodies.clear();
    f().server.requestLines.clear();
    f().button("saveButton")->click();
    QVERIFY(!f().manager()->isRecording());
    QCOMPARE(window().contentSize(), QSize(390, 640));
    QTRY_COMPARE(f().bodiesTo("actionMapConfig").size(), 1);
    const QJsonObject body = f().bodiesTo("actionMapConfig").first();
    QCOMPARE(body.value("map_id").toString(), QStringLiteral("ARENA"));
    QCOMPARE(body.value("action_type").toString(), QStringLiteral("update"));
    QCOMPARE(body.value("screen_orientation"), QJsonValue(false));
    QCOMPARE(body.value("key_transparency"), QJsonValue(80));
    const QJsonArray keys = QJsonDocument::fromJson(body.value("config").toString().toUtf8()).array();
    QCOMPARE(keys.size(), 3);
    QCOMPARE(keys.at(0).toObject().value("key").toString(), QStringLiteral("E"));
    QCOMPARE(keys.at(0).toObject().value("x").toInt(), 244);
    QCOMPARE(keys.at(0).toObject().value("y").toInt(), 416);
    QCOMPARE(keys.at(1).toObject().value("key"), QJsonValue(true));
    QCOMPARE(f().localCopy().value("config"), body.value("config"));
    // The keys are in use as they were saved.
    QCOMPARE(f().keyTexts(), (QStringList{"E", "", "Q"}));
    QTRY_COMPARE(f().toast(), QStringLiteral("Operated successfully"));
}

void tst_SingleControllerEditing::savesLandscape()
{
    window().onScreenRotateBtnClicked();
    QVERIFY(f().editArena());
    f().button("saveButton")->click();
    QTRY_COMPARE(f().bodiesTo("actionMapConfig").size(), 1);
    QCOMPARE(f().bodiesTo("actionMapConfig").first().value("screen_orientation"), QJsonValue(true));
}

void tst_SingleControllerEditing::newKeys_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("type");
    QTest::newRow("click") << QByteArray("clickButton") << 0;
    QTest::newRow("walking") << QByteArray("walkingButton") << 1;
    QTest::newRow("crosshair") << QByteArray("crosshairButton") << 2;
}

// In the middle of the video, as the sliders say, over the video and with the keyboard.
void tst_SingleControllerEditing::newKeys()
{
    QFETCH(QByteArray, button);
    QFETCH(int, type);
    f().server.setAnswerFor("mapConfigList", listAnswer({[] {
        QJsonObject empty = arenaScheme();
        empty["config"] = QString::fromLatin1(QByteArray("[]").toBase64());
        return empty;
    }()}));
    QVERIFY(f().edit());
    f().server.setAnswerFor("mapConfigList", listAnswer({arenaScheme()}));
    f().box()->setCurrentIndex(0);
    QTest::mouseClick(f().child<KeyKindButton>(button), Qt::LeftButton);
    QCOMPARE(f().manager()->keys().size(), 1);
    OvAuxiliaryKey *key = f().manager()->keys().first();
    QCOMPARE(key->type(), type);
    QCOMPARE(key->parentWidget(), f().video());
    QVERIFY(key->isVisible() && key->hasFocus());
    QCOMPARE(key->geometry().center() - f().video()->rect().center(), QPoint(0, 0));
    QCOMPARE(key->size(), type == 1 ? QSize(80, 80) : QSize(40, 40));
    QCOMPARE(key->alpha(), 80);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_G);
    QCOMPARE(key->keyText(), type == 1 ? QString() : QStringLiteral("G"));
    QCOMPARE(f().manager()->isModified(), type != 1);
    QCOMPARE(takeCalls(), QStringList());
    // It follows the picture.
    window().onScreenRotateBtnClicked();
    QCOMPARE(key->screenOrientation(), ScreenOrientation::Landscape);
}

void tst_SingleControllerEditing::noSecondPendingKey()
{
    QVERIFY(f().editArena());
    for (int i = 0; i < 2; ++i) {
        window().onAuxiliaryClickBtnClicked();
        window().onAuxiliaryWalkingClicked();
        window().onAuxiliaryCrosshairClicked();
    }
    QCOMPARE(f().manager()->keys().size(), 4); // the new click key has no key of the keyboard yet
    f().bind(f().manager()->lastClickKey(), Qt::Key_R);
    window().onAuxiliaryClickBtnClicked();
    QCOMPARE(f().manager()->keys().size(), 5);
    // For a scheme they are made whatever there is.
    window().onCreateAuxiliaryClickKey();
    window().onCreateAuxiliaryClickKey();
    QCOMPARE(f().manager()->keys().size(), 7);
    const OvAuxiliaryKey *walking = f().manager()->walkingKey();
    const OvAuxiliaryKey *crosshair = f().manager()->crosshairKey();
    window().onCreateAuxiliaryWalkingKey();
    window().onCreateAuxiliaryCrosshairKey();
    QVERIFY(f().manager()->walkingKey() != walking && f().manager()->crosshairKey() != crosshair);
}

void tst_SingleControllerEditing::slidersReachTheKeys()
{
    QVERIFY(f().editArena());
    f().child<OvSlider>("sizeSlider")->setValue(40);
    f().child<OvSlider>("opacitySlider")->setValue(50);
    for (const OvAuxiliaryKey *key : f().manager()->keys()) {
        QCOMPARE(key->alpha(), 50);
        QCOMPARE(key->size(), key->type() == 1 ? QSize(80, 80) : QSize(50, 50));
    }
    QVERIFY(f().manager()->isModified());
}

void tst_SingleControllerEditing::nothingReachesTheDevice()
{
    QTest::keyPress(f().video(), Qt::Key_1);
    sendMouse(f().video(), QEvent::MouseButtonPress, {5, 5});
    takeCalls();
    QVERIFY(f().edit());
    // What is held comes up first.
    QCOMPARE(takeCalls(), (QStringList{keyCall(2, Qt::Key_1), liftCall()}));
    QTest::keyClick(f().video(), Qt::Key_1);
    QTest::keyClick(f().video(), Qt::Key_A);
    QTest::keyClick(&window(), Qt::Key_A);
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    window().onPasteText();
    sendMouse(f().video(), QEvent::MouseButtonPress, {5, 5});
    sendMouse(f().video(), QEvent::MouseButtonRelease, {5, 5});
    QVERIFY(!f().video()->testAttribute(Qt::WA_InputMethodEnabled));
    QCOMPARE(takeCalls(), QStringList());
    window().onExitKeyBoardEditBtnClicked();
    QVERIFY(f().video()->testAttribute(Qt::WA_InputMethodEnabled));
    QTest::keyClick(f().video(), Qt::Key_1);
    QCOMPARE(takeCalls(), (QStringList{keyCall(1, Qt::Key_1), keyCall(2, Qt::Key_1)}));
}

// The device turns: the keys stay on their spots, and nothing that was changed is lost.
void tst_SingleControllerEditing::turnsWhileEditing()
{
    QVERIFY(f().changeArena());
    const OvAuxiliaryKey *fire = f().manager()->lastClickKey();
    QTRY_COMPARE(fire->pos(), QPoint(244, 416));
    f().video()->onScreenRotation(1);
    QTRY_COMPARE(window().contentSize(), QSize(900, 380));
    QTRY_COMPARE(f().video()->size(), QSize(600, 340));
    QCOMPARE(f().editor()->orientation(), ScreenOrientation::Landscape);
    QCOMPARE(f().editor()->height(), 340);
    QTRY_COMPARE(fire->pos(), QPoint(416, 56)); // (y, 340 - x - 40)
    QVERIFY(f().manager()->isModified());
    QCOMPARE(f().keyTexts(), (QStringList{"E", "", "Q"}));
    f().video()->onScreenRotation(0);
    QTRY_COMPARE(window().contentSize(), QSize(640, 640));
    QTRY_COMPARE(fire->pos(), QPoint(244, 416));
    QCOMPARE(f().editor()->orientation(), ScreenOrientation::Portrait);
}

void tst_SingleControllerEditing::maximizedBefore()
{
    window().setAvailableGeometry([](const QPoint &) { return QRect(100, 50, 1600, 1000); });
    const QPoint before = window().pos();
    window().onMaximizeShortcutActivated();
    QVERIFY(window().isMaximizedInProportion());
    QVERIFY(f().edit());
    QVERIFY(!window().isMaximizedInProportion());
    QCOMPARE(window().contentSize(), QSize(640, 640));
    QTRY_COMPARE(f().video()->size(), QSize(340, 600));
    window().onExitKeyBoardEditBtnClicked();
    QVERIFY(window().isMaximizedInProportion());
    QVERIFY(isBarButtonShown("restoreButton") && !isBarButtonShown("maxButton"));
    window().onMaximizeShortcutActivated();
    QCOMPARE(window().contentSize(), QSize(390, 640));
    QCOMPARE(window().pos(), before);
}

// F11, dragging the bar or an edge: the places of the keys hold for this size.
void tst_SingleControllerEditing::editingShapeIsTheOnlyOne()
{
    QVERIFY(f().edit());
    window().onMaximizeShortcutActivated();
    QTest::keyClick(&window(), Qt::Key_F11);
    QVERIFY(!window().isMaximizedInProportion());
    const QPoint edge(window().width() - 3, 300);
    sendMouse(&window(), QEvent::MouseMove, edge);
    sendMouse(&window(), QEvent::MouseButtonPress, edge);
    QMouseEvent drag(QEvent::MouseMove, edge + QPoint(80, 0), window().mapToGlobal(edge + QPoint(80, 0)),
        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &drag);
    QCOMPARE(window().contentSize(), QSize(640, 640));
}

// The layout waits as well.
void tst_SingleControllerEditing::standByWhileEditing()
{
    QVERIFY(f().changeArena());
    f().standBy();
    QVERIFY(f().child<StandbyWidget>()->isVisible());
    QCOMPARE(takeCalls(), QStringList{"SWDataSource::screenCast(0)"});
    QVERIFY(!f().editor()->isEnabled() && f().editor()->isVisible());
    QVERIFY(f().manager()->isModified() && f().manager()->keys().size() == 3);
    window().onResumeBtnClicked();
    QVERIFY(f().editor()->isEnabled());
    QCOMPARE(f().keyTexts(), (QStringList{"E", "", "Q"}));
    // Leaving the editor in stand-by leaves the stand-by.
    f().standBy();
    window().onExitKeyBoardEditBtnClicked();
    f().answer("Close");
    QTRY_VERIFY(!f().manager()->isRecording());
    QVERIFY(f().child<StandbyWidget>()->isVisible());
    QTRY_COMPARE(f().child<StandbyWidget>()->size(), QSize(340, 600));
}

void tst_SingleControllerEditing::editingIsAnOperation_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"drag", "bind", "slider", "new key", "open"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

// Who edits is not away.
void tst_SingleControllerEditing::editingIsAnOperation()
{
    QFETCH(QString, what);
    if (what != QLatin1String("open"))
        QVERIFY(f().editArena());
    const int before = f().child<StandbyTimer>()->timerId();
    OvAuxiliaryKey *key = f().manager()->lastClickKey();
    if (what == QLatin1String("drag"))
        sendMouse(key, QEvent::MouseButtonPress, {5, 5});
    else if (what == QLatin1String("bind"))
        f().bind(key, Qt::Key_E);
    else if (what == QLatin1String("slider"))
        f().child<OvSlider>("sizeSlider")->setValue(22);
    else if (what == QLatin1String("new key"))
        QTest::mouseClick(f().child<KeyKindButton>("clickButton"), Qt::LeftButton);
    else
        window().onKeyboardMapBtnClicked();
    QVERIFY(f().child<StandbyTimer>()->timerId() != before);
}

// The keys stay on their spots when the window takes the size for editing.
void tst_SingleControllerEditing::resizedWindow()
{
    QVERIFY(f().editArena());
    window().onExitKeyBoardEditBtnClicked();
    const QPointF spot = f().manager()->lastClickKey()->spot();
    window().setContentSize(QSize(590, 968));
    window().updateWindowSize();
    QTRY_COMPARE(f().video()->size(), QSize(540, 928));
    window().onKeyboardMapBtnClicked();
    QTRY_COMPARE(f().video()->size(), QSize(340, 600));
    QCOMPARE(f().manager()->lastClickKey()->pos(), QPoint(244, 416));
    QCOMPARE(f().manager()->lastClickKey()->spot(), spot);
}

void tst_SingleControllerEditing::menuFollowsTheLanguage()
{
    class Marked : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return QStringLiteral("«%1»").arg(QString::fromLatin1(text));
        }
    } marked;
    QVERIFY(f().edit());
    QCOMPARE(f().button("tutorialButton")->text(), QStringLiteral("Tutorial"));
    QCOMPARE(f().button("uploadButton")->text(), QStringLiteral("Upload scheme"));
    QCOMPARE(f().button("exitButton")->text(), QStringLiteral("Exit"));
    QCoreApplication::installTranslator(&marked);
    QTRY_COMPARE(f().button("tutorialButton")->text(), QStringLiteral("«Tutorial»"));
    QCOMPARE(f().button("uploadButton")->text(), QStringLiteral("«Upload scheme»"));
    QCOMPARE(f().button("exitButton")->text(), QStringLiteral("«Exit»"));
    QCoreApplication::removeTranslator(&marked);
}

QTEST_MAIN(tst_SingleControllerEditing)

#include "tst_singlecontrollerediting.moc"
