#include "web/OvWebContainer.h"

#include "base/AppSettings.h"
#include "net/HttpHelper.h"
#include "web/OvWebView.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QShortcut>
#include <QStackedLayout>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

namespace {

// Adds the settings to window.orvane before a page's own scripts run, whichever such script comes first.
QWebEngineScript settingsScript(const QString &name, const QJsonObject &settings)
{
    QWebEngineScript script;
    script.setName(name);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setSourceCode(
        QStringLiteral("window.orvane = Object.freeze(Object.assign({}, window.orvane, %1));")
            .arg(QString::fromUtf8(QJsonDocument(settings).toJson(QJsonDocument::Compact))));
    return script;
}

QWebEngineProfile *createProfile()
{
    auto *profile = new QWebEngineProfile(QStringLiteral("orvane"));
    profile->scripts()->insert(
        settingsScript(QStringLiteral("orvane"), {{QStringLiteral("apiBaseUrl"), HttpHelper::apiBaseUrl()}}));
    return profile;
}

} // namespace

QWebEngineProfile *OvWebContainer::profile()
{
    static QWebEngineProfile *const shared = createProfile();
    return shared;
}

OvWebContainer::OvWebContainer(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QStackedLayout)
    , m_webView(new OvWebView(this))
{
    m_webView->setContextMenuPolicy(Qt::NoContextMenu);
    m_layout->addWidget(m_webView);
    connect(m_webView, &QWebEngineView::loadFinished, this, &OvWebContainer::onLoadFinished);

    auto *page = new QWebEnginePage(profile(), this);
    m_webView->setPage(page);
    page->setBackgroundColor(Qt::transparent);
    page->settings()->setAttribute(QWebEngineSettings::LocalStorageEnabled, true);
    setLayout(m_layout);

    auto *shortcut = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+I")), this);
    connect(shortcut, &QShortcut::activated, this, &OvWebContainer::showDevTools);
}

void OvWebContainer::load(const QString &url)
{
    m_webView->setUrl(QUrl(url));
}

void OvWebContainer::addPageSettings(const QJsonObject &settings)
{
    m_webView->page()->scripts().insert(settingsScript(QStringLiteral("orvane page"), settings));
}

void OvWebContainer::onLoadFinished(bool bOk)
{
    if (bOk)
        m_layout->setCurrentWidget(m_webView);
}

// The developer tools are for those who set "WebDebug" in the settings file.
void OvWebContainer::showDevTools()
{
    if (!AppSettings().value(QStringLiteral("WebDebug")).toBool())
        return;
    if (!m_devTools) {
        auto *view = new QWebEngineView;
        view->setAttribute(Qt::WA_QuitOnClose, false);
        m_webView->page()->setDevToolsPage(view->page());
        m_devTools = view;
    }
    m_devTools->show();
}
