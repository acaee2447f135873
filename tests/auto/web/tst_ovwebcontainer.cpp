#include "WebTestSupport.h"

#include "base/AppPaths.h"
#include "net/HttpHelper.h"
#include "web/OvJsApi.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"

#include <InputFocus.h>

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedLayout>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWebChannel>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

using webtest::evaluate;

// The web view host: page, profile, channel, developer tools.
class TestOvWebContainer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void construction();
    void oneProfileForAll();
    void pageKnowsTheApiRoot();
    void failedLoadLeavesTheView();
    void loadsDecideWhatIsShown();
    void requestForANewWindowIsIgnored();
    void jsApiIsPublishedOnce();
    void pageReachesTheJsApi();
    void devToolsOnlyWhenAllowed();

private:
    static void load(OvWebContainer *container);
    static QList<QWidget *> devTools(const OvWebContainer &container);
};

void TestOvWebContainer::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QFile::remove(AppPaths::settingsFile());
}

void TestOvWebContainer::load(OvWebContainer *container)
{
    QTemporaryDir dir;
    QFile page(dir.filePath(QStringLiteral("page.html")));
    QVERIFY(page.open(QIODevice::WriteOnly));
    page.write("<title>page</title><script src='qrc:///qtwebchannel/qwebchannel.js'></script>");
    page.close();
    QSignalSpy loaded(container->webView(), &QWebEngineView::loadFinished);
    container->load(QStringLiteral("file:///") + page.fileName());
    QVERIFY(loaded.wait(20000));
    QVERIFY(loaded.at(0).at(0).toBool());
}

