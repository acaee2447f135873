// The device window with a key mapping in use: what keys send, the local copy, when fingers come up, and the
// windows of the editor's menu.

#include "KeyMappingFixture.h"

#include "keymap/KeyMapGuide.h"
#include "keymap/ShareConfigDlg.h"

#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace devicetest;

namespace {

// Of the device's 720 x 1280 pixels.
constexpr QPoint Fire(559, 930);
constexpr QPoint Stick(190, 989);
constexpr QPoint Look(360, 460);

} // namespace

class tst_SingleControllerPlaying : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_fixture = std::make_unique<KeyMappingFixture>(); }
    void init();
    void cleanup() { m_fixture->window.reset(); }
    void oneClick();
    void oneClickWithAnotherSize();
    void oneClickAfterALandscapeSave();
    void nothingToApply_data();
    void nothingToApply();
    void hiddenKeysAreSeenForAMoment();
    void oneClickOutlivesTheEditor();
    void oneClickIsNoScheme();
    void ownSaveKeepsItsScheme();
    void keysTouchTheDevice();
    void keysAndMouseTogether();
    void walks();
    void whatWasHeldBeforeDoesNothing();
    void looks();
    void turnedPicture();
    void fingersComeUp_data();
    void fingersComeUp();
    void standByTakesNoKeys();
    void touchesAreOperations();
    void tutorial();
    void sharing();
    void unknownCode();
    void closingClosesTheDialogs();

private:
    KeyMappingFixture &f() const { return *m_fixture; }
    SingleController &window() const { return *m_fixture->window; }
    void applyArena() const;
    QStringList touches() const;

    std::unique_ptr<KeyMappingFixture> m_fixture;
};

void tst_SingleControllerPlaying::init()
{
    f().setServiceAnswer(R"({"code": 200, "msg": "success", "data": {}})");
    QVERIFY(f().openWindow());
}

void tst_SingleControllerPlaying::applyArena() const
{
    f().setLocalCopy(QJsonDocument(arenaCopy()).toJson());
    window().onApplyKeyBindingBtnClicked();
    takeCalls();
}

// What of the calls was a touch: the keys type on the device as well.
QStringList tst_SingleControllerPlaying::touches() const
{
    return takeCalls().filter(QStringLiteral("sendTouchEvent"));
}

void tst_SingleControllerPlaying::oneClick()
{
    const QByteArray copy = QJsonDocument(arenaCopy()).toJson();
    f().setLocalCopy(copy);
    QTest::ignoreMessage(QtDebugMsg, "onApplyKeyBindingBtnClicked ---> " + copy);
    QTest::mouseClick(f().child<MenuBar>()->buttons().at(6), Qt::LeftButton);
    QCOMPARE(f().keyTexts(), (QStringList{"F", "", "Q"}));
    const OvAuxiliaryClick *fire = f().manager()->lastClickKey();
    QCOMPARE(fire->pos(), QPoint(244, 416));
    QCOMPARE(fire->size(), QSize(40, 40));
    QCOMPARE(fire->alpha(), 80);
    QCOMPARE(fire->note(), QStringLiteral("Fire"));
    QVERIFY(fire->isVisible());
    QCOMPARE(f().manager()->crosshairKey()->sensitivity(), 2.5);
    QVERIFY(!f().manager()->isModified() && !f().manager()->isRecording());
    QVERIFY(f().video()->hasFocus());
    // Again, instead of besides.
    window().onApplyKeyBindingBtnClicked();
    QCOMPARE(f().manager()->keys().size(), 3);
}

void tst_SingleControllerPlaying::oneClickWithAnotherSize()
{
    window().setContentSize(QSize(590, 968));
    window().updateWindowSize();
    QTRY_COMPARE(f().video()->size(), QSize(540, 928));
    applyArena();
    QCOMPARE(f().manager()->lastClickKey()->spot().x(), 264.0 / 340);
    QCOMPARE(f().manager()->lastClickKey()->spot().y(), 436.0 / 600);
}

// A view in landscape is 600 x 340: where x was 416 and y 56 there, F is on the same spot of the device.
void tst_SingleControllerPlaying::oneClickAfterALandscapeSave()
{
    QJsonObject copy = arenaCopy();
    copy["screen_orientation"] = true;
    copy["config"] = QStringLiteral(R"([{"key": "F", "x": 416, "y": 56, "edit": true, "remark": ""}])");
    f().setLocalCopy(QJsonDocument(copy).toJson());
    window().onApplyKeyBindingBtnClicked();
    QCOMPARE(f().manager()->lastClickKey()->pos(), QPoint(244, 416));
    QTest::keyPress(f().video(), Qt::Key_F);
    QCOMPARE(touches(), QStringList{touchCall(0, {Fire})});
}

