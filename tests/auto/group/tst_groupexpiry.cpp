#include "GroupWindowFixture.h"

#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTimer>

using namespace grouptest;

namespace {

const QStringList Three = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};

void click(const OvMaskTipsDialog *dialog, const char *button)
{
    QTest::mouseClick(dialog->findChild<QPushButton *>(QString::fromLatin1(button)), Qt::LeftButton);
}

} // namespace

// What the group's window does when the time of its devices runs out.
class TestGroupExpiry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void noticeOfTheMaster();
    void noticeOfATile();
    void noticeOfAnotherDevice();
    void noticeBeforeTheDevicesAreThere();
    void newerNoticeTakesTheOlderOnesPlace();
    void noticesComeOneByOne();
    void newerNoticeOfADeviceThatWaits();
    void noticeOfADeviceThatHasLeft();
    void noticeThatWaitsKnowsTheMaster();
    void noticeWaitsForTheExpiredMaster();
    void noticesOfAWindowThatCloses();
    void noKeyAnswersUnread_data();
    void noKeyAnswersUnread();
    void keyboardReachesTheAnswers();
    void doubleClickAnswersOneQuestion();
    void noticeAsksForNothing_data();
    void noticeAsksForNothing();
    void nameWithPlaceholders();
    void tileExpires();
    void lastTileExpires();
    void otherDeviceExpires();
    void masterExpires();
    void masterExpiresUnconfirmed();
    void masterExpiresWithoutTiles();
    void masterExpiresTwice();
    void masterChangesWhileTheQuestionIsOpen();
    void tileExpiresWhileTheQuestionIsOpen();
    void expiredBeneathAnotherQuestion();

private:
    // A notice about a device that goes by its id in capital letters.
    void notice(const char *id, int minutes);
    // What the questions say, oldest first: the first words, the device and its minutes.
    QStringList asked() const;
    // The requests for removed devices, once all that were sent have come.
    QList<QJsonArray> unbound();

    std::unique_ptr<Fixture> m_fixture;
};

void TestGroupExpiry::initTestCase()
{
    m_fixture = std::make_unique<Fixture>();
}

void TestGroupExpiry::init()
{
    m_fixture->makeWindow();
    QVERIFY(m_fixture->open(Three));
}

void TestGroupExpiry::cleanup()
{
    m_fixture->endWindow();
}

void TestGroupExpiry::notice(const char *id, int minutes)
{
    const QString serviceId = QString::fromLatin1(id);
    m_fixture->window->onDeviceExpireNotice(serviceId, serviceId.toUpper(), minutes);
}

QStringList TestGroupExpiry::asked() const
{
    const QRegularExpression parts(
        QStringLiteral("^The (main control|controlled) device (\\S+) will expire in (\\d+) minutes"));
    QStringList texts;
    const auto questions = m_fixture->questions();
    for (const OvMaskTipsDialog *question : questions) {
        const QRegularExpressionMatch match = parts.match(question->text());
        texts << (match.hasMatch() ? match.capturedTexts().mid(1).join(QLatin1Char(' '))
                                   : QStringLiteral("expired"));
    }
    return texts;
}

// Whatever was sent before a save comes before it.
QList<QJsonArray> TestGroupExpiry::unbound()
{
    QSignalSpy saved(m_fixture->window, &GroupWindow::updateGroup);
    m_fixture->window->onSaveGroup(QStringLiteral("x"));
    if (!saved.wait())
        qWarning("the group was not saved");
    QList<QJsonArray> ids;
    const int count = m_fixture->requests().size();
    for (int i = 0; i < count; ++i) {
        const QJsonObject body = m_fixture->body(i);
        const QString action = body.value(QStringLiteral("action_type")).toString();
        if (action == QStringLiteral("device_unbind"))
            ids.append(body.value(QStringLiteral("service_ids")).toArray());
        else if (action != QStringLiteral("create"))
            qWarning().noquote() << "another request was sent:" << action;
    }
    return ids;
}

void TestGroupExpiry::noticeOfTheMaster()
{
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("a"), QStringLiteral("Aurora"), 30);
    QCOMPARE(m_fixture->questions().size(), 1);
    const OvMaskTipsDialog *dialog = m_fixture->questions().first();
    QCOMPARE(dialog->text(),
        QStringLiteral("The main control device Aurora will expire in 30 minutes, which will affect group "
                       "control operations. Do you want to renew?"));
    QCOMPARE(dialog->title(), QStringLiteral("Hints"));
    QCOMPARE(dialog->geometry(), QRect(10, 10, 1240, 700));
    QVERIFY(dialog->isModal());
}

