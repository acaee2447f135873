// How the editor of the key mapping is left: with and without changes, and with the window.

#include "KeyMappingFixture.h"

#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace devicetest;

namespace {

const QString Question
    = QStringLiteral("The current layout is not saved yet. Do you want to save the current keyboard layout");
const QByteArray Refusal = R"({"code": 500, "msg": "The service is being maintained", "data": {}})";
const QStringList SavedKeys = {QStringLiteral("F"), QString(), QStringLiteral("Q")};
const QStringList ChangedKeys = {QStringLiteral("E"), QString(), QStringLiteral("Q")};

} // namespace

class tst_SingleControllerLeaving : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_fixture = std::make_unique<KeyMappingFixture>(); }
    void init();
    void cleanup();
    void withoutChanges();
    void confirmedSaves();
    void declinedDiscards();
    void declinedAfterASave();
    void escapeStays();
    void onlyOneQuestion();
    void refusedSaveLosesNothing_data();
    void refusedSaveLosesNothing();
    void closeAsks_data();
    void closeAsks();
    void closeSavesFirst();
    void closeStaysWhenTheSaveFails();
    void closeDiscards();
    void closeThenStay();
    void closedByTheProgram();
    void closedWithoutChanges();
    void destroyedWhileEditing();

private:
    KeyMappingFixture &f() const { return *m_fixture; }
    SingleController &window() const { return *m_fixture->window; }
    bool isOpen() const { return f().manager()->isRecording() && f().editor()->isVisible(); }

    std::unique_ptr<KeyMappingFixture> m_fixture;
};

void tst_SingleControllerLeaving::init()
{
    f().setServiceAnswer(R"({"code": 200, "msg": "success", "data": {}})");
    QVERIFY(f().openWindow());
}

void tst_SingleControllerLeaving::cleanup()
{
    m_fixture->window.reset();
}

void tst_SingleControllerLeaving::withoutChanges()
{
    QVERIFY(f().editArena());
    f().button("exitButton")->click();
    QVERIFY(!f().question());
    QVERIFY(!isOpen());
    QCOMPARE(f().keyTexts(), SavedKeys);
    QCOMPARE(f().bodiesTo("actionMapConfig").size(), 0);
}

void tst_SingleControllerLeaving::confirmedSaves()
{
    QVERIFY(f().changeArena());
    f().button("exitButton")->click();
    QVERIFY(f().question());
    QCOMPARE(f().question()->text(), Question);
    QCOMPARE(f().question()->geometry(), QRect(10, 10, 640, 640));
    QVERIFY(isOpen());
    f().answer("Confirm");
    QVERIFY(!isOpen());
    QTRY_COMPARE(f().bodiesTo("actionMapConfig").size(), 1);
    QCOMPARE(f().keyTexts(), ChangedKeys);
    QVERIFY(window().isVisible());
    QTRY_VERIFY(!f().manager()->isModified());
}

void tst_SingleControllerLeaving::declinedDiscards()
{
    QVERIFY(f().changeArena());
    f().manager()->lastClickKey()->placeAt(QPoint(10, 10));
    f().button("exitButton")->click();
    f().answer("Close");
    QVERIFY(!isOpen());
    QCOMPARE(f().keyTexts(), SavedKeys);
    QCOMPARE(f().manager()->lastClickKey()->pos(), QPoint(244, 416));
    QCOMPARE(f().manager()->lastClickKey()->note(), QStringLiteral("Fire"));
    QVERIFY(!f().manager()->isModified());
    QCOMPARE(f().bodiesTo("actionMapConfig").size(), 0);
}

