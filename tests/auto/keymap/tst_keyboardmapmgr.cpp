#include "KeyMapFixture.h"

#include <QSignalSpy>

// The manager of the keys: which there are, what they hold, and how a scheme is written.
class TestKeyboardMapMgr : public KeyMapFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void defaults();
    void states();
    void pendingKeys();
    void bindingsInUse();
    void pointsInOrder();
    void writesNoKeys();
    void writesKeys();
    void deletesKeys();
    void clearsKeys();
    void refusesAKeyOfAnotherType();
    void outlivesItsKeys();
};

void TestKeyboardMapMgr::defaults()
{
    QVERIFY(!m_manager->isRecording());
    QVERIFY(!m_manager->isModified());
    QVERIFY(!m_manager->isComboBoxUpdating());
    QVERIFY(m_manager->showKeys());
    QVERIFY(m_manager->showKeyNotes());
    QCOMPARE(m_manager->mapConfigs(), QJsonArray());
    QCOMPARE(m_manager->mapConfigAt(0), QJsonObject());
    QCOMPARE(m_manager->mapConfigAt(-1), QJsonObject());
    QCOMPARE(m_manager->currentMapId(), QString());
    QCOMPARE(m_manager->currentConfigJson(), QString());
    QVERIFY(!m_manager->lastClickKey());
}

void TestKeyboardMapMgr::states()
{
    QSignalSpy recording(m_manager, &KeyboardMapMgr::sigRecordingStatusChanged);
    QSignalSpy updating(m_manager, &KeyboardMapMgr::sigComboBoxUpdate);
    m_manager->setRecording(true);
    m_manager->setRecording(true);
    m_manager->setRecording(false);
    m_manager->setComboBoxUpdating(true);
    QCOMPARE(QList<QVariantList>(recording), (QList<QVariantList>{{true}, {true}, {false}}));
    QCOMPARE(QList<QVariantList>(updating), (QList<QVariantList>{{true}}));
    m_manager->onShowBtnCheckBoxStateChanged(Qt::Unchecked);
    QVERIFY(!m_manager->showKeys());
    m_manager->onShowBtnCheckBoxStateChanged(Qt::Checked);
    QVERIFY(m_manager->showKeys());
    m_manager->onShowNoteCheckBoxStateChanged(Qt::Unchecked);
    QVERIFY(!m_manager->showKeyNotes());
}

void TestKeyboardMapMgr::pendingKeys()
{
    for (const int type : {0, 1, 2})
        QVERIFY(!m_manager->hasPendingKey(type));
    auto *click = make<OvAuxiliaryClick>();
    QVERIFY(m_manager->hasPendingKey(0));
    QCOMPARE(m_manager->lastClickKey(), click);
    click->setKeyText("Q");
    QVERIFY(!m_manager->hasPendingKey(0));
    make<OvAuxiliaryClick>();
    QVERIFY(m_manager->hasPendingKey(0));
    auto *walking = make<OvAuxiliaryWalking>();
    make<OvAuxiliaryCrosshair>("R");
    QVERIFY(m_manager->hasPendingKey(1));
    QVERIFY(m_manager->hasPendingKey(2));
    delete walking;
    QVERIFY(!m_manager->hasPendingKey(1));
    QVERIFY(!m_manager->walkingKey());
}

void TestKeyboardMapMgr::bindingsInUse()
{
    for (const char *letter : {"W", "A", "S", "D"})
        QVERIFY(m_manager->isKeyBindingInUse(letter));
    QCOMPARE(toastText(), QString("This Key Binding is Already in Use"));
    qDeleteAll(m_window->findChildren<OvToast *>());
    QVERIFY(!m_manager->isKeyBindingInUse("Q"));
    QCOMPARE(toastText(), QString());
    make<OvAuxiliaryClick>("Q");
    make<OvAuxiliaryCrosshair>("R");
    QVERIFY(m_manager->isKeyBindingInUse("Q"));
    QVERIFY(m_manager->isKeyBindingInUse("R"));
    QVERIFY(!m_manager->isKeyBindingInUse("Space"));
}

// Click keys, crosshair, walking key.
void TestKeyboardMapMgr::pointsInOrder()
{
    make<OvAuxiliaryWalking>()->placeAt({0, 0});
    make<OvAuxiliaryCrosshair>("R")->placeAt({100, 100});
    make<OvAuxiliaryClick>("Q")->placeAt({200, 200});
    make<OvAuxiliaryClick>("E")->placeAt({300, 300});
    for (const int key : {Qt::Key_W, Qt::Key_R, Qt::Key_E, Qt::Key_Q})
        press(key);
    QVector<int> xs{7};
    QVector<int> ys{8};
    m_manager->collectTouchPoints(xs, ys, {340, 600});
    QCOMPARE(xs, (QVector<int>{7, 215, 315, 115, 40}));
    QCOMPARE(ys, (QVector<int>{8, 215, 315, 115, 40}));
}

