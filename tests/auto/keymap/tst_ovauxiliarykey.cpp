#include "KeyMapFixture.h"

#include <QFocusEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

// What all auxiliary keys have in common: place, look, note, binding and dragging.
class TestOvAuxiliaryKey : public KeyMapFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void storesItsSpot_data();
    void storesItsSpot();
    void takesHalvesAsIntegers();
    void staysWhereItIsPut();
    void staysOnItsSpotWhenTurned();
    void followsTheViewsSize();
    void movesByTheProgram();
    void reference();
    void sizes();
    void alpha();
    void opacity_data();
    void opacity();
    void buttons();
    void dragging();
    void noDraggingOutsideEditing();
    void binding();
    void refusedBindings_data();
    void refusedBindings();
    void noteBubble_data();
    void noteBubble();
    void noteBubbleLook();
    void deletesItsNoteBubble();
    void withoutManager();
};

void TestOvAuxiliaryKey::storesItsSpot_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QPointF>("spot");
    // A key of 30 x 30 in a view of 340 x 600, 600 x 340 in landscape.
    QTest::newRow("portrait") << 2 << QPoint(155, 285) << QPointF(0.5, 0.5);
    QTest::newRow("portrait corner") << 2 << QPoint(0, 0) << QPointF(15 / 340.0, 15 / 600.0);
    QTest::newRow("portrait other") << 2 << QPoint(53, 105) << QPointF(0.2, 0.2);
    QTest::newRow("landscape") << 1 << QPoint(285, 155) << QPointF(0.5, 0.5);
    QTest::newRow("landscape corner") << 1 << QPoint(0, 0) << QPointF(1 - 15 / 340.0, 15 / 600.0);
    QTest::newRow("landscape other") << 1 << QPoint(105, 53) << QPointF(0.8, 0.2);
    QTest::newRow("neither") << 3 << QPoint(105, 53) << QPointF(0.8, 0.2);
}

void TestOvAuxiliaryKey::storesItsSpot()
{
    QFETCH(int, orientation);
    QFETCH(QPoint, place);
    QFETCH(QPointF, spot);
    auto *key = make<OvAuxiliaryClick>("Q");
    if (orientation != 2)
        m_view->resize(600, 340);
    key->onScreenRotation(static_cast<ScreenOrientation>(orientation));
    m_manager->setRecording(true);
    key->move(place);
    QCOMPARE(key->spot(), spot);
    key->relayout();
    QCOMPARE(key->pos(), place);
    m_manager->setRecording(false);
    press(Qt::Key_Q);
    QCOMPARE(key->touchPoint({1000, 2000}), QPointF(1000 * spot.x(), 2000 * spot.y()));
}

// The middle of 35 pixels is 17.5 when it is stored, and 17 when the key is placed.
void TestOvAuxiliaryKey::takesHalvesAsIntegers()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    key->applySize(25);
    QCOMPARE(key->size(), QSize(35, 35));
    QCOMPARE(key->pos(), QPoint(153, 283)); // 170 - 17, 300 - 17
    key->placeAt({100, 200});
    QCOMPARE(key->spot(), QPointF(117.5 / 340, 217.5 / 600));
    QCOMPARE(key->pos(), QPoint(100, 200));
}

void TestOvAuxiliaryKey::staysWhereItIsPut()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    for (const int size : {20, 25, 31, 40}) {
        key->applySize(size);
        for (int i = 0; i < 300; i += 7) {
            key->placeAt({i, 2 * i - 20});
            QCOMPARE(key->pos(), QPoint(i, 2 * i - 20));
            key->placeAt(key->pos());
            QCOMPARE(key->pos(), QPoint(i, 2 * i - 20));
        }
    }
}

void TestOvAuxiliaryKey::staysOnItsSpotWhenTurned()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    key->placeAt({53, 105}); // a fifth from the left and from the top of the device
    turn(ScreenOrientation::Landscape);
    QCOMPARE(key->pos(), QPoint(105, 257)); // a fifth from the bottom, turned by -90 degrees
    press(Qt::Key_Q);
    QCOMPARE(takeSent(), QStringList{"0: 144,256"});
    release(Qt::Key_Q);
    turn(ScreenOrientation::Portrait);
    QCOMPARE(key->pos(), QPoint(53, 105));
}

void TestOvAuxiliaryKey::followsTheViewsSize()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    auto *walking = make<OvAuxiliaryWalking>();
    key->placeAt({53, 105});
    m_view->resize(680, 1200);
    QCOMPARE(key->pos(), QPoint(121, 225));
    QCOMPARE(walking->pos(), QPoint(300, 560));
    QCOMPARE(key->spot(), QPointF(0.2, 0.2));
    m_manager->setRecording(true);
    m_view->resize(333, 577); // also while a move would store the spot
    QCOMPARE(key->spot(), QPointF(0.2, 0.2));
}