// What was saved in this window is what is gone back to, whatever the list of schemes says.
void tst_SingleControllerLeaving::declinedAfterASave()
{
    QVERIFY(f().changeArena());
    f().button("saveButton")->click();
    QTRY_COMPARE(f().bodiesTo("actionMapConfig").size(), 1);
    QVERIFY(f().edit());
    f().bind(f().manager()->lastClickKey(), Qt::Key_R);
    f().button("exitButton")->click();
    f().answer("Close");
    QCOMPARE(f().keyTexts(), ChangedKeys);
    QCOMPARE(f().manager()->lastClickKey()->pos(), QPoint(244, 416));
}

void tst_SingleControllerLeaving::escapeStays()
{
    QVERIFY(f().changeArena());
    f().button("exitButton")->click();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTRY_VERIFY(!f().question());
    QVERIFY(isOpen() && f().manager()->isModified());
    QCOMPARE(f().keyTexts(), ChangedKeys);
    f().button("exitButton")->click();
    QVERIFY(f().question()); // it asks again
}

void tst_SingleControllerLeaving::onlyOneQuestion()
{
    QVERIFY(f().changeArena());
    window().onExitKeyBoardEditBtnClicked();
    window().onExitKeyBoardEditBtnClicked();
    QCOMPARE(window().findChildren<OvMaskTipsDialog *>().size(), 1);
}

void tst_SingleControllerLeaving::refusedSaveLosesNothing_data()
{
    QTest::addColumn<bool>("offline");
    QTest::newRow("refused") << false;
    QTest::newRow("offline") << true;
}

// The message is shown; the keys are in use and in the local copy, and the editor knows them as not saved.
void tst_SingleControllerLeaving::refusedSaveLosesNothing()
{
    QFETCH(bool, offline);
    QVERIFY(f().changeArena());
    f().setServiceAnswer(Refusal);
    f().server.setDropping(offline);
    QSignalSpy saved(f().manager(), &KeyboardMapMgr::sigSaved);
    f().button("saveButton")->click();
    QTRY_COMPARE(saved.size(), 1);
    QCOMPARE(saved.first().first().toBool(), false);
    if (offline)
        QVERIFY(!f().toast().isEmpty());
    else
        QCOMPARE(f().toast(), QStringLiteral("The service is being maintained"));
    QCOMPARE(f().keyTexts(), ChangedKeys);
    QVERIFY(f().localCopy().value("config").toString().contains(QLatin1String("\"key\": \"E\"")));
    f().server.setDropping(false);
    f().setServiceAnswer(R"({"code": 200, "msg": "success", "data": {}})");
    f().server.bodies.clear();
    f().server.requestLines.clear();
    QVERIFY(f().edit());
    QCOMPARE(f().keyTexts(), ChangedKeys);
    f().button("exitButton")->click();
    QVERIFY(f().question());
    f().answer("Confirm");
    QTRY_COMPARE(f().bodiesTo("actionMapConfig").size(), 1);
    QVERIFY(f().bodiesTo("actionMapConfig")
                .first()
                .value("config")
                .toString()
                .contains(QLatin1String("\"key\": \"E\"")));
}

void tst_SingleControllerLeaving::closeAsks_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"button", "window manager", "stand-by"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void tst_SingleControllerLeaving::closeAsks()
{
    QFETCH(QString, how);
    QVERIFY(f().changeArena());
    QSignalSpy closeClicked(&window(), &OvWindowBase::sigCloseBtnClicked);
    if (how == QLatin1String("button")) {
        window().titleBar()->findChild<QPushButton *>(QStringLiteral("closeButton"))->click();
    } else if (how == QLatin1String("window manager")) {
        QVERIFY(!f().closeByWindowManager());
    } else {
        f().standBy();
        window().onExitBtnClicked();
    }
    QVERIFY(f().question());
    QCOMPARE(f().question()->text(), Question);
    QVERIFY(window().isVisible());
    QCOMPARE(closeClicked.size(), 0);
}

