#include "web/OvWebView.h"

#include "web/OvJsApi.h"
#include "web/OvWebContainer.h"

#include <QWebChannel>

OvWebView::OvWebView(OvWebContainer *container)
    : QWebEngineView(container)
    , m_container(container)
{
    setAttribute(Qt::WA_TranslucentBackground);
}

void OvWebView::setJsApi(OvJsApi *jsApi)
{
    if (!jsApi || jsApi == m_jsApi)
        return;
    m_jsApi = jsApi;
    QWebChannel *previous = page()->webChannel();
    auto *channel = new QWebChannel(this);
    channel->registerObject(QStringLiteral("clientApi"), jsApi);
    page()->setWebChannel(channel);
    delete previous;
}

OvJsApi *OvWebView::jsApi() const
{
    return m_jsApi;
}