// A move by the program counts while the schemes are being refilled, otherwise it does not.
void TestOvAuxiliaryKey::movesByTheProgram()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    key->move(53, 105);
    QCOMPARE(key->spot(), QPointF(0.5, 0.5));
    m_manager->setComboBoxUpdating(true);
    key->move(87, 165);
    QCOMPARE(key->spot(), QPointF(0.3, 0.3));
    m_manager->setComboBoxUpdating(false);
    key->move(0, 0);
    m_manager->relayoutKeys();
    QCOMPARE(key->pos(), QPoint(87, 165));
    QVERIFY(!m_manager->isModified());
}

void TestOvAuxiliaryKey::reference()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    m_view->resize(680, 1200);
    key->setPositionInReference(53, 105);
    QCOMPARE(key->spot(), QPointF(0.2, 0.2));
    QCOMPARE(key->pos(), QPoint(121, 225));
    m_view->resize(340, 600);
    turn(ScreenOrientation::Landscape);
    key->setPositionInReference(105, 53);
    QCOMPARE(key->spot(), QPointF(0.8, 0.2));
    QCOMPARE(key->pos(), QPoint(105, 53));
}

void TestOvAuxiliaryKey::sizes()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    key->applySize(20);
    QCOMPARE(key->geometry(), QRect(155, 285, 30, 30));
    key->applySize(40);
    QCOMPARE(key->geometry(), QRect(145, 275, 50, 50));
    key->applySize(1000000);
    QCOMPARE(key->size(), QSize(50, 50));
    key->applySize(-5);
    QCOMPARE(key->size(), QSize(30, 30));
    QVERIFY(!m_manager->isModified());
    key->onSizeChanged(30);
    QVERIFY(m_manager->isModified());
    QCOMPARE(key->size(), QSize(40, 40));
    QCOMPARE(key->findChild<QLabel *>("keyLabel")->height(), 30);
}

void TestOvAuxiliaryKey::alpha()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    auto *label = key->findChild<QLabel *>("keyLabel");
    QVERIFY(key->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(key->hasMouseTracking());
    QCOMPARE(key->focusPolicy(), Qt::ClickFocus);
    key->applyAlpha(50);
    QCOMPARE(key->alpha(), 50);
    QCOMPARE(label->styleSheet(), QString("color: rgba(96, 98, 102, 0.5)"));
    key->applyAlpha(-1);
    QCOMPARE(key->alpha(), 0);
    key->applyAlpha(101);
    QCOMPARE(key->alpha(), 100);
    QVERIFY(!m_manager->isModified());
    key->onAlphaChannelChanged(0);
    QVERIFY(m_manager->isModified());
    QCOMPARE(label->styleSheet(), QString("color: rgba(96, 98, 102, 0)"));
}

void TestOvAuxiliaryKey::opacity_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isRecording");
    QTest::addColumn<bool>("showKeys");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<bool>("isSeen");
    QTest::newRow("play") << 0 << false << true << false << true;
    QTest::newRow("play, keys off") << 0 << false << false << false << false;
    QTest::newRow("play, keys off, flag") << 0 << false << false << true << true;
    QTest::newRow("editing, keys off") << 0 << true << false << false << true;
    QTest::newRow("walking") << 1 << false << true << false << true;
    QTest::newRow("walking, keys off") << 1 << false << false << false << false;
    QTest::newRow("crosshair, play") << 2 << false << true << false << false;
    QTest::newRow("crosshair, play, flag") << 2 << false << true << true << false;
    QTest::newRow("crosshair, editing") << 2 << true << false << false << true;
}

