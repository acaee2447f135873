#include "web/OvMainWindow.h"

#include "app/LogManager.h"
#include "app/TranslateManager.h"
#include "base/AppPaths.h"
#include "net/HttpHelper.h"
#include "swplay/SWRuntime.h"
#include "update/InstallerStart.h"
#include "update/OvUpdateDialog.h"
#include "web/OvMainWindowJsApi.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"
#include "web/WindowPlacement.h"
#include "widgets/OvTitleBarBase.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QProcess>
#include <QSettings>
#include <QShortcut>
#include <QSysInfo>
#include <QVBoxLayout>

namespace {

// Sizes in pixels and texts that the page and the service rely on.
namespace Contract {
constexpr QSize loginSize(300, 488);
constexpr QSize minimumWorkingSize(1000, 720);
constexpr int runtimeLogLevel = 1;
const char startLanguage[] = "en";
} // namespace Contract

constexpr int defaultShadowMargin = 10;

bool isWindows7()
{
#ifdef Q_OS_WIN
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QSysInfo::windowsVersion() == QSysInfo::WV_WINDOWS7;
    QT_WARNING_POP
#else
    return false;
#endif
}

} // namespace

QString OvMainWindow::frontEndUrl()
{
    return QStringLiteral("file:///") + QCoreApplication::applicationDirPath()
        + QStringLiteral("/res/html/orvane/index.html");
}

// Without a compositor, as Windows 7 may be, the border would show.
int OvMainWindow::normalShadowMargin(bool isWindows7)
{
    return isWindows7 ? 0 : defaultShadowMargin;
}

OvMainWindow::OvMainWindow(QWidget *parent)
    : OvWindowBase(parent)
    , m_normalShadowMargin(normalShadowMargin(isWindows7()))
{
    setShadowMargin(m_normalShadowMargin);
    setWindowTitle(QStringLiteral("Orvane"));
    setWindowIcon(QIcon(QStringLiteral(":/icon/orvane.ico")));
    setContentSize(Contract::loginSize);
    setResizeLocked(true);
    OvMainWindow::updateWindowSize(); // nothing derives from this window
    setBackgroundColor(Qt::transparent);

    createWebContainer();
    startStreamingRuntime();
    TranslateManager::instance()->onLanguegeChanged(QLatin1String(Contract::startLanguage));
    connect(new QShortcut(Qt::Key_F11, this), &QShortcut::activated, this,
        &OvMainWindow::onMaximumShortcutActivated);
    LogManager::instance();
    uninstallPerUserInstallation();
}

OvMainWindow::~OvMainWindow()
{
    SWRuntime::getInstance()->deinit();
    delete m_updateDialog; // it may be about to replace the installer
    if (m_installOnExit && QFileInfo::exists(m_installerOnExit))
        startInstaller(m_installerOnExit);
}

void OvMainWindow::createWebContainer()
{
    m_webContainer = new OvWebContainer(this);
    mainLayout()->addWidget(m_webContainer);
    m_webContainer->load(frontEndUrl());
    OvWebView *view = m_webContainer->webView();
    view->installEventFilter(this);
    view->setAttribute(Qt::WA_MouseTracking);
    m_jsApi = new OvMainWindowJsApi(view);
    view->setJsApi(m_jsApi);
    connectJsApi();
    // The page draws its own title area.
    titleBar()->setVisible(false);
    titleBar()->setFixedHeight(0);
}

void OvMainWindow::connectJsApi()
{
    connect(m_jsApi, &OvJsApi::sigSetWindowSize, this, &OvMainWindow::onSetWindowSize);
    connect(m_jsApi, &OvJsApi::sigMoveWindow, this, &OvMainWindow::onMoveWindow);
    connect(m_jsApi, &OvJsApi::sigCloseWindow, this, &OvMainWindow::onCloseWindow);
    connect(m_jsApi, &OvJsApi::sigMinimizeWindow, this, &OvMainWindow::onMinimizeWindow);
    connect(m_jsApi, &OvJsApi::sigMaximizeWindow, this, &OvMainWindow::onMaximizeWindow);
    connect(m_jsApi, &OvJsApi::sigRestoreWindow, this, &OvMainWindow::onRestoreWindow);
    connect(m_jsApi, &OvMainWindowJsApi::sigLogout, this, &OvMainWindow::onLogout);
    connect(m_jsApi, &OvMainWindowJsApi::sigUpdateNewVersion, this, &OvMainWindow::onUpdateNewVersion);
    connect(m_jsApi, &OvJsApi::sigSetLanguage, this, &OvMainWindow::onSetLanguage);
}

// The runtime writes its log beside the client's. That it cannot start is not fatal: the page still works.
void OvMainWindow::startStreamingRuntime()
{
    const QString logDir = AppPaths::logDir();
    QDir().mkpath(logDir);
    SWRuntime::getInstance()->init(Contract::runtimeLogLevel, logDir.toUtf8().constData());
}

