#pragma once

#include <QPointer>
#include <QWebEngineView>

class OvJsApi;
class OvWebContainer;

// The web view of a container. Lets a transparent window show through where the page is transparent, and
// publishes one JS API object to its page. GUI thread; child of its container.
class OvWebView : public QWebEngineView
{
    Q_OBJECT

public:
    explicit OvWebView(OvWebContainer *container);

    // Publishes the object on the page's web channel as "clientApi". The same object again, or none, changes
    // nothing. Not owned.
    void setJsApi(OvJsApi *jsApi);
    // The published object, or none.
    OvJsApi *jsApi() const;
    OvWebContainer *container() const { return m_container; }

private:
    QPointer<OvJsApi> m_jsApi;
    OvWebContainer *m_container; // the parent
};
