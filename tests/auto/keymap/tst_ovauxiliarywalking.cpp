#include "KeyMapFixture.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>
#include <QTimerEvent>

// The key that walks.
class TestOvAuxiliaryWalking : public KeyMapFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { tearDown(); }

    void goesInSteps();
    void goesByItsTimer();
    void diagonalAndBack();
    void changesTheHeldLetter();
    void liftsWithTheLastLetter();
    void directions_data();
    void directions();
    void pressesAgainWhileInTheMiddle();
    void togglesOnRelease();
    void consumesRepeats();
    void isQuietWhileEdited();
    void turnsWhileHeld();
    void comesUpAsAnotherLetter();
    void otherScripts_data();
    void otherScripts();
    void look();
    void isNotBound();

private:
    void tick(int times = 1) const;
    QTimer *timer() const { return m_key->findChild<QTimer *>(); }

    OvAuxiliaryWalking *m_key = nullptr;
};

void TestOvAuxiliaryWalking::init()
{
    setUp();
    m_key = make<OvAuxiliaryWalking>();
}

// As the running timer would.
void TestOvAuxiliaryWalking::tick(int times) const
{
    for (int i = 0; i < times; ++i) {
        QVERIFY(timer() && timer()->isActive());
        QTimerEvent event(timer()->timerId());
        QApplication::sendEvent(timer(), &event);
    }
}

void TestOvAuxiliaryWalking::goesInSteps()
{
    press(Qt::Key_W);
    QCOMPARE(takeSent(), QStringList{"0: 360,640"});
    QCOMPARE(timer()->interval(), 10);
    tick(3);
    QCOMPARE(takeSent(), (QStringList{"2: 360,635", "2: 360,630", "2: 360,625"}));
    tick(17);
    QCOMPARE(m_sent.size(), 17);
    QCOMPARE(takeSent().last(), QString("2: 360,540"));
    tick(); // there, and still a move
    QCOMPARE(takeSent(), QStringList{"2: 360,540"});
    QVERIFY(!timer()->isActive());
    release(Qt::Key_W);
    QCOMPARE(m_sent, QStringList{"1: -1,-1"});
    QCOMPARE(m_key->offset(), QPointF(0, 0));
}

void TestOvAuxiliaryWalking::goesByItsTimer()
{
    QElapsedTimer elapsed;
    elapsed.start();
    press(Qt::Key_D);
    QTRY_VERIFY(!timer()->isActive());
    QVERIFY2(elapsed.elapsed() >= 200, qPrintable(QString::number(elapsed.elapsed())));
    QCOMPARE(m_sent.size(), 1 + 20 + 1);
    QCOMPARE(m_sent.last(), QString("2: 460,640"));
}

void TestOvAuxiliaryWalking::diagonalAndBack()
{
    press(Qt::Key_W);
    press(Qt::Key_D);
    tick(20);
    QCOMPARE(m_key->offset(), QPointF(100, -100));
    QCOMPARE(takeSent().last(), QString("2: 460,540"));
    release(Qt::Key_D);
    tick(2);
    QCOMPARE(takeSent(), (QStringList{"2: 455,540", "2: 450,540"}));
    tick(18);
    QCOMPARE(m_key->offset(), QPointF(0, -100));
    QCOMPARE(takeSent().last(), QString("2: 360,540"));
    QVERIFY(m_key->isPressed());
}

void TestOvAuxiliaryWalking::changesTheHeldLetter()
{
    press(Qt::Key_W);
    tick(20);
    press(Qt::Key_D);
    tick(20);
    QCOMPARE(takeSent().last(), QString("2: 460,540"));
    release(Qt::Key_W);
    QVERIFY(m_key->isPressed());
    QCOMPARE(m_key->heldMask(), 8);
    QCOMPARE(takeSent(), QStringList());
    tick(20);
    QCOMPARE(takeSent().last(), QString("2: 460,640"));
}

void TestOvAuxiliaryWalking::liftsWithTheLastLetter()
{
    press(Qt::Key_A);
    press(Qt::Key_S);
    tick(7);
    release(Qt::Key_A);
    tick(2);
    takeSent();
    release(Qt::Key_S);
    QCOMPARE(takeSent(), QStringList{"1: -1,-1"});
    QCOMPARE(m_key->offset(), QPointF(0, 0));
    QVERIFY(!timer()->isActive());
    press(Qt::Key_A);
    QCOMPARE(takeSent(), QStringList{"0: 360,640"});
}