void tst_SingleControllerPlaying::nothingToApply_data()
{
    QTest::addColumn<QByteArray>("copy");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("text") << QByteArray("not JSON");
    QTest::newRow("array") << QByteArray("[1]");
}

void tst_SingleControllerPlaying::nothingToApply()
{
    QFETCH(QByteArray, copy);
    applyArena();
    f().setLocalCopy(copy);
    if (!copy.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, "the local copy of the key mapping is no JSON object");
    window().onApplyKeyBindingBtnClicked();
    QCOMPARE(f().toast(), QStringLiteral("There is no saved key layout yet"));
    QCOMPARE(f().keyTexts(), (QStringList{"F", "", "Q"})); // those in use stay
}

// So that the user sees what was applied.
void tst_SingleControllerPlaying::hiddenKeysAreSeenForAMoment()
{
    QJsonObject copy = arenaCopy();
    copy["show_key"] = false;
    f().setLocalCopy(QJsonDocument(copy).toJson());
    window().onApplyKeyBindingBtnClicked();
    const auto *label = f().manager()->lastClickKey()->findChild<QLabel *>(QStringLiteral("keyLabel"));
    QVERIFY(label->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!label->isVisible(), 10'000);
    QVERIFY(!f().manager()->showKeys());
}

// The list of schemes does not know the keys, so the editor begins without them; who chooses nothing there
// has them back.
void tst_SingleControllerPlaying::oneClickOutlivesTheEditor()
{
    applyArena();
    QVERIFY(f().edit());
    QVERIFY(f().manager()->keys().isEmpty());
    f().button("exitButton")->click();
    QCOMPARE(f().keyTexts(), (QStringList{"F", "", "Q"}));
    QCOMPARE(f().manager()->lastClickKey()->pos(), QPoint(244, 416));
    // Who chose a scheme and then none of them wants none.
    QVERIFY(f().edit());
    f().box()->setCurrentIndex(0);
    f().box()->setCurrentIndex(1);
    f().button("exitButton")->click();
    QVERIFY(f().manager()->keys().isEmpty());
}

// Keys of another window's save must not get into the scheme that was chosen here.
void tst_SingleControllerPlaying::oneClickIsNoScheme()
{
    QVERIFY(f().editArena());
    f().button("exitButton")->click();
    QCOMPARE(f().manager()->currentMapId(), QStringLiteral("ARENA"));
    applyArena();
    QCOMPARE(f().manager()->currentMapId(), QString());
}

void tst_SingleControllerPlaying::ownSaveKeepsItsScheme()
{
    QVERIFY(f().changeArena());
    f().button("saveButton")->click();
    window().onApplyKeyBindingBtnClicked();
    QCOMPARE(f().manager()->currentMapId(), QStringLiteral("ARENA"));
    QCOMPARE(f().keyTexts(), (QStringList{"E", "", "Q"}));
}

// One touch for each press, whichever of the key's two signals is listened to.
void tst_SingleControllerPlaying::keysTouchTheDevice()
{
    applyArena();
    QTest::keyPress(f().video(), Qt::Key_F);
    QCOMPARE(touches(), QStringList{touchCall(0, {Fire})});
    QTest::keyRelease(f().video(), Qt::Key_F);
    QCOMPARE(touches(), QStringList{liftCall()});
    // The keys do not consume what they see.
    QTest::keyClick(f().video(), Qt::Key_F);
    QVERIFY(takeCalls().contains(textCall(QStringLiteral("f"))));
}

void tst_SingleControllerPlaying::keysAndMouseTogether()
{
    applyArena();
    QTest::keyPress(f().video(), Qt::Key_F);
    takeCalls();
    sendMouse(f().video(), QEvent::MouseButtonPress, {85, 150});
    QCOMPARE(takeCalls(), QStringList{touchCall(0, {Fire, {180, 320}})});
    sendMouse(f().video(), QEvent::MouseButtonRelease, {85, 150});
    QCOMPARE(takeCalls(), QStringList{touchCall(1, {Fire})});
}

void tst_SingleControllerPlaying::walks()
{
    applyArena();
    QTest::keyPress(f().video(), Qt::Key_W);
    QCOMPARE(touches(), QStringList{touchCall(0, {Stick})});
    QTRY_COMPARE(f().manager()->walkingKey()->offset(), QPointF(0, -100));
    QTest::keyPress(f().video(), Qt::Key_F);
    QCOMPARE(touches().last(), touchCall(0, {Fire, Stick + QPoint(0, -100)}));
    QTest::keyRelease(f().video(), Qt::Key_W);
    QCOMPARE(touches().last(), touchCall(1, {Fire}));
}

// The keys were pressed before there were auxiliary keys: their releases neither walk nor lift a finger.
void tst_SingleControllerPlaying::whatWasHeldBeforeDoesNothing()
{
    QTest::keyPress(f().video(), Qt::Key_W);
    QTest::keyPress(f().video(), Qt::Key_F);
    applyArena();
    QTest::keyRelease(f().video(), Qt::Key_W);
    QTest::keyRelease(f().video(), Qt::Key_F);
    QCOMPARE(f().manager()->walkingKey()->heldMask(), 0);
    QCOMPARE(touches(), QStringList());
    QTest::keyPress(f().video(), Qt::Key_D);
    QTest::keyRelease(f().video(), Qt::Key_D);
    QVERIFY(!f().manager()->walkingKey()->isPressed());
    QVERIFY(!touches().isEmpty());
}

void tst_SingleControllerPlaying::looks()
{
    applyArena();
    QTest::keyPress(f().video(), Qt::Key_Q);
    QCOMPARE(touches(), QStringList{touchCall(0, {Look})});
    QCOMPARE(f().video()->cursor().shape(), Qt::BlankCursor);
    QTest::keyPress(f().video(), Qt::Key_Q);
    QCOMPARE(touches(), QStringList{liftCall()});
    QCOMPARE(f().video()->cursor().shape(), Qt::ArrowCursor);
}

void tst_SingleControllerPlaying::turnedPicture()
{
    applyArena();
    f().video()->onScreenRotation(1);
    QTRY_COMPARE(f().video()->size(), QSize(600, 340));
    QTRY_COMPARE(f().manager()->lastClickKey()->pos(), QPoint(416, 56));
    takeCalls();
    QTest::keyPress(f().video(), Qt::Key_F);
    QCOMPARE(touches(), QStringList{touchCall(0, {Fire})});
}

void tst_SingleControllerPlaying::fingersComeUp_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("next"); // the first call after the release, empty: none
    QTest::newRow("stand-by") << "stand-by"
                              << "SWDataSource::screenCast(0)";
    QTest::newRow("close") << "close"
                           << "SWPlayer::";
    QTest::newRow("restart") << "restart"
                             << "SWPlayer::";
    QTest::newRow("editor") << "editor"
                            << "";
    QTest::newRow("one click") << "one click"
                               << "";
    QTest::newRow("title bar's list") << "focus"
                                      << "";
}