void TestKeyboardMapMgr::writesNoKeys()
{
    QCOMPARE(m_manager->keysToJson(), QString("[\n]\n"));
}

void TestKeyboardMapMgr::writesKeys()
{
    auto *crosshair = make<OvAuxiliaryCrosshair>("R");
    crosshair->placeAt({1, 2});
    auto *walking = make<OvAuxiliaryWalking>();
    walking->placeAt({3, 4});
    walking->setNote("Go");
    auto *first = make<OvAuxiliaryClick>("Space");
    first->placeAt({5, 6});
    first->setNote(QString::fromUtf8("Sprung \"hoch\" \u00fc"));
    make<OvAuxiliaryClick>("Q")->placeAt({7, 8});
    const char *const wanted = R"([
    {
        "edit": true,
        "editShow": "",
        "key": "Space",
        "remark": "Sprung \"hoch\" ü",
        "x": 5,
        "y": 6
    },
    {
        "edit": true,
        "editShow": "",
        "key": "Q",
        "remark": "",
        "x": 7,
        "y": 8
    },
    {
        "edit": false,
        "editShow": "",
        "key": true,
        "remark": "Go",
        "x": 3,
        "y": 4
    },
    {
        "edit": true,
        "editShow": "",
        "isLockKey": true,
        "key": "R",
        "mouseDpi": 1.9,
        "remark": "",
        "x": 1,
        "y": 2
    }
]
)";
    QCOMPARE(m_manager->keysToJson(), QString::fromUtf8(wanted));
}

void TestKeyboardMapMgr::deletesKeys()
{
    const QPointer<OvAuxiliaryClick> click = make<OvAuxiliaryClick>("Q");
    const QPointer<OvAuxiliaryWalking> walking = make<OvAuxiliaryWalking>();
    emit click->sigDeleteBtnCicked();
    QVERIFY(!m_manager->lastClickKey()); // out of the list at once, gone later
    QVERIFY(click);
    emit walking->sigDeleteBtnCicked();
    QVERIFY(walking);
    QTRY_VERIFY(!click && !walking && !m_manager->walkingKey());
}

void TestKeyboardMapMgr::clearsKeys()
{
    make<OvAuxiliaryClick>("Q");
    make<OvAuxiliaryWalking>();
    make<OvAuxiliaryCrosshair>("R");
    m_manager->setCurrentMapId("17");
    m_manager->setModified(true);
    m_manager->setComboBoxUpdating(true);
    m_manager->onComboBoxItemChanged(0); // not the user's choice
    QVERIFY(!m_manager->isModified());
    QCOMPARE(m_manager->keys().size(), 3);
    QCOMPARE(m_manager->currentMapId(), QString("17"));
    m_manager->setComboBoxUpdating(false);
    m_manager->onComboBoxItemChanged(0); // beyond the list, which is empty
    QCOMPARE(m_manager->keys().size(), 0);
    QVERIFY(m_view->findChildren<OvAuxiliaryKey *>().isEmpty());
    QCOMPARE(m_manager->currentMapId(), QString());
}

void TestKeyboardMapMgr::refusesAKeyOfAnotherType()
{
    auto *key = new OvAuxiliaryClick(m_manager, m_view);
    QTest::ignoreMessage(QtWarningMsg, "an auxiliary key is not of the type that it is added as: 1");
    m_manager->addAuxiliaryKey(1, key);
    QVERIFY(!m_manager->hasPendingKey(1));
    QTest::ignoreMessage(QtWarningMsg, "an auxiliary key is not of the type that it is added as: 0");
    m_manager->addAuxiliaryKey(0, nullptr);
}

void TestKeyboardMapMgr::outlivesItsKeys()
{
    delete make<OvAuxiliaryClick>("Q");
    QCOMPARE(m_manager->keysToJson(), QString("[\n]\n"));
    QVERIFY(!m_manager->isKeyBindingInUse("Q"));
    auto *key = make<OvAuxiliaryClick>("E");
    delete m_manager;
    press(Qt::Key_E);
    QVERIFY(key->isPressed() && !key->isRecording());
    release(Qt::Key_E);
}

QTEST_MAIN(TestKeyboardMapMgr)
#include "tst_keyboardmapmgr.moc"
