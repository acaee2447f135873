#include "app/TranslateManager.h"
#include "base/AppPaths.h"
#include "update/OvUpdateDialog.h"
#include "widgets/OvTitleBarBase.h"

#include "TestHttpServer.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>

namespace {

QJsonArray files(const QString &name)
{
    return {QJsonObject{{QStringLiteral("file_name"), name}}};
}

} // namespace

// The dialog by itself, against a server whose answers the test chooses.
class TestOvUpdateDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void interfaceOrder();
    void window();
    void texts();
    void progress_data();
    void progress();
    void confirm_data();
    void confirm();
    void withoutAnInstallersName();
    void answersThatAreNoFile_data();
    void answersThatAreNoFile();
    void longDescriptionIsGivenUp();
    void partThatCannotBeWritten();
    void stallIsLogged();
    void startsAgainAfterAFailure();
    void closingEndsTheDownload();
    void languages_data();
    void languages();

private:
    template <class T>
    T *part(const char *name = "") const
    {
        return m_dialog->findChild<T *>(QLatin1String(name));
    }
    bool isReady() const { return part<QPushButton>("confirmButton")->isVisible(); }
    // Answers by the end of the path; 404 for everything else.
    void answer(const QByteArray &pathEnd, const QByteArray &body, int status = 200);
    void start(const QString &name) { m_dialog->updateNewVersion(m_server->baseUrl(), files(name)); }
    static void expectLine(const char *pattern)
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromUtf8(pattern)));
    }

    QTemporaryDir m_home;
    QString m_pending;
    std::unique_ptr<TestHttpServer> m_server;
    QHash<QByteArray, QPair<QByteArray, int>> m_answers;
    QPointer<OvUpdateDialog> m_dialog;
};

void TestOvUpdateDialog::initTestCase()
{
    qputenv("XDG_DATA_HOME", m_home.path().toUtf8());
    m_pending = AppPaths::pendingDir();
    QVERIFY(m_pending.startsWith(m_home.path()));
}

void TestOvUpdateDialog::init()
{
    m_answers.clear();
    m_server = std::make_unique<TestHttpServer>();
    connect(m_server.get(), &TestHttpServer::requestReceived, this, [this] {
        const QByteArray path = m_server->requests().last().path;
        const auto answer = m_answers.value(path.mid(path.lastIndexOf('/')), {"nothing", 404});
        m_server->setAnswer(answer.first, answer.second);
    });
    m_dialog = new OvUpdateDialog;
    m_dialog->show();
}

void TestOvUpdateDialog::cleanup()
{
    delete m_dialog;
    QVERIFY(QDir(m_pending).removeRecursively());
}

void TestOvUpdateDialog::answer(const QByteArray &pathEnd, const QByteArray &body, int status)
{
    m_answers.insert(pathEnd, {body, status});
}

void TestOvUpdateDialog::interfaceOrder()
{
    const QStringList expected{QStringLiteral("sigInstallNewVersionApp(QString,bool)"),
        QStringLiteral("onDownloadProgressChanged(qlonglong,qlonglong)"),
        QStringLiteral("onPackagetReadyRead()"), QStringLiteral("onLatestInfoReadyRead()"),
        QStringLiteral("onConfirmBtnClicked()")};
    QStringList actual;
    const QMetaObject &meta = OvUpdateDialog::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        actual << QString::fromLatin1(meta.method(i).methodSignature())
                      .replace(QLatin1String("qint64"), QLatin1String("qlonglong"));
    QCOMPARE(actual, expected);
}