// Before anything stops the stream.
void tst_SingleControllerPlaying::fingersComeUp()
{
    QFETCH(QString, what);
    QFETCH(QString, next);
    applyArena();
    QTest::keyPress(f().video(), Qt::Key_F);
    QTest::keyPress(f().video(), Qt::Key_Q);
    QTest::keyPress(f().video(), Qt::Key_W);
    takeCalls();
    if (what == QLatin1String("stand-by"))
        f().standBy();
    else if (what == QLatin1String("close"))
        window().close();
    else if (what == QLatin1String("editor"))
        window().onKeyboardMapBtnClicked();
    else if (what == QLatin1String("one click"))
        window().onApplyKeyBindingBtnClicked();
    else if (what == QLatin1String("focus"))
        f().video()->clearFocus();
    else
        window().applyDevice();
    QStringList calls;
    QVERIFY(QTest::qWaitFor([&calls] {
        calls.append(takeCalls());
        return calls.contains(liftCall());
    }));
    QCOMPARE(calls.count(liftCall()), 1);
    for (const OvAuxiliaryKey *key : f().manager()->keys())
        QVERIFY(!key->isPressed());
    QCOMPARE(f().video()->cursor().shape(), Qt::ArrowCursor);
    const int lifted = calls.indexOf(liftCall());
    for (int i = 0; i < lifted; ++i)
        QVERIFY2(calls.at(i).contains(QLatin1String("sendTouchEvent")), qPrintable(calls.at(i)));
    if (!next.isEmpty())
        QVERIFY2(calls.value(lifted + 1).contains(next), qPrintable(calls.join('\n')));
}

