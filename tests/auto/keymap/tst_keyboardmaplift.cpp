#include "KeyMapFixture.h"

#include <QCursor>
#include <QMenu>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>

// That every finger which the keys put down comes up again, whatever happens meanwhile.
class TestKeyboardMapLift : public KeyMapFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { tearDown(); }

    void lifts_data();
    void lifts();
    void keepsTheFingerWhileTheFocusIsOnAKey();
    void randomEvents();

private:
    void happen(const QString &what);
    void randomEvent(QRandomGenerator &random);
    void checkFingers() const;

    OvAuxiliaryClick *m_click = nullptr;
    OvAuxiliaryWalking *m_walking = nullptr;
    OvAuxiliaryCrosshair *m_crosshair = nullptr;
    QMap<int, QVector<int>> m_actions; // of each kind of key
    QMap<QObject *, int> m_down; // what each key said last
};

void TestKeyboardMapLift::init()
{
    setUp();
    m_click = make<OvAuxiliaryClick>("Q");
    m_walking = make<OvAuxiliaryWalking>();
    m_crosshair = make<OvAuxiliaryCrosshair>("R");
}

void TestKeyboardMapLift::lifts_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"focus lost", "another window", "popup", "view hidden", "window hidden",
             "window closed", "view disabled", "editor opened", "keys cleared", "key deleted",
             "stream restarted", "view destroyed"})
        QTest::newRow(what) << QString(what);
}

void TestKeyboardMapLift::happen(const QString &what)
{
    if (what == "focus lost") {
        m_field->setFocus();
    } else if (what == "another window") {
        QEvent event(QEvent::WindowDeactivate);
        QApplication::sendEvent(m_window.get(), &event);
    } else if (what == "popup") {
        QMenu menu(m_window.get());
        menu.addAction("x");
        menu.popup(m_window->mapToGlobal(QPoint(400, 400)));
    } else if (what == "view hidden") {
        m_view->hide();
    } else if (what == "window hidden") {
        m_window->hide();
    } else if (what == "window closed") {
        m_window->close();
    } else if (what == "view disabled") {
        m_view->setEnabled(false);
    } else if (what == "editor opened") {
        m_manager->setRecording(true);
    } else if (what == "keys cleared") {
        m_manager->clearKeys();
    } else if (what == "key deleted") {
        for (OvAuxiliaryKey *key : m_manager->keys())
            key->findChild<QPushButton *>("deleteButton")->click();
    } else if (what == "stream restarted") {
        m_manager->liftFingers();
    } else {
        delete m_view;
    }
}

void TestKeyboardMapLift::lifts()
{
    QFETCH(QString, what);
    const QPoint before = m_window->mapToGlobal(QPoint(500, 300));
    QCursor::setPos(before);
    m_actions.clear();
    for (OvAuxiliaryKey *key : m_manager->keys()) {
        connect(key, &OvAuxiliaryKey::sigAuxiliaryKeyAction, this,
            [this, type = key->type()](int action) { m_actions[type].append(action); });
    }
    press(Qt::Key_Q);
    press(Qt::Key_D);
    press(Qt::Key_R);
    happen(what);
    const QVector<int> downAndUp{0, 1};
    QCOMPARE(m_actions.value(0), downAndUp);
    QCOMPARE(m_actions.value(1).last(), 1);
    QCOMPARE(m_actions.value(1).count(1), 1);
    QCOMPARE(m_actions.value(2), downAndUp);
    QCOMPARE(m_sent.last(), QString("1: -1,-1"));
    QCOMPARE(QCursor::pos(), before);
    if (what == "view destroyed")
        return;
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);
    if (what == "keys cleared" || what == "key deleted")
        return;
    QCOMPARE(m_walking->heldMask(), 0);

    // The releases come after all, and mean nothing any more.
    m_manager->setRecording(false);
    m_view->setEnabled(true);
    m_view->show();
    m_window->show();
    takeSent();
    release(Qt::Key_D);
    release(Qt::Key_Q);
    QCOMPARE(m_walking->heldMask(), 0);
    QCOMPARE(takeSent(), QStringList());
    press(Qt::Key_D);
    release(Qt::Key_D);
    press(Qt::Key_Q);
    release(Qt::Key_Q);
    QCOMPARE(m_sent, (QStringList{"0: 360,640", "1: -1,-1", "0: 360,640", "1: -1,-1"}));
}

// A click on a key takes the focus from the view for a moment.
void TestKeyboardMapLift::keepsTheFingerWhileTheFocusIsOnAKey()
{
    press(Qt::Key_D);
    m_click->setFocus();
    QVERIFY(m_walking->isPressed());
    m_view->setFocus();
    QVERIFY(m_walking->isPressed());
    m_click->setFocus();
    m_field->setFocus();
    QVERIFY(!m_walking->isPressed());
}