void TestOvUpdateDialog::window()
{
    QVERIFY(m_dialog->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(m_dialog->titleBar()->buttonType(), 2);
    QVERIFY(m_dialog->isWindow() && !m_dialog->parentWidget());
    const auto *confirmButton = part<QPushButton>("confirmButton");
    QCOMPARE(confirmButton->height(), 40);
    QVERIFY(confirmButton->parentWidget()->styleSheet().contains(
        QLatin1String("QPushButton { background: #FF9B7A; color: white;")));
    QCOMPARE(part<QProgressBar>()->minimum(), 0);
    QCOMPARE(part<QProgressBar>()->maximum(), 100);
    const auto *choices = part<QButtonGroup>();
    QVERIFY(choices->exclusive());
    QCOMPARE(choices->buttons().size(), 2);
    m_dialog->close();
    QTRY_VERIFY(!m_dialog);
}

void TestOvUpdateDialog::texts()
{
    const auto *downloading = part<QLabel>("downloadingLabel");
    const auto *ready = part<QLabel>("readyLabel");
    QCOMPARE(downloading->text(), QStringLiteral("Downloading the new version, please wait..."));
    QCOMPARE(ready->text(), QStringLiteral("The new version is ready, install now?"));
    QCOMPARE(part<QRadioButton>("installNowButton")->text(), QStringLiteral("Install now"));
    QCOMPARE(part<QRadioButton>("installLaterButton")->text(),
        QStringLiteral("Installation is automatic when closing the app"));
    QCOMPARE(part<QPushButton>("confirmButton")->text(), QStringLiteral("Confirm"));
    QVERIFY(part<QRadioButton>("installNowButton")->isChecked());
    QVERIFY(downloading->isVisible() && part<QProgressBar>()->isVisible());
    QVERIFY(!ready->isVisible() && !isReady() && !part<QRadioButton>("installNowButton")->isVisible());

    answer("/latest.yml", "sha512: x\nversion: 1");
    answer("/Orvane_Setup_1.exe", "new");
    expectLine("differs from the digest in latest.yml");
    start(QStringLiteral("Orvane_Setup_1.exe"));
    QTRY_VERIFY(isReady());
    QVERIFY(!downloading->isVisible() && !part<QProgressBar>()->isVisible());
    QVERIFY(ready->isVisible() && part<QRadioButton>("installNowButton")->isVisible());
    QVERIFY(part<QRadioButton>("installLaterButton")->isVisible());
}

void TestOvUpdateDialog::progress_data()
{
    QTest::addColumn<qint64>("received");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<int>("shown");
    QTest::newRow("nothing") << 0LL << 100LL << 0;
    QTest::newRow("5 %") << 5LL << 100LL << 0;
    QTest::newRow("almost 6 %") << 5999LL << 100000LL << 0;
    QTest::newRow("6 %") << 6LL << 100LL << 6;
    QTest::newRow("99.9 %") << 999LL << 1000LL << 99;
    QTest::newRow("all") << 1000LL << 1000LL << 100;
    QTest::newRow("5 GB") << 4'000'000'000LL << 5'000'000'000LL << 80;
}

void TestOvUpdateDialog::progress()
{
    QFETCH(qint64, received);
    QFETCH(qint64, total);
    m_dialog->onDownloadProgressChanged(50, 100);
    QCOMPARE(part<QProgressBar>()->value(), 50);
    m_dialog->onDownloadProgressChanged(received, total);
    QTEST(part<QProgressBar>()->value(), "shown");
    // While the size is not known the bar stays.
    const int before = part<QProgressBar>()->value();
    m_dialog->onDownloadProgressChanged(3, -1);
    m_dialog->onDownloadProgressChanged(0, 0);
    QCOMPARE(part<QProgressBar>()->value(), before);
}

void TestOvUpdateDialog::confirm_data()
{
    QTest::addColumn<bool>("later");
    QTest::newRow("now") << false;
    QTest::newRow("later") << true;
}

void TestOvUpdateDialog::confirm()
{
    QFETCH(bool, later);
    answer("/latest.yml", "sha512: x\nversion: 1");
    answer("/Orvane_Setup_1.exe", "new");
    expectLine("differs from the digest in latest.yml");
    start(QStringLiteral("Orvane_Setup_1.exe"));
    QTRY_VERIFY(isReady());
    QSignalSpy chosen(m_dialog, &OvUpdateDialog::sigInstallNewVersionApp);
    if (later)
        QTest::mouseClick(part<QRadioButton>("installLaterButton"), Qt::LeftButton, {}, {8, 8});
    QTest::mouseClick(part<QPushButton>("confirmButton"), Qt::LeftButton);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first(), (QVariantList{m_pending + QStringLiteral("/Orvane_Setup_1.exe"), later}));
    QTRY_VERIFY(!m_dialog);
}

// The part's name is then "temp_" and ".part", and the installer's place is the folder itself.
void TestOvUpdateDialog::withoutAnInstallersName()
{
    answer("/latest.yml", "sha512: x\nversion: 1");
    answer("/", "whatever");
    expectLine("^the release has no installer among its files$");
    expectLine("^_getFileHash file open error.$");
    expectLine("/pending/ -->");
    expectLine("differs from the digest in latest.yml");
    expectLine("^文件权限异常$");
    expectLine("^could not rename .*/pending/temp_.part to .*/pending/$");
    start(QStringLiteral("readme.txt"));
    QTRY_VERIFY(isReady());
    QCOMPARE(m_server->requests().last().path, QByteArray("/"));
    QCOMPARE(QDir(m_pending).entryList(QDir::Files, QDir::Name),
        (QStringList{QStringLiteral("latest.yml"), QStringLiteral("temp_.part")}));
    QSignalSpy chosen(m_dialog, &OvUpdateDialog::sigInstallNewVersionApp);
    m_dialog->onConfirmBtnClicked();
    QCOMPARE(chosen.first().first().toString(), m_pending + QLatin1Char('/'));
}