void TestOvAuxiliaryKey::opacity()
{
    QFETCH(int, type);
    QFETCH(bool, isRecording);
    QFETCH(bool, showKeys);
    QFETCH(bool, flag);
    QFETCH(bool, isSeen);
    OvAuxiliaryKey *key = nullptr;
    if (type == 0)
        key = make<OvAuxiliaryClick>();
    else if (type == 1)
        key = make<OvAuxiliaryWalking>();
    else
        key = make<OvAuxiliaryCrosshair>();
    m_manager->setRecording(isRecording);
    m_manager->onShowBtnCheckBoxStateChanged(showKeys ? Qt::Checked : Qt::Unchecked);
    key->setNoteFlag(flag);
    const auto alphaInTheMiddle = [key] {
        QImage image(key->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        key->render(&image, QPoint(), QRegion(), {});
        return image.pixelColor(key->width() / 2, key->height() / 2).alpha();
    };
    key->applyAlpha(100);
    const int full = alphaInTheMiddle();
    QCOMPARE(full > 0, isSeen);
    key->applyAlpha(50);
    QVERIFY(qAbs(alphaInTheMiddle() - full / 2) <= 2);
    key->applyAlpha(0);
    QCOMPARE(alphaInTheMiddle(), 0);
    auto *label = key->findChild<QLabel *>(type == 1 ? "letterW" : "keyLabel");
    QCOMPARE(!label->isHidden(), isSeen);
}

void TestOvAuxiliaryKey::buttons()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    auto *deleteButton = key->findChild<QPushButton *>("deleteButton");
    auto *noteButton = key->findChild<QPushButton *>("noteButton");
    QVERIFY(!deleteButton->isVisible() && !noteButton->isVisible());
    m_manager->setRecording(true);
    for (const int size : {20, 40}) {
        key->applySize(size);
        const int side = size + 10;
        QCOMPARE(deleteButton->geometry(), QRect(side - 16, 0, 16, 16));
        QCOMPARE(noteButton->geometry(), QRect(side - 16, side - 16, 16, 16));
    }
    for (const QPushButton *button : {deleteButton, noteButton}) {
        QVERIFY(button->isVisible());
        QCOMPARE(button->iconSize(), QSize(14, 14));
        QVERIFY(!button->icon().pixmap(14, 14).isNull());
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QVERIFY(button->styleSheet().contains("background-color: #7F000000; border-radius: 4px;"));
    }
    QSignalSpy deleted(key, &OvAuxiliaryKey::sigDeleteBtnCicked);
    deleteButton->click();
    QCOMPARE(deleted.size(), 1);
    m_manager->setRecording(false);
    QVERIFY(!deleteButton->isVisible() && !noteButton->isVisible());
    auto *later = make<OvAuxiliaryClick>();
    QVERIFY(later->findChild<QPushButton *>("noteButton")->isHidden());
    m_manager->setRecording(true);
    auto *whileEditing = make<OvAuxiliaryClick>();
    QVERIFY(whileEditing->findChild<QPushButton *>("noteButton")->isVisible());
}

void TestOvAuxiliaryKey::dragging()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    m_manager->setRecording(true);
    mouse(key, QEvent::MouseButtonPress, {10, 10});
    QVERIFY(key->hasFocus());
    QVERIFY(!m_manager->isModified());
    mouse(key, QEvent::MouseMove, {30, 0});
    QCOMPARE(key->pos(), QPoint(175, 275));
    mouse(key, QEvent::MouseMove, {1000, 1000});
    QCOMPARE(key->pos(), QPoint(310, 570)); // stops at the edge
    mouse(key, QEvent::MouseMove, {-2000, -2000});
    QCOMPARE(key->pos(), QPoint(0, 0));
    QVERIFY(!m_manager->isModified());
    mouse(key, QEvent::MouseButtonRelease, {0, 0});
    QVERIFY(m_manager->isModified());
    QCOMPARE(key->spot(), QPointF(15 / 340.0, 15 / 600.0));
    mouse(key, QEvent::MouseMove, {100, 100}, Qt::NoButton);
    QCOMPARE(key->pos(), QPoint(0, 0));
    QCOMPARE(m_sent, QStringList());
}

// The mouse goes through to the video.
void TestOvAuxiliaryKey::noDraggingOutsideEditing()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    mouse(key, QEvent::MouseButtonPress, {15, 15});
    mouse(key, QEvent::MouseMove, {100, 100});
    mouse(key, QEvent::MouseButtonRelease, {100, 100});
    QCOMPARE(key->pos(), QPoint(155, 285));
    QVERIFY(!m_manager->isModified());
    QCOMPARE(m_sent, (QStringList{"0: 360,640", "1: -1,-1"}));
}

void TestOvAuxiliaryKey::binding()
{
    auto *key = make<OvAuxiliaryClick>();
    QTest::keyClick(key, Qt::Key_Q);
    QCOMPARE(key->keyText(), QString());
    m_manager->setRecording(true);
    QTest::keyClick(key, Qt::Key_Q);
    QCOMPARE(key->keyText(), QString("Q"));
    QVERIFY(m_manager->isModified());
    QTest::keyClick(key, Qt::Key_Space);
    QCOMPARE(key->keyText(), QString("Space"));
    QTest::keyClick(key, Qt::Key_Tab);
    QCOMPARE(key->keyText(), QString("Tab"));
    QTest::keyClick(key, Qt::Key_Shift);
    QCOMPARE(key->keyText(), QString("Shift"));
    QKeyEvent nameless(QEvent::KeyPress, Qt::Key_AltGr, Qt::NoModifier);
    QApplication::sendEvent(key, &nameless);
    QCOMPARE(key->keyText(), QString("Shift"));
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(key, &repeat); // no complaint about the key itself
    QCOMPARE(toastText(), QString());
}

