#pragma once

#include <QJsonObject>
#include <QWidget>

class OvWebView;
class QStackedLayout;
class QWebEngineProfile;

// What a web-based window puts in its body: one web view on the client's persistent browser profile, with
// developer tools on Ctrl+Shift+I when the settings file allows them. GUI thread; child of its window.
class OvWebContainer : public QWidget
{
    Q_OBJECT

public:
    explicit OvWebContainer(QWidget *parent);

    OvWebView *webView() const { return m_webView; }
    // Loads the URL as it stands.
    void load(const QString &url);
    // Adds members to window.orvane, for the pages that this container loads from now on.
    void addPageSettings(const QJsonObject &settings);

    // The client's one browser profile, made on first use and kept until the process ends. Its pages find the
    // root of the service's API in window.orvane.apiBaseUrl.
    static QWebEngineProfile *profile();

signals:
    void sigCloseWindow();

public slots:
    void onLoadFinished(bool bOk);

private:
    void showDevTools();

    QStackedLayout *m_layout;
    OvWebView *m_webView;
    QWidget *m_devTools = nullptr; // top level; made on first use and shown again later, never deleted
};