void TestOvUpdateDialog::answersThatAreNoFile_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("line");
    const QByteArray description("/latest.yml");
    const QByteArray package("/Orvane_Setup_1.exe");
    const QString noDescription = QStringLiteral("^download latest.yml failed!\nresponse data -->");
    const QString noPackage = QStringLiteral("^download package failed!\nresponse data -->");
    const QString refused = QStringLiteral("the server answered with status %1$");
    QTest::newRow("description: not found")
        << description << 404 << noDescription + QStringLiteral("Error transferring .*");
    QTest::newRow("description: moved") << description << 302 << noDescription + refused.arg(302);
    QTest::newRow("package: not found")
        << package << 404 << noPackage + QStringLiteral("Error transferring .*");
    QTest::newRow("package: moved") << package << 302 << noPackage + refused.arg(302);
    QTest::newRow("package: fault") << package << 500 << noPackage + QStringLiteral("Error transferring .*");
}

void TestOvUpdateDialog::answersThatAreNoFile()
{
    QFETCH(QByteArray, path);
    QFETCH(int, status);
    QFETCH(QString, line);
    answer("/latest.yml", "sha512: x\nversion: 1");
    answer("/Orvane_Setup_1.exe", "new");
    answer(path, "<html>elsewhere</html>", status);
    QString logged;
    static QString *seen = nullptr;
    seen = &logged;
    const QtMessageHandler before
        = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
              if (type == QtWarningMsg)
                  *seen = text;
          });
    const auto restore = qScopeGuard([before] { qInstallMessageHandler(before); });
    start(QStringLiteral("Orvane_Setup_1.exe"));
    QTRY_VERIFY(!logged.isEmpty());
    QVERIFY2(QRegularExpression(line).match(logged).hasMatch(), qPrintable(logged));
    QVERIFY(!isReady());
    QVERIFY(!QFile::exists(m_pending + QStringLiteral("/Orvane_Setup_1.exe")));
}