void TestOvWebContainer::construction()
{
    QWidget window;
    OvWebContainer container(&window);
    OvWebView *view = container.webView();
    QCOMPARE(view->parentWidget(), &container);
    QCOMPARE(view->container(), &container);
    QCOMPARE(view->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(view->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(view->page()->parent(), &container);
    QCOMPARE(view->page()->backgroundColor(), QColor(Qt::transparent));
    QVERIFY(view->page()->settings()->testAttribute(QWebEngineSettings::LocalStorageEnabled));
    auto *layout = qobject_cast<QStackedLayout *>(container.layout());
    QVERIFY(layout);
    QCOMPARE(layout->currentWidget(), view);
    QCOMPARE(view->jsApi(), nullptr);
}

void TestOvWebContainer::oneProfileForAll()
{
    OvWebContainer first(nullptr);
    OvWebContainer second(nullptr);
    QCOMPARE(first.webView()->page()->profile(), second.webView()->page()->profile());
    QCOMPARE(first.webView()->page()->profile()->storageName(), QStringLiteral("orvane"));
    QVERIFY(!first.webView()->page()->profile()->isOffTheRecord());
}

void TestOvWebContainer::pageKnowsTheApiRoot()
{
    OvWebContainer container(nullptr);
    load(&container);
    QCOMPARE(evaluate(container.webView()->page(), QStringLiteral("window.orvane.apiBaseUrl")).toString(),
        HttpHelper::apiBaseUrl());
}

void TestOvWebContainer::failedLoadLeavesTheView()
{
    OvWebContainer container(nullptr);
    load(&container);
    auto *layout = qobject_cast<QStackedLayout *>(container.layout());
    auto *other = new QWidget;
    layout->addWidget(other);
    layout->setCurrentWidget(other);
    container.onLoadFinished(false);
    QCOMPARE(layout->currentWidget(), other);
    container.onLoadFinished(true);
    QCOMPARE(layout->currentWidget(), container.webView());
}

void TestOvWebContainer::loadsDecideWhatIsShown()
{
    OvWebContainer container(nullptr);
    auto *layout = qobject_cast<QStackedLayout *>(container.layout());
    auto *other = new QWidget;
    layout->addWidget(other);
    layout->setCurrentWidget(other);
    QTemporaryDir dir;
    QSignalSpy loaded(container.webView(), &QWebEngineView::loadFinished);
    container.load(QStringLiteral("file:///") + dir.filePath(QStringLiteral("missing.html")));
    QVERIFY(loaded.wait(20000));
    QVERIFY(!loaded.at(0).at(0).toBool());
    QCOMPARE(layout->currentWidget(), other);
    load(&container);
    QCOMPARE(layout->currentWidget(), container.webView());
}

void TestOvWebContainer::requestForANewWindowIsIgnored()
{
    OvWebContainer container(nullptr);
    load(&container);
    QWebEnginePage *page = container.webView()->page();
    const QUrl url = page->url();
    const QWidgetList windows = QApplication::topLevelWidgets();
    evaluate(page, QStringLiteral("window.open('about:blank') === null"));
    evaluate(page,
        QStringLiteral("const link = document.createElement('a'); link.href = 'about:blank';"
                       "link.target = '_blank'; document.body.appendChild(link); link.click(); 1"));
    evaluate(page, QStringLiteral("1")); // what was asked for is through
    QCOMPARE(QApplication::topLevelWidgets(), windows);
    QCOMPARE(page->url(), url);
}

void TestOvWebContainer::jsApiIsPublishedOnce()
{
    OvWebContainer container(nullptr);
    OvWebView *view = container.webView();
    view->setJsApi(nullptr);
    QCOMPARE(view->page()->webChannel(), nullptr);

    OvJsApi api(view);
    view->setJsApi(&api);
    QWebChannel *channel = view->page()->webChannel();
    QVERIFY(channel);
    QCOMPARE(channel->parent(), view);
    QCOMPARE(channel->registeredObjects().value(QStringLiteral("clientApi")), &api);

    view->setJsApi(&api);
    view->setJsApi(nullptr);
    QCOMPARE(view->page()->webChannel(), channel);
    QCOMPARE(view->findChildren<QWebChannel *>().size(), 1);
    QCOMPARE(view->jsApi(), &api);

    OvJsApi other(view);
    view->setJsApi(&other);
    QCOMPARE(view->page()->webChannel()->registeredObjects().value(QStringLiteral("clientApi")), &other);
}

void TestOvWebContainer::pageReachesTheJsApi()
{
    OvWebContainer container(nullptr);
    OvJsApi api(container.webView());
    container.webView()->setJsApi(&api);
    load(&container);
    QSignalSpy moved(&api, &OvJsApi::sigMoveWindow);
    QWebEnginePage *page = container.webView()->page();
    page->runJavaScript(
        QStringLiteral("function got(result) { document.title = result.appVersion; }"
                       "new QWebChannel(qt.webChannelTransport, channel => {"
                       "  const api = channel.objects.clientApi;"
                       "  api.callJsApi(JSON.stringify({jsApiName: 'moveWindow', x: 4, y: -5}));"
                       "  api.callJsApi(JSON.stringify({jsApiName: 'getAppInfo', callback: 'got'}));"
                       "});"));
    QTRY_COMPARE_WITH_TIMEOUT(page->title(), QStringLiteral("1.2.5"), 10000);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.at(0), (QVariantList{4, -5}));
}

QList<QWidget *> TestOvWebContainer::devTools(const OvWebContainer &container)
{
    QList<QWidget *> found;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget != container.window() && widget->isVisible() && qobject_cast<QWebEngineView *>(widget))
            found << widget;
    }
    return found;
}

void TestOvWebContainer::devToolsOnlyWhenAllowed()
{
    QWidget window;
    OvWebContainer container(&window);
    window.resize(300, 200);
    window.show();
    window.activateWindow();
    QVERIFY(waitForInputFocus(window));

    const auto press = [&] { QTest::keyClick(&window, Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier); };
    press();
    QVERIFY(devTools(container).isEmpty());

    QSettings settings(AppPaths::settingsFile(), QSettings::IniFormat);
    settings.setValue(QStringLiteral("config/WebDebug"), false);
    settings.sync();
    press();
    QVERIFY(devTools(container).isEmpty());

    settings.setValue(QStringLiteral("config/WebDebug"), true);
    settings.sync();
    press();
    QCOMPARE(devTools(container).size(), 1);
    QWidget *tools = devTools(container).constFirst();
    QCOMPARE(static_cast<QWebEngineView *>(tools)->page(), container.webView()->page()->devToolsPage());

    tools->hide();
    window.activateWindow();
    QVERIFY(waitForInputFocus(window));
    press();
    QCOMPARE(devTools(container), QList<QWidget *>{tools});
    delete tools;
}

QTEST_MAIN(TestOvWebContainer)
#include "tst_ovwebcontainer.moc"