void TestOvAuxiliaryKey::refusedBindings_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("W") << static_cast<int>(Qt::Key_W);
    QTest::newRow("A") << static_cast<int>(Qt::Key_A);
    QTest::newRow("S") << static_cast<int>(Qt::Key_S);
    QTest::newRow("D") << static_cast<int>(Qt::Key_D);
    QTest::newRow("another click key's") << static_cast<int>(Qt::Key_Q);
    QTest::newRow("the crosshair's") << static_cast<int>(Qt::Key_R);
    QTest::newRow("its own") << static_cast<int>(Qt::Key_E);
}

void TestOvAuxiliaryKey::refusedBindings()
{
    QFETCH(int, key);
    make<OvAuxiliaryClick>("Q");
    make<OvAuxiliaryCrosshair>("R");
    auto *click = make<OvAuxiliaryClick>("E");
    m_manager->setRecording(true);
    QTest::keyClick(click, static_cast<Qt::Key>(key));
    QCOMPARE(click->keyText(), QString("E"));
    QCOMPARE(toastText(), QString("This Key Binding is Already in Use"));
    QVERIFY(!m_manager->isModified());
}

void TestOvAuxiliaryKey::noteBubble_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<bool>("isCrosshair");
    QTest::addColumn<bool>("isRecording");
    QTest::addColumn<bool>("showNotes");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("shown") << "Jump" << false << false << true << true;
    QTest::newRow("no note") << "" << false << false << true << false;
    QTest::newRow("crosshair") << "Look" << true << false << true << false;
    QTest::newRow("editing") << "Jump" << false << true << true << false;
    QTest::newRow("notes off") << "Jump" << false << false << false << false;
}

void TestOvAuxiliaryKey::noteBubble()
{
    QFETCH(QString, note);
    QFETCH(bool, isCrosshair);
    QFETCH(bool, isRecording);
    QFETCH(bool, showNotes);
    QFETCH(bool, isShown);
    OvAuxiliaryKey *key = nullptr;
    if (isCrosshair)
        key = make<OvAuxiliaryCrosshair>();
    else
        key = make<OvAuxiliaryClick>();
    m_manager->setRecording(isRecording);
    m_manager->onShowNoteCheckBoxStateChanged(showNotes ? Qt::Checked : Qt::Unchecked);
    key->setNote(note);
    QCOMPARE(key->noteBubble()->isVisible(), isShown);
    m_manager->setRecording(true);
    QVERIFY(!key->noteBubble()->isVisible());
    m_manager->setRecording(isRecording);
    QCOMPARE(key->noteBubble()->isVisible(), isShown);
}

void TestOvAuxiliaryKey::noteBubbleLook()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    key->setNote("Jump");
    QWidget *bubble = key->noteBubble();
    auto *label = bubble->findChild<QLabel *>();
    QCOMPARE(bubble->parentWidget(), m_view);
    QCOMPARE(bubble->width(), 85);
    const int oneLine = QFontMetrics(label->font()).boundingRect("Jump").height();
    QCOMPARE(bubble->height(), oneLine + 10);
    QCOMPARE(bubble->pos(), QPoint(155 + 15 - 42, 285 + 30));
    QVERIFY(bubble->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(label->wordWrap());
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QVERIFY(label->styleSheet().contains(
        "background-color: white; border: 1px solid #606266; border-radius: 4px"));
    key->setNote("Jump over the wall and reload behind it");
    QVERIFY(bubble->height() >= 2 * oneLine + 10);
    key->placeAt({100, 100});
    QCOMPARE(bubble->pos(), QPoint(100 + 15 - 42, 130));
}

void TestOvAuxiliaryKey::deletesItsNoteBubble()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    key->setNote("Jump");
    const QPointer<QWidget> bubble = key->noteBubble();
    delete key;
    QVERIFY(bubble && !bubble->isVisible());
    QTRY_VERIFY(!bubble);
}

void TestOvAuxiliaryKey::withoutManager()
{
    OvAuxiliaryClick key(nullptr, m_view);
    key.setKeyText("Q");
    QVERIFY(!key.isRecording());
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Q, Qt::NoModifier);
    key.eventFilter(m_window.get(), &press);
    QVERIFY(key.isPressed());
    key.onSizeChanged(30);
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(m_view, &out);
    QVERIFY(!key.isPressed());
}

QTEST_MAIN(TestOvAuxiliaryKey)
#include "tst_ovauxiliarykey.moc"