// The window is there until the service has the layout.
void tst_SingleControllerLeaving::closeSavesFirst()
{
    QVERIFY(f().changeArena());
    QSignalSpy closeClicked(&window(), &OvWindowBase::sigCloseBtnClicked);
    f().server.setAnswer(GrantedAnswer, QByteArray()); // holds every answer back
    QVERIFY(!f().closeByWindowManager());
    f().answer("Confirm");
    QTRY_COMPARE(f().bodiesTo("actionMapConfig").size(), 1);
    QVERIFY(window().isVisible() && !isOpen());
    QCOMPARE(closeClicked.size(), 0);
    f().server.answerNow();
    QTRY_VERIFY(!window().isVisible());
    QCOMPARE(closeClicked.size(), 1);
}

void tst_SingleControllerLeaving::closeStaysWhenTheSaveFails()
{
    QVERIFY(f().changeArena());
    f().setServiceAnswer(Refusal);
    QVERIFY(!f().closeByWindowManager());
    f().answer("Confirm");
    QTRY_COMPARE(f().toast(), QStringLiteral("The service is being maintained"));
    QVERIFY(window().isVisible());
    QCOMPARE(f().keyTexts(), ChangedKeys);
    QVERIFY(f().localCopy().value("config").toString().contains(QLatin1String("\"key\": \"E\"")));
    // Nobody is held in the window.
    window().titleBar()->findChild<QPushButton *>(QStringLiteral("closeButton"))->click();
    QVERIFY(!window().isVisible());
}

void tst_SingleControllerLeaving::closeDiscards()
{
    QVERIFY(f().changeArena());
    QSignalSpy closeClicked(&window(), &OvWindowBase::sigCloseBtnClicked);
    QVERIFY(!f().closeByWindowManager());
    f().answer("Close");
    QVERIFY(!window().isVisible());
    QCOMPARE(closeClicked.size(), 1);
    QCOMPARE(f().bodiesTo("actionMapConfig").size(), 0);
    QVERIFY(f().localCopy().isEmpty());
}

// Who stays and saves later does not close the window with that.
void tst_SingleControllerLeaving::closeThenStay()
{
    QVERIFY(f().changeArena());
    QVERIFY(!f().closeByWindowManager());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTRY_VERIFY(!f().question());
    QSignalSpy saved(f().manager(), &KeyboardMapMgr::sigSaved);
    f().button("saveButton")->click();
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(window().isVisible());
}

// Nobody can be asked any more.
void tst_SingleControllerLeaving::closedByTheProgram()
{
    QVERIFY(f().changeArena());
    window().onExitKeyBoardEditBtnClicked();
    QVERIFY(f().question());
    QTest::ignoreMessage(
        QtWarningMsg, "a key layout was not saved when its window was closed; it is kept as the local copy");
    window().close();
    QVERIFY(!window().isVisible() && !isOpen());
    QCOMPARE(f().bodiesTo("actionMapConfig").size(), 0);
    QVERIFY(f().localCopy().value("config").toString().contains(QLatin1String("\"key\": \"E\"")));
    QCOMPARE(f().localCopy().value("key_size"), QJsonValue(30));
    // One click brings it back.
    QVERIFY(f().open());
    f().manager()->clearKeys();
    window().onApplyKeyBindingBtnClicked();
    QCOMPARE(f().keyTexts(), ChangedKeys);
}

void tst_SingleControllerLeaving::closedWithoutChanges()
{
    QVERIFY(f().editArena());
    QVERIFY(f().closeByWindowManager());
    QVERIFY(!f().question());
    QVERIFY(f().localCopy().isEmpty());
    QVERIFY(!f().manager()->isRecording());
}

void tst_SingleControllerLeaving::destroyedWhileEditing()
{
    QVERIFY(f().changeArena());
    window().onExitKeyBoardEditBtnClicked();
    const QPointer<OvAuxiliaryKey> key = f().manager()->lastClickKey();
    m_fixture->window.reset();
    QVERIFY(!key);
}

QTEST_MAIN(tst_SingleControllerLeaving)

#include "tst_singlecontrollerleaving.moc"