void TestOvUpdateDialog::longDescriptionIsGivenUp()
{
    answer("/latest.yml", QByteArray(200'000, '#'));
    expectLine("^latest.yml is too long; given up after so many bytes: 65536$");
    expectLine("^download latest.yml failed!\nresponse data -->Operation canceled$");
    start(QStringLiteral("Orvane_Setup_1.exe"));
    QTRY_VERIFY(!m_server->requests().isEmpty());
    QTRY_VERIFY(!part<QTimer>("stallTimer")->isActive());
    QVERIFY(QFileInfo(m_pending + QStringLiteral("/latest.yml")).size() <= 65536);
    QCOMPARE(m_server->requests().size(), 1);
}

void TestOvUpdateDialog::partThatCannotBeWritten()
{
    answer("/latest.yml", "sha512: x\nversion: 1");
    answer("/Orvane_Setup_1.exe", QByteArray(5'000'000, 'x'));
    QVERIFY(QDir().mkpath(m_pending + QStringLiteral("/temp_Orvane_Setup_1.exe.part/full")));
    expectLine("^in the way of the download: .*temp_Orvane_Setup_1.exe.part");
    expectLine("^the download could not be written: .*temp_Orvane_Setup_1.exe.part -->");
    expectLine("^download package failed!\nresponse data -->");
    start(QStringLiteral("Orvane_Setup_1.exe"));
    QTRY_COMPARE(m_server->requests().size(), 2);
    QTRY_VERIFY(!part<QTimer>("stallTimer")->isActive());
    QVERIFY(!isReady());
    QVERIFY(!QFile::exists(m_pending + QStringLiteral("/Orvane_Setup_1.exe")));
}

void TestOvUpdateDialog::stallIsLogged()
{
    m_server->hold();
    m_dialog->setStallTime(std::chrono::milliseconds(20));
    expectLine("^the update's download has stalled, no data for 0.02 s: http://127.0.0.1:.*/latest.yml$");
    start(QStringLiteral("Orvane_Setup_1.exe"));
    QTimer *watch = part<QTimer>("stallTimer");
    QTRY_VERIFY(!watch->isActive());
    QVERIFY(!isReady());
    // It goes on when data come again.
    answer("/latest.yml", "sha512: x\nversion: 1");
    answer("/Orvane_Setup_1.exe", "new");
    m_server->setAnswer("sha512: x\nversion: 1");
    expectLine("differs from the digest in latest.yml");
    m_dialog->setStallTime(std::chrono::minutes(1));
    m_server->release();
    QTRY_VERIFY(isReady());
}

void TestOvUpdateDialog::startsAgainAfterAFailure()
{
    expectLine("^download latest.yml failed!\nresponse data -->");
    start(QStringLiteral("Orvane_Setup_1.exe"));
    start(QStringLiteral("Orvane_Setup_2.exe")); // too early: the first is under way
    QTRY_VERIFY(!m_server->requests().isEmpty());
    QTRY_VERIFY(!part<QTimer>("stallTimer")->isActive());
    QCOMPARE(m_server->requests().size(), 1);

    answer("/latest.yml", "sha512: x\nversion: 1");
    answer("/Orvane_Setup_3.exe", "new");
    expectLine("differs from the digest in latest.yml");
    start(QStringLiteral("Orvane_Setup_3.exe"));
    QTRY_VERIFY(isReady());
    QCOMPARE(m_server->requests().size(), 3);
    // Ready is ready.
    start(QStringLiteral("Orvane_Setup_4.exe"));
    QVERIFY(isReady());
    QCOMPARE(m_server->requests().size(), 3);
}

void TestOvUpdateDialog::closingEndsTheDownload()
{
    m_server->hold();
    start(QStringLiteral("Orvane_Setup_1.exe"));
    QTRY_COMPARE(m_server->requests().size(), 1);
    m_dialog->close();
    QTRY_VERIFY(!m_dialog);
    m_server->release();
    QVERIFY(!QFile::exists(m_pending + QStringLiteral("/latest.yml")));
}

void TestOvUpdateDialog::languages_data()
{
    QTest::addColumn<QString>("longer");
    QTest::newRow("English") << QString();
    QTest::newRow("long") << QStringLiteral(
        "Die Installation erfolgt automatisch, sobald die Anwendung geschlossen "
        "wird (nichts weiter zu tun)");
}

// Every text whole, whatever its length. With ORVANE_PICTURES set to a folder, a picture of each is left
// there.
void TestOvUpdateDialog::languages()
{
    QFETCH(QString, longer);
    const auto save = [this](const char *state) {
        const QString folder = qEnvironmentVariable("ORVANE_PICTURES");
        if (!folder.isEmpty())
            m_dialog->grab().save(
                QDir(folder).filePath(QStringLiteral("update-%1-%2-%3.png")
                                          .arg(QLatin1String(QTest::currentDataTag()), QLatin1String(state))
                                          .arg(m_dialog->devicePixelRatioF())));
    };
    auto *later = part<QRadioButton>("installLaterButton");
    if (!longer.isEmpty()) {
        static QString text;
        text = longer;
        class LongTexts : public QTranslator
        {
        public:
            bool isEmpty() const override { return false; }
            QString translate(const char *context, const char *source, const char *, int) const override
            {
                if (QLatin1String(context) != QLatin1String("OvUpdateDialog"))
                    return {};
                return QString::fromLatin1(source).size() > 20 ? text : QString();
            }
        };
        auto *translator = new LongTexts;
        translator->setParent(m_dialog);
        QVERIFY(QCoreApplication::installTranslator(translator));
        QTRY_COMPARE(later->text(), longer);
    }
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    m_dialog->onDownloadProgressChanged(42, 100);
    const auto whole
        = [](const QLabel *label) { return label->height() >= label->heightForWidth(label->width()); };
    QTRY_VERIFY(whole(part<QLabel>("downloadingLabel")));
    save("downloading");
    const QSize size = m_dialog->size();

    answer("/latest.yml", "sha512: x\nversion: 1");
    answer("/Orvane_Setup_1.exe", "new");
    expectLine("differs from the digest in latest.yml");
    start(QStringLiteral("Orvane_Setup_1.exe"));
    QTRY_VERIFY(isReady());
    QTRY_VERIFY(whole(part<QLabel>("readyLabel")));
    QVERIFY(later->width() >= later->sizeHint().width());
    QCOMPARE(m_dialog->size(), size);
    QCOMPARE(part<QPushButton>("confirmButton")->height(), 40);
    save("ready");
}

QTEST_MAIN(TestOvUpdateDialog)
#include "tst_ovupdatedialog.moc"
