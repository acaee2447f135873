#include "WebTestSupport.h"

#include "Recorder.h"
#include "TestHttpServer.h"
#include "update/OvUpdateDialog.h"
#include "web/OvMainWindow.h"
#include "web/OvMainWindowJsApi.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

// What the main window does for an update: opens the dialog for the page and starts the installer that the
// user has agreed to.
class TestMainWindowUpdate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("XDG_DATA_HOME", m_dir.path().toUtf8()); }
    void init();
    void cleanup();

    void pageOpensTheDialog();
    void emptyPathOpensNothing();
    void secondCallBringsTheDialogBack();
    void failedUpdateStartsAgain();
    void dialogGoesWithTheMainWindow();
    void choiceReachesTheMainWindow();
    void installsOnceWhenTheUserChangesTheMind();

private:
    void callPage(const QString &updatePath) const;
    QString installer(const QString &mark) const;
    static int runs(const QString &mark);

    QTemporaryDir m_dir;
    std::unique_ptr<TestHttpServer> m_server;
    std::unique_ptr<OvMainWindow> m_window;
};

void TestMainWindowUpdate::init()
{
    m_server = std::make_unique<TestHttpServer>();
    m_server->hold();
    m_window = std::make_unique<OvMainWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestMainWindowUpdate::cleanup()
{
    m_window.reset();
    m_server.reset();
}

void TestMainWindowUpdate::callPage(const QString &updatePath) const
{
    const QJsonObject info{{QStringLiteral("update_path"), updatePath},
        {QStringLiteral("file_info"),
            QJsonArray{QJsonObject{{QStringLiteral("file_name"), QStringLiteral("Orvane_Setup_9.exe")}}}}};
    m_window->jsApi()->callJsApi(
        webtest::callText(QStringLiteral("updateNewVersion"), {{QStringLiteral("pc_update_info"), info}}));
}

// A program without the permission to be executed, as a download has none, in a folder with a blank.
QString TestMainWindowUpdate::installer(const QString &mark) const
{
    const QString path = m_dir.filePath(QStringLiteral("Orvane Setup.exe"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("#!/bin/sh\necho run >>'" + mark.toUtf8() + "'\n");
    return path;
}

int TestMainWindowUpdate::runs(const QString &mark)
{
    QFile file(mark);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
}

void TestMainWindowUpdate::pageOpensTheDialog()
{
    callPage(m_server->baseUrl() + QStringLiteral("/files"));
    const OvUpdateDialog *dialog = m_window->updateDialog();
    QVERIFY(dialog && dialog->isVisible() && !dialog->parentWidget());
    QTRY_COMPARE(m_server->requests().size(), 1);
    QCOMPARE(m_server->requests().first().path, QByteArray("/files/latest.yml"));
    QCOMPARE(m_server->requests().first().method, QByteArray("GET"));
    QCOMPARE(m_server->requests().first().header("terminal"), QByteArray("cluster_control"));
}

void TestMainWindowUpdate::emptyPathOpensNothing()
{
    callPage(QString());
    QVERIFY(!m_window->updateDialog());
}

void TestMainWindowUpdate::secondCallBringsTheDialogBack()
{
    callPage(m_server->baseUrl());
    const QPointer<OvUpdateDialog> dialog = m_window->updateDialog();
    dialog->showMinimized();
    callPage(m_server->baseUrl() + QStringLiteral("/other"));
    QCOMPARE(m_window->updateDialog(), dialog.data());
    QVERIFY(!dialog->isMinimized() && dialog->isVisible());
    QTRY_COMPARE(m_server->requests().size(), 1);
    // A closed one is gone; the next call opens another.
    dialog->close();
    QTRY_VERIFY(!m_window->updateDialog());
    callPage(m_server->baseUrl());
    QVERIFY(m_window->updateDialog());
    QTRY_COMPARE(m_server->requests().size(), 2);
}

void TestMainWindowUpdate::failedUpdateStartsAgain()
{
    callPage(m_server->baseUrl());
    QTRY_COMPARE(m_server->requests().size(), 1);
    const webtest::LogCapture log;
    m_server->dropWaiting();
    const auto hasFailed = [] {
        for (const QString &line : webtest::LogCapture::text()) {
            if (line.startsWith(QLatin1String("download latest.yml failed!\nresponse data -->")))
                return true;
        }
        return false;
    };
    // The network layer asks once more when a connection has gone without an answer.
    QTRY_VERIFY((m_server->dropWaiting(), hasFailed()));
    const OvUpdateDialog *dialog = m_window->updateDialog();
    const int before = m_server->requests().size();
    callPage(m_server->baseUrl());
    QCOMPARE(m_window->updateDialog(), dialog);
    QTRY_COMPARE(m_server->requests().size(), before + 1);
}

void TestMainWindowUpdate::dialogGoesWithTheMainWindow()
{
    callPage(m_server->baseUrl());
    const QPointer<OvUpdateDialog> dialog = m_window->updateDialog();
    QTRY_COMPARE(m_server->requests().size(), 1);
    m_window.reset();
    QVERIFY(!dialog);
}

// Deferred: the installer runs when the window is gone, and not before the streaming runtime has ended.
void TestMainWindowUpdate::choiceReachesTheMainWindow()
{
    const QString mark = m_dir.filePath(QStringLiteral("deferred"));
    const QString path = installer(mark);
    callPage(m_server->baseUrl());
    emit m_window->updateDialog()->sigInstallNewVersionApp(path, true);
    QVERIFY(m_window->isVisible());
    QVERIFY(QFile::rename(path, path + QStringLiteral(".hidden")));
    Recorder::instance().setObserver([&](const std::string &call) {
        if (call == "SWRuntime::deinit()")
            QFile::rename(path + QStringLiteral(".hidden"), path);
    });
    m_window.reset();
    Recorder::instance().setObserver({});
    QTRY_COMPARE(runs(mark), 1);
}

void TestMainWindowUpdate::installsOnceWhenTheUserChangesTheMind()
{
    const QString mark = m_dir.filePath(QStringLiteral("changed"));
    const QString path = installer(mark);
    m_window->onInstallNewVersionApp(path, true);
    m_window->onInstallNewVersionApp(path, false);
    QVERIFY(!m_window->isVisible());
    m_window.reset();
    QTRY_COMPARE(runs(mark), 1);
    // Another, started later, has run: so would a second one of the first.
    const QString laterMark = m_dir.filePath(QStringLiteral("later"));
    m_window = std::make_unique<OvMainWindow>();
    m_window->onInstallNewVersionApp(installer(laterMark), true);
    m_window.reset();
    QTRY_COMPARE(runs(laterMark), 1);
    QCOMPARE(runs(mark), 1);
}

QTEST_MAIN(TestMainWindowUpdate)
#include "tst_mainwindowupdate.moc"