void TestOvAuxiliaryWalking::directions_data()
{
    QTest::addColumn<QString>("letters");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QPointF>("target");
    const QVector<QPair<QString, QPointF>> portrait{{"W", {0, -100}}, {"A", {-100, 0}}, {"S", {0, 100}},
        {"D", {100, 0}}, {"WA", {-100, -100}}, {"WD", {100, -100}}, {"SA", {-100, 100}}, {"SD", {100, 100}},
        {"WS", {0, 100}}, {"SW", {0, 100}}, {"AD", {100, 0}}, {"DA", {100, 0}}, {"WASD", {100, 100}}};
    for (const auto &row : portrait) {
        const QPointF &to = row.second;
        QTest::newRow(qPrintable(row.first + " portrait")) << row.first << 2 << to;
        QTest::newRow(qPrintable(row.first + " landscape")) << row.first << 1 << QPointF(-to.y(), to.x());
        QTest::newRow(qPrintable(row.first + " neither")) << row.first << 3 << to;
    }
}

void TestOvAuxiliaryWalking::directions()
{
    QFETCH(QString, letters);
    QFETCH(int, orientation);
    m_key->onScreenRotation(static_cast<ScreenOrientation>(orientation));
    for (const QChar letter : letters)
        press(letter.unicode());
    QTEST(m_key->target(), "target");
    tick(20);
    QTEST(m_key->offset(), "target");
    for (const QChar letter : letters)
        release(letter.unicode());
    QVERIFY(!m_key->isPressed());
    QCOMPARE(m_sent.last(), QString("1: -1,-1"));
}

// Before the first step the finger is where it went down, and a further press says so again, whatever the
// key.
void TestOvAuxiliaryWalking::pressesAgainWhileInTheMiddle()
{
    press(Qt::Key_Q);
    QCOMPARE(takeSent(), QStringList());
    press(Qt::Key_W);
    press(Qt::Key_D);
    press(Qt::Key_Q);
    QCOMPARE(takeSent(), (QStringList{"0: 360,640", "0: 360,640", "0: 360,640"}));
    tick();
    press(Qt::Key_Q);
    QCOMPARE(takeSent(), QStringList{"2: 365,635"});
}

// A release turns its letter over, also one that was not held.
void TestOvAuxiliaryWalking::togglesOnRelease()
{
    release(Qt::Key_W);
    QCOMPARE(m_key->heldMask(), 1);
    QVERIFY(!m_key->isPressed());
    tick();
    QCOMPARE(takeSent(), QStringList{"2: -1,-1"});
    release(Qt::Key_W);
    QCOMPARE(m_key->heldMask(), 0);
    QCOMPARE(takeSent(), QStringList());
}

void TestOvAuxiliaryWalking::consumesRepeats()
{
    press(Qt::Key_W);
    takeSent();
    for (const int key : {Qt::Key_W, Qt::Key_Q}) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent repeat(type, key, Qt::NoModifier, QString(), true);
            QVERIFY(m_key->eventFilter(m_window.get(), &repeat));
            QKeyEvent once(type, Qt::Key_Q, Qt::NoModifier, QString(), false);
            QVERIFY(!m_key->eventFilter(m_window.get(), &once));
        }
    }
    QCOMPARE(m_key->heldMask(), 1);
    m_manager->setRecording(true);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_W, Qt::NoModifier, QString(), true);
    QVERIFY(!m_key->eventFilter(m_window.get(), &repeat));
}

void TestOvAuxiliaryWalking::isQuietWhileEdited()
{
    m_manager->setRecording(true);
    press(Qt::Key_W);
    release(Qt::Key_W);
    press(Qt::Key_D);
    QCOMPARE(m_key->heldMask(), 0);
    QCOMPARE(m_sent, QStringList());
    m_manager->setRecording(false);
    release(Qt::Key_D); // of a press that the editor had
    QCOMPARE(m_key->heldMask(), 0);
    QCOMPARE(m_sent, QStringList());
}

// What is held leads to where it says on the picture as it stands now.
void TestOvAuxiliaryWalking::turnsWhileHeld()
{
    press(Qt::Key_W);
    tick(20);
    turn(ScreenOrientation::Landscape);
    QCOMPARE(m_key->target(), QPointF(100, 0));
    tick(20);
    QCOMPARE(m_sent.last(), QString("2: 460,640"));
    release(Qt::Key_W);
    QCOMPARE(m_sent.last(), QString("1: -1,-1"));
}