void tst_SingleControllerPlaying::standByTakesNoKeys()
{
    applyArena();
    f().standBy();
    takeCalls();
    for (const int key : {Qt::Key_F, Qt::Key_W, Qt::Key_Q})
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    QCOMPARE(takeCalls(), QStringList());
    window().onResumeBtnClicked();
    takeCalls();
    QTest::keyPress(f().video(), Qt::Key_F);
    QCOMPARE(touches(), QStringList{touchCall(0, {Fire})});
}

void tst_SingleControllerPlaying::touchesAreOperations()
{
    applyArena();
    const int before = f().child<StandbyTimer>()->timerId();
    emit f().manager()->lastClickKey()->OvAuxiliaryKey::sigAuxiliaryKeyAction(2);
    QVERIFY(f().child<StandbyTimer>()->timerId() != before);
}

void tst_SingleControllerPlaying::tutorial()
{
    f().server.setAnswerFor("guide", R"({"code": 200, "msg": "success", "data": {"title": "Key mapping",
        "pages": [{"title": "One", "text": "First"}, {"title": "Two", "text": "Second"}]}})");
    QVERIFY(f().edit());
    f().button("tutorialButton")->click();
    const auto guides = [] {
        QVector<QPointer<KeyMapGuide>> found;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *guide = qobject_cast<KeyMapGuide *>(widget))
                found << guide;
        }
        return found;
    };
    QCOMPARE(guides().size(), 1);
    const QPointer<KeyMapGuide> guide = guides().first();
    QVERIFY(guide->isVisible());
    QTRY_COMPARE(guide->pageCount(), 2);
    f().button("tutorialButton")->click();
    QCOMPARE(guides().size(), 1); // the same one
    window().close();
    QTRY_VERIFY(!guide);
    // Nor does it outlive a window that is destroyed at once.
    f().makeWindow();
    window().onTutorialBtnClicked();
    QCOMPARE(guides().size(), 1);
    const QPointer<KeyMapGuide> second = guides().first();
    m_fixture->window.reset();
    QTRY_VERIFY(!second);
}

void tst_SingleControllerPlaying::sharing()
{
    QVERIFY(f().edit());
    f().button("uploadButton")->click();
    const QPointer<ShareConfigDlg> dialog = f().child<ShareConfigDlg>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->pos(), f().button("uploadButton")->mapToGlobal(QPoint(0, 0)));
    f().button("uploadButton")->click();
    QCOMPARE(window().findChildren<ShareConfigDlg *>().size(), 1);
    dialog->findChild<QLineEdit *>()->setText(QStringLiteral("K7Q2M9XD4T"));
    f().server.bodies.clear();
    f().server.requestLines.clear();
    f().server.setAnswerFor("mapConfigList", listAnswer({arenaScheme(), arenaScheme("K7Q2M9XD4T")}));
    emit dialog->sigConfirmBtnClicked();
    QTRY_VERIFY(!dialog || !dialog->isVisible());
    QCOMPARE(f().bodiesTo("shareMapConfig").size(), 1);
    QCOMPARE(f().bodiesTo("shareMapConfig").first(), QJsonObject({{"map_id", "K7Q2M9XD4T"}}));
    QCOMPARE(f().toast(), QStringLiteral("Operated successfully"));
    QTRY_COMPARE(f().box()->count(), 3);
    f().server.setAnswerFor("mapConfigList", listAnswer({arenaScheme()}));
}

void tst_SingleControllerPlaying::unknownCode()
{
    f().setServiceAnswer(R"({"code": 404, "msg": "There is no such scheme", "data": {}})");
    QVERIFY(f().edit());
    f().button("uploadButton")->click();
    auto *dialog = f().child<ShareConfigDlg>();
    dialog->findChild<QLineEdit *>()->setText(QStringLiteral("NOSUCHCODE"));
    emit dialog->sigConfirmBtnClicked();
    QTRY_COMPARE(f().toast(), QStringLiteral("There is no such scheme"));
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->code(), QStringLiteral("NOSUCHCODE"));
    QVERIFY(f().manager()->isRecording());
}

void tst_SingleControllerPlaying::closingClosesTheDialogs()
{
    QVERIFY(f().edit());
    f().button("uploadButton")->click();
    const QPointer<ShareConfigDlg> dialog = f().child<ShareConfigDlg>();
    window().close();
    QVERIFY(!dialog || !dialog->isVisible());
    window().onShareConfig(); // nothing is asked any more
}

QTEST_MAIN(tst_SingleControllerPlaying)

#include "tst_singlecontrollerplaying.moc"
