#include "Recorder.h"
#include "WebTestSupport.h"

#include "../app/QmFile.h"

#include "app/TranslateManager.h"
#include "base/AppPaths.h"
#include "net/HttpHelper.h"
#include "web/OvJsApi.h"
#include "web/OvMainWindow.h"
#include "web/OvMainWindowJsApi.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"
#include "widgets/OvTitleBarBase.h"

#include <InputFocus.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QMetaMethod>
#include <QScopeGuard>
#include <QScreen>
#include <QShortcut>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineView>

#include <functional>
#include <memory>

using webtest::evaluate;

namespace {

// The message handler that is installed now.
QtMessageHandler messageHandler()
{
    const QtMessageHandler current = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(current);
    return current;
}

QString shownText()
{
    return QCoreApplication::translate("Dialog", "Confirm");
}

OvMainWindow *windowUnderConstruction()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<OvMainWindow *>(widget))
            return window;
    }
    return nullptr;
}

// Calls back when the application is told of a change of language.
class LanguageWatcher : public QObject
{
public:
    explicit LanguageWatcher(std::function<void()> onChange)
        : m_onChange(std::move(onChange))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == QCoreApplication::instance() && event->type() == QEvent::LanguageChange)
            m_onChange();
        return QObject::eventFilter(watched, event);
    }

private:
    const std::function<void()> m_onChange;
};

} // namespace

// The main window: what its construction starts and in which order, its slots, its end.
class TestOvMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startUpOrder();
    void interfaceOrder();
    void loginWindow();
    void icon();
    void bodyIsTransparent();
    void shadowMarginOfTheSystem();
    void workingSize();
    void workingSizeOutOfRange_data();
    void workingSizeOutOfRange();
    void moves();
    void losesNoMoveToAStall();
    void maximizesAndRestores();
    void shortcutOnlyAfterSignIn();
    void logoutReturnsToTheSignInPage_data();
    void logoutReturnsToTheSignInPage();
    void minimizes();
    void languageReachesTheRequests();
    void closingEndsTheEventLoop();
    void runtimeEndsWithTheWindow();
    void delayedInstallerStartsAfterTheRuntimeEnded();
    void installerAtOnceClosesTheWindow();
    void missingInstallerIsNotStarted();
    void bridgeSignalsReachTheSlots();

private:
    QString installerScript(const QString &marker);

    QTemporaryDir m_dir;
};

void TestOvMainWindow::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QDir(AppPaths::logDir()).removeRecursively();
}

// Must run first: the log handler is installed once and stays.
void TestOvMainWindow::startUpOrder()
{
    Recorder::instance().reset();
    const QtMessageHandler handlerBefore = messageHandler();
    QStringList seen;
    Recorder::instance().setObserver([&seen, handlerBefore](const std::string &call) {
        if (call.rfind("SWRuntime::init", 0) != 0)
            return;
        const OvMainWindow *window = windowUnderConstruction();
        seen << QString::fromStdString(call);
        seen << (QDir(AppPaths::logDir()).exists() ? QStringLiteral("log directory") : QString());
        seen << (window->jsApi() && window->webContainer()->webView()->jsApi() == window->jsApi()
                ? QStringLiteral("page API published")
                : QString());
        seen << (window->titleBar()->isHidden() && window->titleBar()->height() == 0
                ? QStringLiteral("no title bar")
                : QString());
        seen << (window->findChildren<QShortcut *>(QString(), Qt::FindDirectChildrenOnly).isEmpty()
                ? QStringLiteral("no shortcut yet")
                : QString());
        seen << (messageHandler() == handlerBefore ? QStringLiteral("no log handler yet") : QString());
        seen << shownText();
    });
    // English comes next, before the shortcut and the log.
    QTemporaryDir translations;
    QVERIFY(QmFile::write(translations.filePath(QStringLiteral("en_US.qm")), "Dialog", "Confirm",
        QStringLiteral("translated")));
    TranslateManager::instance()->setTranslationDir(translations.path());
    const LanguageWatcher watcher([&seen, handlerBefore] {
        seen << QStringLiteral("language changes");
        const auto shortcuts
            = windowUnderConstruction()->findChildren<QShortcut *>(QString(), Qt::FindDirectChildrenOnly);
        seen << (shortcuts.isEmpty() ? QStringLiteral("still no shortcut") : QString());
        seen << (messageHandler() == handlerBefore ? QStringLiteral("still no log handler") : QString());
    });
    {
        const OvMainWindow window;
        Recorder::instance().setObserver({});
        TranslateManager::instance()->setTranslationDir({});
        QCOMPARE(shownText(), QStringLiteral("translated"));
        const QString logDir
            = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/log");
        QCOMPARE(seen,
            (QStringList{QStringLiteral("SWRuntime::init(1, \"%1\")").arg(logDir),
                QStringLiteral("log directory"), QStringLiteral("page API published"),
                QStringLiteral("no title bar"), QStringLiteral("no shortcut yet"),
                QStringLiteral("no log handler yet"), QStringLiteral("Confirm"),
                QStringLiteral("language changes"), QStringLiteral("still no shortcut"),
                QStringLiteral("still no log handler")}));
        QVERIFY(messageHandler() != handlerBefore);
        const auto shortcuts = window.findChildren<QShortcut *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(shortcuts.size(), 1);
        QCOMPARE(shortcuts.at(0)->key(), QKeySequence(Qt::Key_F11));
        QVERIFY(Recorder::instance().takeCalls().size() == 1);
    }
}