// The keyboard's layout was changed while a letter was held.
void TestOvAuxiliaryWalking::comesUpAsAnotherLetter()
{
    send(QEvent::KeyPress, Qt::Key_W, false, 25);
    send(QEvent::KeyRelease, 0x426, false, 25);
    QCOMPARE(m_key->heldMask(), 0);
    QCOMPARE(takeSent(), (QStringList{"0: 360,640", "1: -1,-1"}));
    send(QEvent::KeyPress, Qt::Key_W, false, 25);
    send(QEvent::KeyRelease, Qt::Key_A, false, 25);
    QCOMPARE(m_key->heldMask(), 0);
    QVERIFY(!m_key->isPressed());
}

void TestOvAuxiliaryWalking::otherScripts_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("scanCode"); // of X11
    QTest::addColumn<int>("mask");
    QTest::newRow("Russian at W") << 0x0426 << 25 << 1;
    QTest::newRow("Russian at A") << 0x0424 << 38 << 2;
    QTest::newRow("Russian at S") << 0x042B << 39 << 4;
    QTest::newRow("Russian at D") << 0x0412 << 40 << 8;
    QTest::newRow("Greek at W") << 0x03A3 << 25 << 1;
    QTest::newRow("Thai at W") << 0x0E44 << 25 << 1;
    QTest::newRow("Russian elsewhere") << 0x0426 << 24 << 0;
    QTest::newRow("French at W") << int(Qt::Key_Z) << 25 << 0; // has a W elsewhere
    QTest::newRow("Turkish F at W") << 0x011E << 25 << 0;
    QTest::newRow("Return at W") << int(Qt::Key_Return) << 25 << 0;
}

// A keyboard without Latin letters walks with the keys in the same places.
void TestOvAuxiliaryWalking::otherScripts()
{
#ifdef Q_OS_WIN
    QSKIP("other codes");
#endif
    QFETCH(int, key);
    QFETCH(int, scanCode);
    QFETCH(int, mask);
    send(QEvent::KeyPress, key, false, quint32(scanCode));
    QCOMPARE(m_key->heldMask(), mask);
    QCOMPARE(m_key->isPressed(), mask != 0);
    send(QEvent::KeyRelease, key, false, quint32(scanCode));
    QCOMPARE(m_key->heldMask(), 0);
    QVERIFY(!m_key->isPressed());
}

void TestOvAuxiliaryWalking::look()
{
    QCOMPARE(m_key->type(), 1);
    QCOMPARE(m_key->size(), QSize(80, 80));
    m_key->applySize(40);
    m_key->onSizeChanged(20);
    QCOMPARE(m_key->size(), QSize(80, 80));
    QVERIFY(m_manager->isModified());
    QVERIFY(m_key->findChild<QLabel *>("keyLabel")->isHidden());
    const QVector<QPair<QString, QPoint>> letters{
        {"W", {32, 0}}, {"S", {32, 64}}, {"A", {0, 32}}, {"D", {64, 32}}};
    m_key->applyAlpha(50);
    for (const auto &letter : letters) {
        auto *label = m_key->findChild<QLabel *>("letter" + letter.first);
        QCOMPARE(label->text(), letter.first);
        QCOMPARE(label->geometry(), QRect(letter.second, QSize(16, 16)));
        QVERIFY(label->isVisible());
        QCOMPARE(label->styleSheet(),
            QString("background-color: rgba(255, 255, 255, 0.5); color: rgba(96, 98, 102, 0.5)"));
    }
    m_manager->setRecording(true);
    m_manager->setRecording(false);
    QVERIFY(m_key->findChild<QLabel *>("keyLabel")->isHidden());
}

void TestOvAuxiliaryWalking::isNotBound()
{
    m_key->setKeyText("Q");
    QCOMPARE(m_key->keyText(), QString());
    m_manager->setRecording(true);
    QTest::keyClick(m_key, Qt::Key_Q);
    QTest::keyClick(m_key, Qt::Key_W);
    QCOMPARE(m_key->keyText(), QString());
    QCOMPARE(toastText(), QString());
    QVERIFY(!m_manager->isModified());
}

QTEST_MAIN(TestOvAuxiliaryWalking)
#include "tst_ovauxiliarywalking.moc"