void TestGroupExpiry::noticeOfATile()
{
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("c"), QStringLiteral("Comet"), 5);
    QCOMPARE(m_fixture->questions().size(), 1);
    QCOMPARE(m_fixture->questions().first()->text(),
        QStringLiteral(
            "The controlled device Comet will expire in 5 minutes, which will affect group control "
            "operations. Do you want to renew?"));
}

void TestGroupExpiry::noticeOfAnotherDevice()
{
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("zzz"), QStringLiteral("Z"), 5);
    m_fixture->window->onDeviceExpireNotice(QString(), QStringLiteral("Z"), 5);
    QVERIFY(m_fixture->questions().isEmpty());
    QVERIFY(m_fixture->toasts().isEmpty());
}

void TestGroupExpiry::noticeBeforeTheDevicesAreThere()
{
    m_fixture->endWindow();
    m_fixture->makeWindow();
    m_fixture->server.hold();
    m_fixture->window->setDevices(devicesOf(Three));
    m_fixture->window->show();
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("a"), QStringLiteral("A"), 5);
    m_fixture->window->onDeviceExpired(QStringLiteral("b"), QStringLiteral("B"));
    m_fixture->window->onDeviceExpireNotice(QString(), QString(), 5);
    m_fixture->window->onDeviceExpired(QString(), QString());
    QVERIFY(m_fixture->questions().isEmpty());
    m_fixture->server.release();
}

// The page tells the same device again as its time goes by.
void TestGroupExpiry::newerNoticeTakesTheOlderOnesPlace()
{
    notice("a", 30);
    notice("a", 10);
    QCOMPARE(asked(), QStringList{QStringLiteral("main control A 10")});
    click(m_fixture->questions().first(), "closeButton");
    QVERIFY(m_fixture->questions().isEmpty());
    notice("a", 5);
    QCOMPARE(asked(), QStringList{QStringLiteral("main control A 5")});
}