// An earlier installation for this user alone would stay beside the one for the whole machine. The client of
// a per-user installation finds itself there, and leaves itself alone.
void OvMainWindow::uninstallPerUserInstallation()
{
#ifdef Q_OS_WIN
    QSettings registry(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall"),
        QSettings::NativeFormat);
    registry.beginGroup(QStringLiteral(ORVANE_UNINSTALL_GUID));
    const QString uninstaller = registry.value(QStringLiteral("QuietUninstallString")).toString();
    if (uninstaller.isEmpty())
        return;
    const QString folder = registry.value(QStringLiteral("InstallLocation")).toString();
    if (!folder.isEmpty() && QFileInfo(folder) == QFileInfo(QCoreApplication::applicationDirPath()))
        return;
    auto *process = new QProcess(this);
    process->start(uninstaller, {QStringLiteral("/currentuser"), QStringLiteral("/S")}, QIODevice::ReadWrite);
#endif
}

void OvMainWindow::updateWindowSize()
{
    setShadowMargin(m_pageMaximized ? 0 : m_normalShadowMargin);
    OvWindowBase::updateWindowSize();
}

void OvMainWindow::onSetWindowSize(int width, int height)
{
    setResizeLocked(false);
    setMinimumSize(Contract::minimumWorkingSize);
    setContentSize(QSize(width, height).boundedTo({QWIDGETSIZE_MAX / 2, QWIDGETSIZE_MAX / 2}));
    updateWindowSize();
    m_drag.reset();
    centerOnScreen(this);
    m_maximizeAllowed = true;
}

void OvMainWindow::onMoveWindow(int x, int y)
{
    m_drag.moveBy(QPoint(x, y));
}

void OvMainWindow::onMaximizeWindow()
{
    if (m_pageMaximized)
        return;
    m_pageMaximized = true;
    m_drag.reset();
    m_normalPos = pos();
    m_normalSize = contentSize();
    const QRect target = maximizedGeometry(pos());
    setContentSize(target.size());
    updateWindowSize();
    setGeometry(target);
}

void OvMainWindow::onRestoreWindow()
{
    if (!m_pageMaximized)
        return;
    m_pageMaximized = false;
    m_drag.reset();
    setContentSize(m_normalSize);
    move(m_normalPos);
    updateWindowSize();
}

void OvMainWindow::onLogout()
{
    m_webContainer->load(frontEndUrl());
    m_pageMaximized = false;
    setMinimumSize(Contract::loginSize);
    setResizeLocked(true);
    setContentSize(Contract::loginSize);
    updateWindowSize();
    m_drag.reset();
    centerOnScreen(this);
    m_maximizeAllowed = false;
}

void OvMainWindow::onMaximumShortcutActivated()
{
    if (!m_maximizeAllowed)
        return;
    if (m_pageMaximized)
        onRestoreWindow();
    else
        onMaximizeWindow();
}

void OvMainWindow::onMinimizeWindow()
{
    showMinimized();
}

void OvMainWindow::onCloseWindow()
{
    close();
    m_webContainer->deleteLater();
}

// Device windows may still be open; the client ends with its main window all the same.
void OvMainWindow::closeEvent(QCloseEvent *event)
{
    OvWindowBase::closeEvent(event);
    if (event->isAccepted())
        QCoreApplication::quit();
}

void OvMainWindow::onSetLanguage(const QString &lang)
{
    TranslateManager::instance()->onLanguegeChanged(lang);
    HttpHelper::setLanguage(lang);
}

OvUpdateDialog *OvMainWindow::updateDialog() const
{
    return m_updateDialog;
}

void OvMainWindow::onUpdateNewVersion(const QString &updatePath, const QJsonArray &fileInfo)
{
    const bool isNew = !m_updateDialog;
    if (isNew) {
        m_updateDialog = new OvUpdateDialog;
        connect(m_updateDialog, &OvUpdateDialog::sigInstallNewVersionApp, this,
            &OvMainWindow::onInstallNewVersionApp);
    }
    m_updateDialog->showNormal();
    m_updateDialog->raise();
    m_updateDialog->activateWindow();
    if (isNew)
        centerOnScreen(m_updateDialog);
    m_updateDialog->updateNewVersion(updatePath, fileInfo);
}

void OvMainWindow::onInstallNewVersionApp(const QString &filePath, bool delayInstall)
{
    m_installOnExit = delayInstall; // what is started now must not be started again
    m_installerOnExit = filePath;
    if (delayInstall) {
        qInfo().noquote() << "the installer will be started when the client ends:" << filePath;
        return;
    }
    startInstaller(filePath);
    close();
}

// The web view covers the body up to the shadow margin: once the pointer is over it, no edge is under the
// pointer.
bool OvMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter)
        leaveEdge();
    return OvWindowBase::eventFilter(watched, event);
}