void TestOvMainWindow::interfaceOrder()
{
    const QStringList expected{QStringLiteral("onSetWindowSize(int,int)"),
        QStringLiteral("onMoveWindow(int,int)"), QStringLiteral("onCloseWindow()"),
        QStringLiteral("onMinimizeWindow()"), QStringLiteral("onMaximizeWindow()"),
        QStringLiteral("onRestoreWindow()"), QStringLiteral("onLogout()"),
        QStringLiteral("onSetLanguage(QString)"), QStringLiteral("onUpdateNewVersion(QString,QJsonArray)"),
        QStringLiteral("onInstallNewVersionApp(QString,bool)"),
        QStringLiteral("onMaximumShortcutActivated()"), QStringLiteral("checkH5Version()")};
    QStringList actual;
    const QMetaObject &meta = OvMainWindow::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        actual << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(actual, expected);
}

void TestOvMainWindow::loginWindow()
{
    OvMainWindow window;
    QCOMPARE(window.size(), QSize(320, 508)); // 300 x 488 and the shadow margin
    QVERIFY(!window.windowIcon().isNull());
    QCOMPARE(window.windowTitle(), QStringLiteral("Orvane"));
    QCOMPARE(window.webContainer()->webView()->url(),
        QUrl(QStringLiteral("file:///") + QCoreApplication::applicationDirPath()
            + QStringLiteral("/res/html/orvane/index.html")));
    QVERIFY(window.webContainer()->webView()->testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(window.layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.size(), QSize(320, 508));
    QCOMPARE(window.webContainer()->size(), QSize(300, 488));
}

void TestOvMainWindow::icon()
{
    const OvMainWindow window;
    const QList<QSize> sizes = window.windowIcon().availableSizes();
    QVERIFY(sizes.contains(QSize(16, 16)));
    QVERIFY(sizes.contains(QSize(256, 256)));
}

// Where the page paints nothing the window is as good as invisible, in its body as in its margin.
void TestOvMainWindow::bodyIsTransparent()
{
    OvMainWindow window;
    window.webContainer()->hide();
    QImage image(window.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    window.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(image.pixel(5, 254), qRgba(0, 0, 0, 1));
    QCOMPARE(image.pixel(160, 254), qRgba(0, 0, 0, 1));
}

void TestOvMainWindow::shadowMarginOfTheSystem()
{
    QCOMPARE(OvMainWindow::normalShadowMargin(true), 0);
    QCOMPARE(OvMainWindow::normalShadowMargin(false), 10);
}

void TestOvMainWindow::workingSize()
{
    OvMainWindow window;
    window.show();
    window.onSetWindowSize(1120, 760);
    QCOMPARE(window.size(), QSize(1140, 780));
    QCOMPARE(window.minimumSize(), QSize(1000, 720));
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QTRY_COMPARE(window.pos(),
        available.topLeft() + QPoint((available.width() - 1140) / 2, (available.height() - 780) / 2));
    QCOMPARE(window.webContainer()->size(), QSize(1120, 760));
}

void TestOvMainWindow::workingSizeOutOfRange_data()
{
    QTest::addColumn<QSize>("asked");
    QTest::newRow("zero") << QSize(0, 0);
    QTest::newRow("negative") << QSize(-5, -2000000000);
    QTest::newRow("small") << QSize(10, 10);
}

void TestOvMainWindow::workingSizeOutOfRange()
{
    QFETCH(QSize, asked);
    OvMainWindow window;
    window.onSetWindowSize(asked.width(), asked.height());
    QCOMPARE(window.size(), QSize(1000, 720));
}

void TestOvMainWindow::moves()
{
    OvMainWindow window;
    window.show();
    window.move(200, 150);
    window.onMoveWindow(-30, 12);
    QTRY_COMPARE(window.pos(), QPoint(170, 162));
    QCOMPARE(window.size(), QSize(320, 508));
}

// What the window system reported before the stall is old by then.
void TestOvMainWindow::losesNoMoveToAStall()
{
    OvMainWindow window;
    window.show();
    window.move(200, 150);
    window.onMoveWindow(1, 0);
    window.move(200, 150); // as the window system reports it
    QThread::msleep(1100);
    window.onMoveWindow(1, 0);
    QTRY_COMPARE(window.pos(), QPoint(202, 150));
}

void TestOvMainWindow::maximizesAndRestores()
{
    OvMainWindow window;
    window.show();
    window.onSetWindowSize(1120, 760);
    window.move(77, 55);
    const QRect before = window.geometry();
    window.onMaximizeWindow();
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect expected = available.adjusted(-3, -3, 3, 3);
    QTRY_COMPARE(window.geometry(), expected);
    QCOMPARE(window.webContainer()->size(), expected.size()); // no shadow margin while maximised
    window.onMaximizeWindow();
    QCOMPARE(window.geometry(), expected);

    window.onRestoreWindow();
    QTRY_COMPARE(window.geometry(), before);
    QCOMPARE(window.webContainer()->size(), QSize(1120, 760));
    window.onRestoreWindow();
    QCOMPARE(window.geometry(), before);
}

void TestOvMainWindow::shortcutOnlyAfterSignIn()
{
    OvMainWindow window;
    window.show();
    window.activateWindow();
    QVERIFY(waitForInputFocus(window));
    const QRect login = window.geometry();
    QTest::keyClick(&window, Qt::Key_F11);
    QCOMPARE(window.geometry(), login);

    window.onSetWindowSize(1120, 760);
    const QRect normal = window.geometry();
    const QRect maximized = QGuiApplication::primaryScreen()->availableGeometry().adjusted(-3, -3, 3, 3);
    QTest::keyClick(&window, Qt::Key_F11);
    QTRY_COMPARE(window.geometry(), maximized);
    QTest::keyClick(&window, Qt::Key_F11);
    QTRY_COMPARE(window.geometry(), normal);
}

void TestOvMainWindow::logoutReturnsToTheSignInPage_data()
{
    QTest::addColumn<bool>("maximized");
    QTest::newRow("normal") << false;
    QTest::newRow("maximised") << true;
}

void TestOvMainWindow::logoutReturnsToTheSignInPage()
{
    QFETCH(bool, maximized);
    OvMainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.onSetWindowSize(1120, 760);
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    if (maximized) {
        window.onMaximizeWindow();
        QTRY_COMPARE(window.geometry(), available.adjusted(-3, -3, 3, 3));
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }
    QSignalSpy loads(window.webContainer()->webView(), &QWebEngineView::loadStarted);
    window.jsApi()->callJsApi(QStringLiteral(R"({"jsApiName":"logout"})"));
    QTRY_VERIFY(loads.count() > 0);
    QTRY_COMPARE(window.webContainer()->webView()->url().toLocalFile(),
        QCoreApplication::applicationDirPath() + QStringLiteral("/res/html/orvane/index.html"));
    QCOMPARE(window.size(), QSize(320, 508));
    QCOMPARE(window.minimumSize(), QSize(300, 488));
    QCOMPARE(window.layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    QTRY_COMPARE(window.pos(),
        available.topLeft() + QPoint((available.width() - 320) / 2, (available.height() - 508) / 2));
    // As before the sign-in.
    window.onMaximumShortcutActivated();
    QCOMPARE(window.size(), QSize(320, 508));
    // And a second sign-in works as the first.
    window.onSetWindowSize(1120, 760);
    QCOMPARE(window.size(), QSize(1140, 780));
    window.onMaximumShortcutActivated();
    QTRY_COMPARE(window.geometry(), available.adjusted(-3, -3, 3, 3));
}

void TestOvMainWindow::minimizes()
{
    OvMainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.onMinimizeWindow();
    QTRY_VERIFY(window.isMinimized());
}

void TestOvMainWindow::languageReachesTheRequests()
{
    OvMainWindow window;
    window.onSetLanguage(QStringLiteral("jp"));
    QCOMPARE(HttpHelper::language(), QStringLiteral("jp"));
}

void TestOvMainWindow::closingEndsTheEventLoop()
{
    auto window = std::make_unique<OvMainWindow>();
    window->show();
    QWidget other; // another window that stays open
    other.show();
    QPointer<OvWebContainer> container = window->webContainer();
    Recorder::instance().takeCalls();
    QTimer::singleShot(0, window.get(),
        [&] { window->jsApi()->callJsApi(webtest::callText(QStringLiteral("closeWindow"))); });
    QTimer watchdog;
    bool timedOut = false;
    connect(&watchdog, &QTimer::timeout, qApp, [&] {
        timedOut = true;
        QCoreApplication::quit();
    });
    watchdog.start(10000);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!timedOut);
    QVERIFY(!window->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(container.isNull());
    // The runtime ends once, with the window.
    QVERIFY(Recorder::instance().calls().empty());
    window.reset();
    QCOMPARE(Recorder::instance().takeCalls(), std::vector<std::string>{"SWRuntime::deinit()"});
}

void TestOvMainWindow::runtimeEndsWithTheWindow()
{
    auto window = std::make_unique<OvMainWindow>();
    Recorder::instance().takeCalls();
    window.reset();
    QCOMPARE(Recorder::instance().takeCalls(), std::vector<std::string>{"SWRuntime::deinit()"});
}

QString TestOvMainWindow::installerScript(const QString &marker)
{
    const QString path = m_dir.filePath(QStringLiteral("Orvane_Setup.sh"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("#!/bin/sh\ntouch '" + marker.toUtf8() + "'\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void TestOvMainWindow::delayedInstallerStartsAfterTheRuntimeEnded()
{
    const QString marker = m_dir.filePath(QStringLiteral("delayed"));
    const QString installer = installerScript(marker);
    auto window = std::make_unique<OvMainWindow>();
    window->onInstallNewVersionApp(installer, true);
    QVERIFY(!QFile::exists(marker));
    // The installer is there only once the runtime has ended: had it been started before, it would be
    // missing.
    QFile::rename(installer, installer + QStringLiteral(".hidden"));
    Recorder::instance().setObserver([&](const std::string &call) {
        if (call == "SWRuntime::deinit()")
            QFile::rename(installer + QStringLiteral(".hidden"), installer);
    });
    window.reset();
    Recorder::instance().setObserver({});
    QTRY_VERIFY(QFile::exists(marker));
}

void TestOvMainWindow::installerAtOnceClosesTheWindow()
{
    const QString marker = m_dir.filePath(QStringLiteral("at-once"));
    OvMainWindow window;
    window.show();
    window.onInstallNewVersionApp(installerScript(marker), false);
    QTRY_VERIFY(QFile::exists(marker));
    QVERIFY(!window.isVisible());
}

// A program that only the search path knows is no file that the updater has left: it must not be started in
// its place.
void TestOvMainWindow::missingInstallerIsNotStarted()
{
    const QString marker = m_dir.filePath(QStringLiteral("from-the-search-path"));
    const QFileInfo installer(m_dir.filePath(QStringLiteral("only-on-the-path.sh")));
    QVERIFY(QFile::rename(installerScript(marker), installer.filePath()));
    const QByteArray searchPath = qgetenv("PATH");
    qputenv("PATH", installer.path().toLocal8Bit() + ':' + searchPath);
    const auto restore = qScopeGuard([searchPath] { qputenv("PATH", searchPath); });
    auto window = std::make_unique<OvMainWindow>();
    window->onInstallNewVersionApp(installer.fileName(), true);
    window.reset();

    // One that is there, started afterwards, has run: so would the other.
    const QString laterMarker = m_dir.filePath(QStringLiteral("later"));
    window = std::make_unique<OvMainWindow>();
    window->onInstallNewVersionApp(installerScript(laterMarker), true);
    window.reset();
    QTRY_VERIFY(QFile::exists(laterMarker));
    QVERIFY(!QFile::exists(marker));
}

void TestOvMainWindow::bridgeSignalsReachTheSlots()
{
    OvMainWindow window;
    window.show();
    OvMainWindowJsApi *api = window.jsApi();
    api->callJsApi(QStringLiteral(R"({"jsApiName":"setWindowSize","width":1200,"height":800})"));
    QCOMPARE(window.size(), QSize(1220, 820));
    const QPoint before = window.pos();
    api->callJsApi(QStringLiteral(R"({"jsApiName":"moveWindow","x":3,"y":4})"));
    QTRY_COMPARE(window.pos(), before + QPoint(3, 4));
    api->callJsApi(QStringLiteral(R"({"jsApiName":"maximizeWindow"})"));
    QTRY_COMPARE(
        window.geometry(), QGuiApplication::primaryScreen()->availableGeometry().adjusted(-3, -3, 3, 3));
    api->callJsApi(QStringLiteral(R"({"jsApiName":"restoreWindow"})"));
    QTRY_COMPARE(window.size(), QSize(1220, 820));
    api->callJsApi(QStringLiteral(R"({"jsApiName":"setLanguage","lang":"ar"})"));
    QCOMPARE(HttpHelper::language(), QStringLiteral("ar"));
    api->callJsApi(QStringLiteral(R"({"jsApiName":"minimizeWindow"})"));
    QTRY_VERIFY(window.isMinimized());
}

QTEST_MAIN(TestOvMainWindow)
#include "tst_ovmainwindow.moc"
