#include "web/WebSingleController.h"

#include "net/HttpHelper.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"
#include "web/WebSingleControllerJsApi.h"
#include "web/WindowPlacement.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QResource>
#include <QWebEngineDownloadItem>
#include <QWebEnginePage>
#include <QWebEngineProfile>

namespace {

constexpr QSize FirstSize(340, 640); // pixels, of the empty window
constexpr QSize LoadedSize(390, 640); // until the page wants another

// Makes the front end available as qrc:/html/orvane/, once for the process.
void registerFrontEnd()
{
    static const bool registered = [] {
        const QString file = QCoreApplication::applicationDirPath() + QStringLiteral("/res/html/orvane.rcc");
        const bool found = QResource::registerResource(file);
        if (!found)
            qWarning().noquote() << "the device page cannot be loaded, there is no" << file;
        return found;
    }();
    Q_UNUSED(registered)
}

} // namespace

WebSingleController::WebSingleController()
    : m_layout(new QHBoxLayout(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlags(Qt::FramelessWindowHint);
    setWindowIcon(QIcon(QStringLiteral(":/icon/orvane.ico")));
    setFixedSize(FirstSize);
    m_layout->setContentsMargins(0, 0, 0, 0);
}

void WebSingleController::load(const QUrl &url)
{
    registerFrontEnd();
    setFixedSize(LoadedSize);
    m_webContainer = new OvWebContainer(this);
    m_webContainer->setAttribute(Qt::WA_TranslucentBackground);
    m_webContainer->setStyleSheet(QStringLiteral("border-radius:10px;"));
    OvWebView *view = m_webContainer->webView();
    view->installEventFilter(this);
    view->setAttribute(Qt::WA_MouseTracking);
    m_jsApi = new WebSingleControllerJsApi(view);
    view->setJsApi(m_jsApi);
    connectJsApi();
    // The device page has another origin than the main window's page and does not see its local storage.
    m_webContainer->addPageSettings({{QStringLiteral("accessToken"), HttpHelper::accessToken()},
        {QStringLiteral("loginId"), HttpHelper::loginId()},
        {QStringLiteral("language"), HttpHelper::language()}});
    m_layout->addWidget(m_webContainer);
    m_webContainer->load(url.toString(QUrl::FullyEncoded));
}

void WebSingleController::connectJsApi()
{
    connect(m_jsApi, &OvJsApi::sigSetWindowSize, this, &WebSingleController::onSetWindowSize);
    connect(m_jsApi, &OvJsApi::sigMoveWindow, this, &WebSingleController::onMoveWindow);
    connect(m_jsApi, &OvJsApi::sigCloseWindow, this, &WebSingleController::onCloseWindow);
    connect(m_jsApi, &OvJsApi::sigMinimizeWindow, this, &WebSingleController::onMinimizeWindow);
    connect(m_jsApi, &OvJsApi::sigMaximizeWindow, this, &WebSingleController::onMaximizeWindow);
    connect(m_jsApi, &OvJsApi::sigRestoreWindow, this, &WebSingleController::onRestoreWindow);
    connect(m_jsApi, &WebSingleControllerJsApi::sigSavePathChosen, this,
        [this](const QString &path) { m_savePath = path; });
    connect(OvWebContainer::profile(), &QWebEngineProfile::downloadRequested, this,
        &WebSingleController::onDownloadRequested);
    connect(m_webContainer->webView(), &QWebEngineView::titleChanged, this, &QWidget::setWindowTitle);
}

// The page fixes the window's size; nothing else resizes it.
void WebSingleController::applySize(const QSize &size)
{
    setFixedSize(size.boundedTo({QWIDGETSIZE_MAX / 2, QWIDGETSIZE_MAX / 2}));
}

void WebSingleController::onSetWindowSize(int width, int height)
{
    if (width <= 0 || height <= 0) {
        qWarning() << "the page wants a window without an area:" << width << "x" << height;
        return;
    }
    m_wantedSize = QSize(width, height);
    applySize(m_wantedSize);
    m_drag.reset();
    centerOnScreen(this);
    m_sizeWanted = true;
}

// The size is set again for a screen with another scale.
void WebSingleController::onMoveWindow(int x, int y)
{
    m_drag.moveBy(QPoint(x, y));
    if (m_sizeWanted)
        applySize(m_wantedSize);
}

void WebSingleController::onMaximizeWindow()
{
    if (m_maximized)
        return;
    m_maximized = true;
    m_drag.reset();
    m_normalGeometry = geometry();
    const QRect target = maximizedGeometry(pos());
    setFixedSize(target.size());
    setGeometry(target);
}

void WebSingleController::onRestoreWindow()
{
    if (!m_maximized)
        return;
    m_maximized = false;
    m_drag.reset();
    setFixedSize(m_normalGeometry.size());
    setGeometry(m_normalGeometry);
}

void WebSingleController::onMinimizeWindow()
{
    showMinimized();
}

void WebSingleController::onCloseWindow()
{
    close();
    if (m_webContainer)
        m_webContainer->deleteLater();
}

// The profile tells every window; only this window's page, and only what the user has chosen a file for, is
// saved.
void WebSingleController::onDownloadRequested(QWebEngineDownloadItem *download)
{
    if (!m_webContainer || download->page() != m_webContainer->webView()->page())
        return;
    if (m_savePath.isEmpty()) {
        qWarning().noquote() << "a download that nobody asked for is refused:"
                             << download->suggestedFileName();
        download->cancel();
        return;
    }
    const QFileInfo target(m_savePath);
    m_savePath.clear();
    download->setDownloadDirectory(target.absolutePath());
    download->setDownloadFileName(target.fileName());
    connect(download, &QWebEngineDownloadItem::finished, download, [download, path = target.filePath()] {
        if (download->state() == QWebEngineDownloadItem::DownloadCompleted)
            qInfo().noquote() << "the picture was saved as" << path;
        else
            qWarning().noquote() << "the picture could not be saved as" << path << ':'
                                 << download->interruptReasonString();
    });
    download->accept();
}
