#include "KeyMapFixture.h"

#include <QSignalSpy>

// The key that taps.
class TestOvAuxiliaryClick : public KeyMapFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void taps();
    void oneReceiverOneSignal();
    void passesRepeatsOn();
    void passesAReleaseWithoutPressOn();
    void ignoresTheReleaseOfAPressThatWentElsewhere();
    void ignoresOtherKeys();
    void isQuietWhileEdited();
    void neverConsumes();
    void comesUpAsAnotherKey();
    void severalAtOnce();
};

void TestOvAuxiliaryClick::taps()
{
    auto *key = make<OvAuxiliaryClick>("Space");
    QCOMPARE(key->type(), 0);
    QVERIFY(key->isBound());
    QCOMPARE(key->touchPoint({720, 1280}), QPointF(-1, -1));
    press(Qt::Key_Space);
    QVERIFY(key->isPressed());
    QCOMPARE(key->touchPoint({720, 1280}), QPointF(360, 640));
    release(Qt::Key_Space);
    QVERIFY(!key->isPressed());
    QCOMPARE(m_sent, (QStringList{"0: 360,640", "1: -1,-1"}));
}

// By its own signal, by the base's, or by name: each carries every action once.
void TestOvAuxiliaryClick::oneReceiverOneSignal()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    QSignalSpy own(key, &OvAuxiliaryClick::sigAuxiliaryKeyAction);
    QSignalSpy base(key, &OvAuxiliaryKey::sigAuxiliaryKeyAction);
    QSignalSpy named(key, SIGNAL(sigAuxiliaryKeyAction(int)));
    press(Qt::Key_Q);
    release(Qt::Key_Q);
    const QList<QVariantList> wanted{{0}, {1}};
    QCOMPARE(QList<QVariantList>(own), wanted);
    QCOMPARE(QList<QVariantList>(base), wanted);
    QCOMPARE(QList<QVariantList>(named), wanted);
}

void TestOvAuxiliaryClick::passesRepeatsOn()
{
    make<OvAuxiliaryClick>("Q");
    press(Qt::Key_Q);
    send(QEvent::KeyPress, Qt::Key_Q, true);
    send(QEvent::KeyRelease, Qt::Key_Q, true);
    send(QEvent::KeyPress, Qt::Key_Q, true);
    release(Qt::Key_Q);
    QCOMPARE(m_sent, (QStringList{"0: 360,640", "0: 360,640", "1: -1,-1", "0: 360,640", "1: -1,-1"}));
}

void TestOvAuxiliaryClick::passesAReleaseWithoutPressOn()
{
    make<OvAuxiliaryClick>("Q");
    release(Qt::Key_Q);
    QCOMPARE(m_sent, QStringList{"1: -1,-1"});
}

// It was pressed while another window had the keyboard.
void TestOvAuxiliaryClick::ignoresTheReleaseOfAPressThatWentElsewhere()
{
    make<OvAuxiliaryClick>("Q");
    QEvent event(QEvent::WindowDeactivate);
    QApplication::sendEvent(m_window.get(), &event);
    release(Qt::Key_Q);
    QCOMPARE(takeSent(), QStringList());
    press(Qt::Key_Q);
    release(Qt::Key_Q);
    QCOMPARE(m_sent, (QStringList{"0: 360,640", "1: -1,-1"}));
}

void TestOvAuxiliaryClick::ignoresOtherKeys()
{
    make<OvAuxiliaryClick>("Q");
    auto *unbound = make<OvAuxiliaryClick>();
    QVERIFY(!unbound->isBound());
    press(Qt::Key_E);
    release(Qt::Key_E);
    press(0); // a key that the toolkit does not know has no name either
    release(0);
    press(Qt::Key_unknown);
    release(Qt::Key_unknown);
    QCOMPARE(m_sent, QStringList());
}

void TestOvAuxiliaryClick::isQuietWhileEdited()
{
    make<OvAuxiliaryClick>("Q");
    m_manager->setRecording(true);
    press(Qt::Key_Q);
    release(Qt::Key_Q);
    QCOMPARE(m_sent, QStringList());
    m_manager->setRecording(false);
    press(Qt::Key_Q);
    QCOMPARE(m_sent, QStringList{"0: 360,640"});
}

void TestOvAuxiliaryClick::neverConsumes()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    for (const bool isRepeat : {false, true}) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_Q, Qt::NoModifier, QString(), isRepeat);
            QVERIFY(!key->eventFilter(m_window.get(), &event));
        }
    }
}

// 1, then Shift, and what comes up is an exclamation mark.
void TestOvAuxiliaryClick::comesUpAsAnotherKey()
{
    auto *key = make<OvAuxiliaryClick>("1");
    send(QEvent::KeyPress, Qt::Key_1, false, 10);
    send(QEvent::KeyPress, Qt::Key_Shift, false, 50);
    send(QEvent::KeyRelease, Qt::Key_Exclam, false, 10);
    QVERIFY(!key->isPressed());
    QCOMPARE(takeSent(), (QStringList{"0: 360,640", "1: -1,-1"}));
    send(QEvent::KeyRelease, Qt::Key_Exclam, false, 10);
    send(QEvent::KeyRelease, Qt::Key_Shift, false, 50);
    QCOMPARE(m_sent, QStringList());
}

// Each touch carries the fingers that are down, in the order of the keys.
void TestOvAuxiliaryClick::severalAtOnce()
{
    auto *first = make<OvAuxiliaryClick>("Q");
    auto *second = make<OvAuxiliaryClick>("E");
    first->placeAt({0, 0}); // 30 x 30
    second->placeAt({310, 570});
    press(Qt::Key_E);
    press(Qt::Key_Q);
    release(Qt::Key_E);
    release(Qt::Key_Q);
    QCOMPARE(m_sent, (QStringList{"0: 688,1248", "0: 31,32 688,1248", "1: 31,32", "1: -1,-1"}));
}

QTEST_MAIN(TestOvAuxiliaryClick)
#include "tst_ovauxiliaryclick.moc"
