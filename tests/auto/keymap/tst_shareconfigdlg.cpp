#include "EditorFixture.h"

#include "keymap/SchemeImporter.h"
#include "keymap/ShareConfigDlg.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

using namespace keymaptest;

namespace {

QStringList logged;

void keepLog(QtMsgType, const QMessageLogContext &, const QString &text)
{
    logged.append(text);
}

} // namespace

// The dialog that asks for a sharing code, and the import of the scheme that it names.
class TestShareConfigDlg : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void layout();
    void place_data();
    void place();
    void answers_data();
    void answers();
    void imports();
    void unknownCode();
    void transportFailure();
    void confirmedTwice();
    void closedMeanwhile();

private:
    EditorFixture &f() { return *m_fixture; }
    template <typename Widget = QPushButton>
    Widget *part(const char *name)
    {
        return m_dialog->findChild<Widget *>(QString::fromLatin1(name));
    }
    QString toast() { return f().window.findChild<OvToast *>()->text(); }

    std::unique_ptr<EditorFixture> m_fixture;
    QPointer<ShareConfigDlg> m_dialog;
    SchemeImporter *m_importer = nullptr; // child of the window
};

void TestShareConfigDlg::init()
{
    m_fixture = std::make_unique<EditorFixture>();
    m_dialog = new ShareConfigDlg(&f().window);
    m_importer = new SchemeImporter(f().manager, &f().window);
    QObject::connect(m_dialog, &ShareConfigDlg::sigConfirmBtnClicked, m_importer,
        [this] { m_importer->importFrom(m_dialog); });
    logged.clear();
}

void TestShareConfigDlg::cleanup()
{
    qInstallMessageHandler(nullptr);
    m_fixture.reset();
}

void TestShareConfigDlg::layout()
{
    m_dialog->openAt(f().editor);
    QCOMPARE(m_dialog->layout()->contentsMargins(), QMargins(48, 40, 48, 32));
    QCOMPARE(m_dialog->layout()->spacing(), 16);
    QCOMPARE(part<QLabel>("titleLabel")->text(), QStringLiteral("Upload keyboard layout"));
    QCOMPARE(part<QLabel>("titleLabel")->size(), QSize(300, 30));
    QCOMPARE(part<QLabel>("hintLabel")->text(), QStringLiteral("Hints"));
    QCOMPARE(part<QLabel>("hintLabel")->font().pixelSize(), 14);
    QCOMPARE(part<QLabel>("hintLabel")->grab().toImage().pixelColor(3, 8), QColor("#8E8E97"));
    QCOMPARE(part<QLabel>("promptLabel")->text(), QStringLiteral("Enter your scheme sharing code"));
    QCOMPARE(part<QLabel>("promptLabel")->palette().color(QPalette::WindowText), QColor("#606266"));
    QCOMPARE(part<QLabel>("promptLabel")->font().pixelSize(), 14);
    QCOMPARE(part<QLineEdit>("codeEdit")->size(), QSize(203, 32));
    QCOMPARE(part("closeButton")->text(), QStringLiteral("Close"));
    QCOMPARE(part("confirmButton")->text(), QStringLiteral("Confirm"));
    QCOMPARE(part("closeButton")->size(), QSize(76, 32));
    QCOMPARE(part("confirmButton")->size(), QSize(76, 32));
    QCOMPARE(part("confirmButton")->x() - part("closeButton")->geometry().right() - 1, 10);
    QCOMPARE(part("closeButton")->grab().toImage().pixelColor(5, 5), QColor("#DBDBDB"));
    QCOMPARE(part("confirmButton")->grab().toImage().pixelColor(5, 5), QColor("#07CCFB"));
    QVERIFY(m_dialog->windowFlags() & Qt::FramelessWindowHint);
    QImage image(m_dialog->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    m_dialog->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QVERIFY(image.pixelColor(0, 0).alpha() < 255 || !m_dialog->mask().isEmpty()); // round
    QCOMPARE(image.pixelColor(20, 20), QColor(Qt::white));
}

void TestShareConfigDlg::place_data()
{
    QTest::addColumn<QPoint>("window");
    QTest::newRow("free") << QPoint(200, 100);
    QTest::newRow("at-the-corner") << QPoint(1500, 700);
}

// At its opener, but on the screen.
void TestShareConfigDlg::place()
{
    QFETCH(QPoint, window);
    f().window.move(window);
    QTRY_COMPARE(f().window.pos(), window);
    m_dialog->openAt(f().editor);
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    const QRect screen = f().window.screen()->availableGeometry();
    const QPoint opener = f().editor->mapToGlobal(QPoint(0, 0));
    const QPoint expected(qMin(opener.x(), screen.right() + 1 - m_dialog->width()),
        qMin(opener.y(), screen.bottom() + 1 - m_dialog->height()));
    QTRY_COMPARE(m_dialog->pos(), expected);
    QVERIFY(screen.contains(m_dialog->geometry()));
}

void TestShareConfigDlg::answers_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("confirmed");
    QTest::addColumn<int>("cancelled");
    QTest::newRow("confirm") << QByteArray("confirmButton") << 0 << 1 << 0;
    QTest::newRow("enter") << QByteArray() << static_cast<int>(Qt::Key_Return) << 1 << 0;
    QTest::newRow("close") << QByteArray("closeButton") << 0 << 0 << 1;
    QTest::newRow("escape") << QByteArray() << static_cast<int>(Qt::Key_Escape) << 0 << 1;
}