// One event of a user, a window system or a program.
void TestKeyboardMapLift::randomEvent(QRandomGenerator &random)
{
    const QVector<int> keys{Qt::Key_W, Qt::Key_A, Qt::Key_S, Qt::Key_D, Qt::Key_Q, Qt::Key_E, Qt::Key_R};
    const int key = keys.at(random.bounded(keys.size()));
    switch (random.bounded(24)) {
    case 0:
        m_field->setFocus();
        break;
    case 1:
        happen("another window");
        break;
    case 2:
        m_manager->setRecording(!m_manager->isRecording());
        break;
    case 3:
        turn(random.bounded(2) == 0 ? ScreenOrientation::Portrait : ScreenOrientation::Landscape);
        break;
    case 4:
        m_view->setEnabled(random.bounded(2) == 0);
        break;
    case 5:
        if (random.bounded(4) == 0)
            happen("keys cleared");
        break;
    case 6: {
        const QVector<OvAuxiliaryKey *> all = m_manager->keys();
        if (!all.isEmpty())
            all.at(random.bounded(all.size()))->findChild<QPushButton *>("deleteButton")->click();
        break;
    }
    case 7:
        QCoreApplication::processEvents();
        break;
    case 8:
        QCursor::setPos(QCursor::pos() + QPoint(random.bounded(-60, 60), random.bounded(-60, 60)));
        mouse(m_view, QEvent::MouseMove, m_view->mapFromGlobal(QCursor::pos()), Qt::NoButton);
        break;
    case 9:
        mouse(m_view, random.bounded(2) == 0 ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease,
            {random.bounded(340), random.bounded(340)});
        break;
    default:
        m_view->setFocus();
        send(random.bounded(2) == 0 ? QEvent::KeyPress : QEvent::KeyRelease, key, random.bounded(8) == 0,
            random.bounded(2) == 0 ? static_cast<quint32>(key % 100) : 0);
    }
}

// What the keys said is what they hold, and no more points are sent than there are fingers.
void TestKeyboardMapLift::checkFingers() const
{
    QVector<int> xs;
    QVector<int> ys;
    m_manager->collectTouchPoints(xs, ys, {720, 1280});
    QCOMPARE(xs.size(), ys.size());
    int pressed = 0;
    for (OvAuxiliaryKey *key : m_manager->keys()) {
        QCOMPARE(m_down.value(key, 0) == 1, key->isPressed());
        pressed += key->isPressed() ? 1 : 0;
    }
    QCOMPARE(xs.size(), pressed);
}

void TestKeyboardMapLift::randomEvents()
{
    QRandomGenerator random(20261121);
    const QPoint before = m_window->mapToGlobal(QPoint(500, 300));
    QCursor::setPos(before);
    const auto follow = [this](OvAuxiliaryKey *key) {
        connect(key, &OvAuxiliaryKey::sigAuxiliaryKeyAction, this, [this, key](int action) {
            if (action != keymap::Move)
                m_down[key] = action == keymap::Press ? 1 : 0;
        });
        connect(key, &QObject::destroyed, this, [this, key] {
            QCOMPARE(m_down.value(key, 0), 0);
            m_down.remove(key);
        });
    };
    for (OvAuxiliaryKey *key : m_manager->keys())
        follow(key);
    int downs = 0;
    for (int i = 0; i < 2000; ++i) {
        randomEvent(random);
        if (!m_manager->hasPendingKey(0) && m_manager->keys().size() < 5)
            follow(make<OvAuxiliaryClick>(random.bounded(2) == 0 ? "Q" : "E"));
        if (!m_manager->walkingKey())
            follow(make<OvAuxiliaryWalking>());
        if (!m_manager->crosshairKey())
            follow(make<OvAuxiliaryCrosshair>("R"));
        checkFingers();
        if (QTest::currentTestFailed())
            return;
        downs += m_sent.filter(QRegularExpression("^0")).size();
        m_sent.clear();
    }
    QVERIFY2(downs > 100, qPrintable(QString::number(downs)));
    press(Qt::Key_Q);
    QEvent up(QEvent::WindowDeactivate);
    QApplication::sendEvent(m_window.get(), &up);
    mouse(m_view, QEvent::MouseButtonRelease, {1, 1});
    for (const int down : qAsConst(m_down))
        QCOMPARE(down, 0);
    for (const OvAuxiliaryKey *key : m_manager->keys())
        QVERIFY(!key->isPressed());
    QCOMPARE(m_walking ? m_manager->walkingKey()->heldMask() : 0, 0);
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);
    QVERIFY(!m_view->hasMouseTracking());
}

QTEST_MAIN(TestKeyboardMapLift)
#include "tst_keyboardmaplift.moc"