// Devices that were bought together run out together: their questions must not pile up.
void TestGroupExpiry::noticesComeOneByOne()
{
    notice("b", 30);
    notice("c", 30);
    notice("a", 30);
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled B 30")});
    click(m_fixture->questions().first(), "closeButton");
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled C 30")});
    QVERIFY(m_fixture->questions().first()->isAncestorOf(QApplication::focusWidget())
        || m_fixture->questions().first()->hasFocus());
    click(m_fixture->questions().first(), "confirmButton");
    QCOMPARE(asked(), QStringList{QStringLiteral("main control A 30")});
    QTest::keyClick(m_fixture->questions().first(), Qt::Key_Escape);
    QVERIFY(m_fixture->questions().isEmpty());
    QVERIFY(m_fixture->window->mainController()->videoView()->hasFocus());
    QCOMPARE(m_fixture->tiles(), (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
}

void TestGroupExpiry::newerNoticeOfADeviceThatWaits()
{
    notice("b", 30);
    notice("c", 30);
    notice("b", 10);
    notice("c", 10);
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled B 10")});
    click(m_fixture->questions().first(), "closeButton");
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled C 10")});
    click(m_fixture->questions().first(), "closeButton");
    QVERIFY(m_fixture->questions().isEmpty());
}

void TestGroupExpiry::noticeOfADeviceThatHasLeft()
{
    notice("b", 5);
    notice("c", 5);
    m_fixture->window->onDeviceExpired(QStringLiteral("c"), QStringLiteral("C"));
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled B 5")});
    click(m_fixture->questions().first(), "closeButton");
    QVERIFY(m_fixture->questions().isEmpty());
}

void TestGroupExpiry::noticeThatWaitsKnowsTheMaster()
{
    notice("b", 5);
    notice("c", 5);
    notice("a", 5);
    m_fixture->window->onSetAsMainController(m_fixture->tile(1));
    click(m_fixture->questions().first(), "closeButton");
    QCOMPARE(asked(), QStringList{QStringLiteral("main control C 5")});
    click(m_fixture->questions().first(), "closeButton");
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled A 5")});
}

// Its answer says who is the master and who has left.
void TestGroupExpiry::noticeWaitsForTheExpiredMaster()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    notice("a", 1);
    notice("b", 5);
    QCOMPARE(asked(), QStringList{QStringLiteral("expired")});
    click(m_fixture->questions().first(), "confirmButton");
    QCOMPARE(m_fixture->master(), QStringLiteral("b"));
    QCOMPARE(asked(), QStringList{QStringLiteral("main control B 5")});
}

void TestGroupExpiry::noticesOfAWindowThatCloses()
{
    notice("a", 5);
    notice("b", 5);
    const OvMaskTipsDialog *open = m_fixture->questions().first();
    QSignalSpy ended(open, &QDialog::finished);
    m_fixture->window->hide();
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(m_fixture->questions().isEmpty());
    m_fixture->window->show();
    QVERIFY(m_fixture->questions().isEmpty()); // nothing that opened where nobody could see it
    m_fixture->window->onBtnCloseClicked();
    QTRY_VERIFY(!m_fixture->window);
}

void TestGroupExpiry::noKeyAnswersUnread_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

// The question comes while somebody types on the devices.
void TestGroupExpiry::noKeyAnswersUnread()
{
    QFETCH(int, key);
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
    QCOMPARE(m_fixture->master(), QStringLiteral("a"));
    QCOMPARE(m_fixture->questions().size(), 1);
    click(m_fixture->questions().first(), "closeButton");
    notice("b", 5);
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled B 5")});
}

void TestGroupExpiry::keyboardReachesTheAnswers()
{
    const auto focused = [] { return QApplication::focusWidget()->objectName(); };
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(focused(), QStringLiteral("closeButton"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(focused(), QStringLiteral("confirmButton"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(m_fixture->questions().isEmpty());
    QCOMPARE(m_fixture->master(), QStringLiteral("b"));
    m_fixture->window->onDeviceExpired(QStringLiteral("b"), QStringLiteral("B"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(focused(), QStringLiteral("confirmButton"));
}

// The second click falls on the next question, which takes the same place.
void TestGroupExpiry::doubleClickAnswersOneQuestion()
{
    notice("b", 5);
    notice("c", 5);
    click(m_fixture->questions().first(), "closeButton");
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled C 5")});
    auto *button = m_fixture->questions().first()->findChild<QPushButton *>(QStringLiteral("closeButton"));
    QTest::mouseDClick(button, Qt::LeftButton);
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(asked(), QStringList{QStringLiteral("controlled C 5")});
    click(m_fixture->questions().first(), "closeButton");
    QVERIFY(m_fixture->questions().isEmpty());
}

void TestGroupExpiry::noticeAsksForNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("confirm") << QByteArray("confirmButton");
    QTest::newRow("close") << QByteArray("closeButton");
}

// Renewing is done in the page.
void TestGroupExpiry::noticeAsksForNothing()
{
    QFETCH(QByteArray, button);
    for (const char *id : {"a", "b"}) {
        m_fixture->window->onDeviceExpireNotice(QString::fromLatin1(id), QStringLiteral("Name"), 5);
        QCOMPARE(m_fixture->questions().size(), 1);
        click(m_fixture->questions().first(), button.constData());
        QVERIFY(m_fixture->questions().isEmpty());
    }
    QCOMPARE(unbound(), QList<QJsonArray>());
    QCOMPARE(m_fixture->requests().size(), 1); // what asked for the others
    QCOMPARE(m_fixture->window->serviceIds(), Three);
}

void TestGroupExpiry::nameWithPlaceholders()
{
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("a"), QStringLiteral("50%2"), 7);
    QVERIFY(m_fixture->questions().first()->text().startsWith(
        QStringLiteral("The main control device 50%2 will expire in 7 minutes,")));
}

void TestGroupExpiry::tileExpires()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("b"), QStringLiteral("Borealis"));
    QCOMPARE(m_fixture->toasts(), QStringList{QStringLiteral("Expired device (Borealis) removed")});
    QCOMPARE(m_fixture->window->findChild<OvToast *>()->findChild<QTimer *>()->interval(), 3000);
    QVERIFY(m_fixture->questions().isEmpty());
    QCOMPARE(m_fixture->tiles(), QStringList{QStringLiteral("c")});
    QCOMPARE(m_fixture->window->serviceIds(), (QStringList{QStringLiteral("a"), QStringLiteral("c")}));
    QCOMPARE(unbound(), QList<QJsonArray>{QJsonArray{QStringLiteral("b")}});
}

void TestGroupExpiry::lastTileExpires()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("b"), QStringLiteral("B"));
    m_fixture->window->onDeviceExpired(QStringLiteral("c"), QStringLiteral("C"));
    QCOMPARE(m_fixture->toasts(), QStringList{QStringLiteral("Expired device (C) removed")}); // one at a time
    QCOMPARE(m_fixture->tiles(), QStringList());
    QCOMPARE(m_fixture->window->serviceIds(), QStringList{QStringLiteral("a")});
}

void TestGroupExpiry::otherDeviceExpires()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("zzz"), QStringLiteral("Z"));
    QVERIFY(m_fixture->questions().isEmpty());
    QVERIFY(m_fixture->toasts().isEmpty());
    QCOMPARE(m_fixture->tiles(), (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
}

void TestGroupExpiry::masterExpires()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    QCOMPARE(m_fixture->questions().size(), 1);
    QCOMPARE(m_fixture->questions().first()->text(),
        QStringLiteral(
            "The master has expired for recycling, shall I reassign the master for you and start again?"));
    QCOMPARE(m_fixture->master(), QStringLiteral("a")); // as long as nothing is answered
    click(m_fixture->questions().first(), "confirmButton");
    QCOMPARE(m_fixture->master(), QStringLiteral("b"));
    QCOMPARE(m_fixture->tiles(), QStringList{QStringLiteral("c")});
    QCOMPARE(m_fixture->window->serviceIds(), (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
    QVERIFY(m_fixture->questions().isEmpty()); // no question before the removal
    QCOMPARE(unbound(), QList<QJsonArray>{QJsonArray{QStringLiteral("a")}});
}

void TestGroupExpiry::masterExpiresUnconfirmed()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    click(m_fixture->questions().first(), "closeButton");
    QCOMPARE(m_fixture->master(), QStringLiteral("a"));
    QCOMPARE(m_fixture->tiles(), (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
    QCOMPARE(unbound(), QList<QJsonArray>());
}

void TestGroupExpiry::masterExpiresWithoutTiles()
{
    emit m_fixture->tile(0)->removeController(true);
    emit m_fixture->tile(0)->removeController(true);
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    click(m_fixture->questions().first(), "confirmButton");
    QCOMPARE(m_fixture->master(), QStringLiteral("a"));
    QCOMPARE(m_fixture->window->serviceIds(), QStringList{QStringLiteral("a")});
}

// The second question must not take the new master away.
void TestGroupExpiry::masterExpiresTwice()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    while (!m_fixture->questions().isEmpty())
        click(m_fixture->questions().last(), "confirmButton");
    QCOMPARE(m_fixture->master(), QStringLiteral("b"));
    QCOMPARE(m_fixture->tiles(), QStringList{QStringLiteral("c")});
    QCOMPARE(unbound(), QList<QJsonArray>{QJsonArray{QStringLiteral("a")}});
}

void TestGroupExpiry::masterChangesWhileTheQuestionIsOpen()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    m_fixture->window->onSetAsMainController(m_fixture->tile(1));
    click(m_fixture->questions().first(), "confirmButton");
    QCOMPARE(m_fixture->master(), QStringLiteral("c"));
    QCOMPARE(m_fixture->tiles(), QStringList{QStringLiteral("b")}); // the expired one has left
    QCOMPARE(unbound(), QList<QJsonArray>{QJsonArray{QStringLiteral("a")}});
}

void TestGroupExpiry::tileExpiresWhileTheQuestionIsOpen()
{
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    m_fixture->window->onDeviceExpired(QStringLiteral("b"), QStringLiteral("B"));
    QCOMPARE(m_fixture->tiles(), QStringList{QStringLiteral("c")}); // the question holds nothing up
    click(m_fixture->questions().first(), "confirmButton");
    QCOMPARE(m_fixture->master(), QStringLiteral("c"));
    QCOMPARE(m_fixture->tiles(), QStringList());
    QCOMPARE(m_fixture->window->serviceIds(), QStringList{QStringLiteral("c")});
}

// An older question does not hold back the answer to a newer one.
void TestGroupExpiry::expiredBeneathAnotherQuestion()
{
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("a"), QStringLiteral("A"), 1);
    m_fixture->window->onDeviceExpired(QStringLiteral("a"), QStringLiteral("A"));
    QCOMPARE(m_fixture->questions().size(), 2);
    click(m_fixture->questions().last(), "confirmButton");
    QCOMPARE(m_fixture->master(), QStringLiteral("b"));
    QCOMPARE(m_fixture->questions().size(), 1);
}

QTEST_MAIN(TestGroupExpiry)
#include "tst_groupexpiry.moc"