void TestShareConfigDlg::answers()
{
    QFETCH(QByteArray, button);
    QFETCH(int, key);
    QFETCH(int, confirmed);
    QFETCH(int, cancelled);
    m_importer->disconnect(m_dialog);
    m_dialog->disconnect(m_importer); // who is to close it
    QSignalSpy confirm(m_dialog, &ShareConfigDlg::sigConfirmBtnClicked);
    QSignalSpy cancel(m_dialog, &ShareConfigDlg::sigCancelBtnClicked);
    m_dialog->openAt(f().editor);
    QTest::keyClicks(part<QLineEdit>("codeEdit"), " k7q2 ");
    QCOMPARE(m_dialog->code(), QStringLiteral(" k7q2 ")); // as typed
    if (key != 0)
        QTest::keyClick(part<QLineEdit>("codeEdit"), static_cast<Qt::Key>(key));
    else
        QTest::mouseClick(part(button), Qt::LeftButton);
    QCOMPARE(confirm.count(), confirmed);
    QCOMPARE(cancel.count(), cancelled);
    QCOMPARE(m_dialog->isVisible(), confirmed == 1);
}

void TestShareConfigDlg::imports()
{
    m_dialog->openAt(f().editor);
    part<QLineEdit>("codeEdit")->setText("K7Q2M9XD4T");
    f().server().setAnswer(listAnswer({scheme("N", "A friend's")})); // of both requests
    QSignalSpy refreshed(f().manager, &KeyboardMapMgr::sigRefreshConfigSuccess);
    const int before = f().server().requests().size();
    QTest::mouseClick(part("confirmButton"), Qt::LeftButton);
    QTRY_COMPARE(refreshed.count(), 1);
    QTRY_VERIFY(!m_dialog);
    QCOMPARE(toast(), QStringLiteral("Operated successfully"));
    const TestHttpServer::Request &request = f().server().requests().at(before);
    QCOMPARE(request.method, QByteArray("POST"));
    QCOMPARE(request.path, QByteArray("/apiv1/keyboard_map/shareMapConfig"));
    QCOMPARE(object(request.body), (QJsonObject{{"map_id", "K7Q2M9XD4T"}}));
    QCOMPARE(f().box()->itemText(0), QStringLiteral("A friend's"));
}

// The dialog stays open for another try.
void TestShareConfigDlg::unknownCode()
{
    qInstallMessageHandler(keepLog);
    m_dialog->openAt(f().editor);
    part<QLineEdit>("codeEdit")->setText("WRONG");
    f().server().setAnswer(R"({"code": 404, "msg": "There is no such sharing code"})");
    QSignalSpy failed(m_importer, &SchemeImporter::sigFailed);
    const int before = f().server().requests().size();
    QTest::mouseClick(part("confirmButton"), Qt::LeftButton);
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(m_dialog && m_dialog->isVisible());
    QCOMPARE(m_dialog->code(), QStringLiteral("WRONG"));
    QVERIFY(part("confirmButton")->isEnabled() && part<QLineEdit>("codeEdit")->isEnabled());
    QCOMPARE(toast(), QStringLiteral("There is no such sharing code"));
    QVERIFY(logged.contains(
        QStringLiteral("share map config request error!\nresponse msg --> There is no such sharing code")));
    QCOMPARE(f().server().requests().size(), before + 1); // the list is not asked for
    QTest::mouseClick(part("confirmButton"), Qt::LeftButton);
    QTRY_COMPARE(failed.count(), 2);
}

void TestShareConfigDlg::transportFailure()
{
    qInstallMessageHandler(keepLog);
    m_dialog->openAt(f().editor);
    f().server().setAnswer("{}", 503);
    QSignalSpy failed(m_importer, &SchemeImporter::sigFailed);
    QTest::mouseClick(part("confirmButton"), Qt::LeftButton);
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(m_dialog && m_dialog->isVisible());
    QVERIFY(!toast().isEmpty());
    QVERIFY(!logged.filter("share map config request failed!\nresponse data --> ").isEmpty());
}

void TestShareConfigDlg::confirmedTwice()
{
    m_dialog->openAt(f().editor);
    f().server().hold();
    QSignalSpy received(&f().server(), &TestHttpServer::requestReceived);
    QSignalSpy imported(m_importer, &SchemeImporter::sigImported);
    QTest::mouseClick(part("confirmButton"), Qt::LeftButton);
    QVERIFY(!part("confirmButton")->isEnabled());
    QTRY_COMPARE(received.count(), 1);
    m_importer->importScheme("K7Q2M9XD4T");
    f().server().setAnswer(listAnswer({}));
    f().server().release();
    QTRY_COMPARE(imported.count(), 1);
    QTRY_COMPARE(received.count(), 2); // the second is that for the list
    QVERIFY(f().server().requests().last().path.endsWith("/mapConfigList"));
}

void TestShareConfigDlg::closedMeanwhile()
{
    m_dialog->openAt(f().editor);
    f().server().hold();
    QSignalSpy received(&f().server(), &TestHttpServer::requestReceived);
    QSignalSpy imported(m_importer, &SchemeImporter::sigImported);
    QTest::mouseClick(part("confirmButton"), Qt::LeftButton);
    QTRY_COMPARE(received.count(), 1);
    m_dialog->close();
    QTRY_VERIFY(!m_dialog);
    f().server().setAnswer(listAnswer({}));
    f().server().release();
    QTRY_COMPARE(imported.count(), 1); // the scheme is there, the window says so
    QCOMPARE(toast(), QStringLiteral("Operated successfully"));
}

QTEST_MAIN(TestShareConfigDlg)
#include "tst_shareconfigdlg.moc"
