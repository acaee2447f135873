#include "WebTestSupport.h"

#include "net/HttpHelper.h"
#include "web/OvMainWindowJsApi.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"
#include "web/WebSingleController.h"
#include "web/WebSingleControllerJsApi.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QMetaMethod>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

using webtest::callText;
using webtest::evaluate;

// The web device window with a page of its own making.
class TestWebSingleController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void construction();
    void slotOrder();
    void contentAfterLoad();
    void pageKnowsTheSession();
    void pageSetsTheSize();
    void sizeWithoutAnArea();
    void movingKeepsTheSize();
    void maximizeAndRestore();
    void minimize();
    void pageClosesTheWindow();
    void savePathIsProposed();
    void cancelledSaveTellsThePage();
    void pictureArrivesAtTheChosenPath();
    void existingPictureIsReplaced();
    void unaskedDownloadIsRefused();
    void dialogEndsWithTheWindow();
    void opensOncePerDevice();
    void opensFromThePageWithAPlainObject();

private:
    QWebEnginePage *page() const { return m_window->webContainer()->webView()->page(); }
    void call(const QString &name, const QJsonObject &members = {}) const;
    static QFileDialog *dialog();
    // Has the page ask for a path, answers the dialog with the file, and waits for the page's callback.
    void choose(const QString &path);
    void download();

    QTemporaryDir m_dir;
    QPointer<WebSingleController> m_window;
};

void TestWebSingleController::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QFile file(m_dir.filePath(QStringLiteral("page.html")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(<title>Aurora</title><script src="qrc:///qtwebchannel/qwebchannel.js"></script>
<script>
window.atStart = JSON.stringify(window.orvane);
window.saved = r => { window.savePath = r.savePath; };
window.ready = new Promise(done => new QWebChannel(qt.webChannelTransport, c => {
    window.clientApi = c.objects.clientApi; window.channelUp = true; done(); }));
window.save = () => {
    const canvas = document.createElement('canvas');
    canvas.width = 8; canvas.height = 4;
    const painter = canvas.getContext('2d');
    painter.fillStyle = '#ff0000';
    painter.fillRect(0, 0, 8, 4);
    canvas.toBlob(blob => {
        const link = document.createElement('a');
        link.href = URL.createObjectURL(blob);
        link.download = 'page-name.png';
        document.body.appendChild(link);
        link.click();
    }, 'image/png');
};
</script><body></body>)");
}

void TestWebSingleController::init()
{
    HttpHelper::setLoginParams(QStringLiteral("token-1"), QStringLiteral("login-1"));
    HttpHelper::setLanguage(QStringLiteral("de"));
    m_window = new WebSingleController;
    m_window->load(QUrl::fromLocalFile(m_dir.filePath(QStringLiteral("page.html"))));
    QSignalSpy loaded(m_window->webContainer()->webView(), &QWebEngineView::loadFinished);
    QVERIFY(loaded.wait(20000));
    QTRY_VERIFY(evaluate(page(), QStringLiteral("window.channelUp === true")).toBool());
}

void TestWebSingleController::cleanup()
{
    delete m_window;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestWebSingleController::call(const QString &name, const QJsonObject &members) const
{
    m_window->jsApi()->callJsApi(callText(name, members));
}

QFileDialog *TestWebSingleController::dialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<QFileDialog *>(widget); found && found->isVisible())
            return found;
    }
    return nullptr;
}

void TestWebSingleController::construction()
{
    const WebSingleController window;
    QVERIFY(!window.parent());
    QCOMPARE(window.size(), QSize(340, 640));
    QVERIFY(window.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(qobject_cast<QHBoxLayout *>(window.layout()));
    QCOMPARE(window.layout()->contentsMargins(), QMargins());
}

void TestWebSingleController::slotOrder()
{
    QStringList names;
    const QMetaObject &meta = WebSingleController::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(names,
        (QStringList{QStringLiteral("onSetWindowSize(int,int)"), QStringLiteral("onMoveWindow(int,int)"),
            QStringLiteral("onCloseWindow()"), QStringLiteral("onMinimizeWindow()"),
            QStringLiteral("onMaximizeWindow()"), QStringLiteral("onRestoreWindow()")}));
}

void TestWebSingleController::contentAfterLoad()
{
    QCOMPARE(m_window->size(), QSize(390, 640));
    OvWebContainer *container = m_window->webContainer();
    QCOMPARE(m_window->layout()->itemAt(0)->widget(), container);
    QVERIFY(container->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(container->styleSheet(), QStringLiteral("border-radius:10px;"));
    QVERIFY(container->webView()->testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(container->webView()->jsApi(), m_window->jsApi());
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Aurora")); // for the task bar
}

void TestWebSingleController::pageKnowsTheSession()
{
    const QJsonObject settings
        = QJsonDocument::fromJson(evaluate(page(), QStringLiteral("window.atStart")).toString().toUtf8())
              .object();
    QCOMPARE(settings.value(QStringLiteral("apiBaseUrl")).toString(), HttpHelper::apiBaseUrl());
    QCOMPARE(settings.value(QStringLiteral("accessToken")).toString(), QStringLiteral("token-1"));
    QCOMPARE(settings.value(QStringLiteral("loginId")).toString(), QStringLiteral("login-1"));
    QCOMPARE(settings.value(QStringLiteral("language")).toString(), QStringLiteral("de"));
}

void TestWebSingleController::pageSetsTheSize()
{
    m_window->show();
    call(QStringLiteral("setWindowSize"), {{QStringLiteral("width"), 500}, {QStringLiteral("height"), 420}});
    QCOMPARE(m_window->size(), QSize(500, 420));
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(m_window->pos(),
        available.topLeft() + QPoint((available.width() - 500) / 2, (available.height() - 420) / 2));
}

void TestWebSingleController::sizeWithoutAnArea()
{
    call(QStringLiteral("setWindowSize"), {{QStringLiteral("width"), 0}, {QStringLiteral("height"), 420}});
    call(QStringLiteral("setWindowSize"), {{QStringLiteral("width"), 500}, {QStringLiteral("height"), -1}});
    call(QStringLiteral("setWindowSize"));
    QCOMPARE(m_window->size(), QSize(390, 640));
}

void TestWebSingleController::movingKeepsTheSize()
{
    m_window->show();
    call(QStringLiteral("setWindowSize"), {{QStringLiteral("width"), 300}, {QStringLiteral("height"), 200}});
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    const QPoint before = m_window->pos();
    call(QStringLiteral("moveWindow"), {{QStringLiteral("x"), -20}, {QStringLiteral("y"), 15}});
    QCOMPARE(m_window->pos(), before + QPoint(-20, 15));
    m_window->setFixedSize(310, 210); // as a screen with another scale does it
    call(QStringLiteral("moveWindow"), {{QStringLiteral("x"), 1}, {QStringLiteral("y"), 0}});
    QCOMPARE(m_window->size(), QSize(300, 200));
}

void TestWebSingleController::maximizeAndRestore()
{
    m_window->show();
    call(QStringLiteral("setWindowSize"), {{QStringLiteral("width"), 300}, {QStringLiteral("height"), 200}});
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    m_window->move(40, 30);
    const QRect normal = m_window->geometry();
    const QRect available = QGuiApplication::screenAt(m_window->pos())->availableGeometry();
    call(QStringLiteral("maximizeWindow"));
    QCOMPARE(m_window->geometry(), available.adjusted(-3, -3, 3, 3));
    call(QStringLiteral("maximizeWindow")); // nothing more
    call(QStringLiteral("restoreWindow"));
    QCOMPARE(m_window->geometry(), normal);
    m_window->move(60, 50);
    call(QStringLiteral("restoreWindow")); // is not maximised
    QCOMPARE(m_window->pos(), QPoint(60, 50));
}

void TestWebSingleController::minimize()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    call(QStringLiteral("minimizeWindow"));
    QTRY_VERIFY(m_window->isMinimized());
}

void TestWebSingleController::pageClosesTheWindow()
{
    m_window->show();
    const QPointer<OvWebContainer> container = m_window->webContainer();
    evaluate(page(), QStringLiteral("window.clientApi.callJsApi('{\"jsApiName\":\"closeWindow\"}')"));
    QTRY_VERIFY(container.isNull());
    QTRY_VERIFY(m_window.isNull());
}

void TestWebSingleController::savePathIsProposed()
{
    call(QStringLiteral("getSavePath"), {{QStringLiteral("callback"), QStringLiteral("window.saved")}});
    QTRY_VERIFY(dialog());
    QCOMPARE(dialog()->windowTitle(), QStringLiteral("Save File"));
    QCOMPARE(dialog()->nameFilters(), QStringList{QStringLiteral("Image(*.jpg *.png)")});
    QCOMPARE(dialog()->acceptMode(), QFileDialog::AcceptSave);
    QVERIFY(!dialog()->parentWidget());
    QCOMPARE(
        QFileInfo(dialog()->selectedFiles().value(0)).completeBaseName(), QStringLiteral("Screen capture"));
    dialog()->reject();
}

void TestWebSingleController::cancelledSaveTellsThePage()
{
    call(QStringLiteral("getSavePath"), {{QStringLiteral("callback"), QStringLiteral("window.saved")}});
    QTRY_VERIFY(dialog());
    dialog()->reject();
    QTRY_COMPARE(evaluate(page(), QStringLiteral("window.savePath")), QVariant(QString()));
}

void TestWebSingleController::choose(const QString &path)
{
    evaluate(page(), QStringLiteral("delete window.savePath"));
    call(QStringLiteral("getSavePath"), {{QStringLiteral("callback"), QStringLiteral("window.saved")}});
    QTRY_VERIFY(dialog());
    dialog()->selectFile(path);
    // As the dialog's own button, without its question about an existing file.
    dialog()->setOption(QFileDialog::DontConfirmOverwrite);
    QMetaObject::invokeMethod(dialog(), "accept");
    QTRY_COMPARE(evaluate(page(), QStringLiteral("window.savePath")).toString(), path);
}

void TestWebSingleController::download()
{
    evaluate(page(), QStringLiteral("window.save()"));
}

void TestWebSingleController::pictureArrivesAtTheChosenPath()
{
    m_window->show();
    const QString path = m_dir.filePath(QStringLiteral("my picture.png"));
    choose(path);
    download();
    QTRY_COMPARE(QImage(path).size(), QSize(8, 4));
    QCOMPARE(QImage(path).pixelColor(3, 2), QColor(Qt::red));
    QVERIFY(!QFile::exists(m_dir.filePath(QStringLiteral("page-name.png"))));
}

void TestWebSingleController::existingPictureIsReplaced()
{
    m_window->show();
    const QString path = m_dir.filePath(QStringLiteral("old.png"));
    QFile old(path);
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    choose(path);
    download();
    QTRY_COMPARE(QImage(path).size(), QSize(8, 4));
}

void TestWebSingleController::unaskedDownloadIsRefused()
{
    m_window->show();
    const webtest::LogCapture log;
    download();
    const auto refused = [] {
        return !webtest::LogCapture::text()
                    .filter(QStringLiteral("a download that nobody asked for"))
                    .isEmpty();
    };
    QTRY_VERIFY(refused());
    QVERIFY(!QFile::exists(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)
        + QStringLiteral("/page-name.png")));
}

void TestWebSingleController::dialogEndsWithTheWindow()
{
    call(QStringLiteral("getSavePath"), {{QStringLiteral("callback"), QStringLiteral("window.saved")}});
    QTRY_VERIFY(dialog());
    m_window->close();
    QTRY_VERIFY(m_window.isNull());
    QTRY_VERIFY(!dialog());
}

void TestWebSingleController::opensOncePerDevice()
{
    OvWebContainer container(nullptr);
    OvMainWindowJsApi api(container.webView());
    web::StreamingData data;
    data.serviceId = QStringLiteral("100001");
    api.onOpenWebSingleController(data);
    const QPointer<WebSingleController> first = api.webSingleController(QStringLiteral("100001"));
    QVERIFY(first && first->isVisible());
    first->showMinimized();
    api.onOpenWebSingleController(data);
    QCOMPARE(api.webSingleController(QStringLiteral("100001")), first.data());
    QTRY_VERIFY(!first->isMinimized());
    data.serviceId.clear();
    api.onOpenWebSingleController(data); // opens nothing
    QCOMPARE(api.webSingleController(QString()), nullptr);
    first->onCloseWindow();
    QTRY_VERIFY(first.isNull());
    QCOMPARE(api.webSingleController(QStringLiteral("100001")), nullptr);
}

// Over the real channel: the page calls the slot itself.
void TestWebSingleController::opensFromThePageWithAPlainObject()
{
    OvWebContainer container(nullptr);
    auto *api = new OvMainWindowJsApi(container.webView());
    container.webView()->setJsApi(api);
    QSignalSpy loaded(container.webView(), &QWebEngineView::loadFinished);
    container.load(QUrl::fromLocalFile(m_dir.filePath(QStringLiteral("page.html"))).toString());
    QVERIFY(loaded.wait(20000));
    QWebEnginePage *mainPage = container.webView()->page();
    QTRY_VERIFY(evaluate(mainPage, QStringLiteral("window.channelUp === true")).toBool());
    evaluate(mainPage,
        QStringLiteral("window.clientApi.onOpenWebSingleController({deviceId: 'VM7', "
                       "serviceId: '100007', aliasName: 'Comet', ttl: 3600})"));
    QTRY_VERIFY(api->webSingleController(QStringLiteral("100007")));
    const QString url = api->webSingleController(QStringLiteral("100007"))
                            ->webContainer()
                            ->webView()
                            ->url()
                            .toString(QUrl::FullyEncoded);
    QVERIFY2(url.startsWith(QStringLiteral("qrc:/html/orvane/index.html#/deviceWin/?deviceId=VM7&"
                                           "serviceId=100007&")),
        qPrintable(url));
    QVERIFY(url.endsWith(QStringLiteral("aliasName=Comet&ttl=3600")));
    // What is no object opens nothing and harms nothing.
    evaluate(mainPage,
        QStringLiteral("window.clientApi.onOpenWebSingleController('x');"
                       "window.clientApi.onOpenWebSingleController(7);"
                       "window.clientApi.onOpenWebSingleController(null);"
                       "window.clientApi.onOpenWebSingleController([])"));
    evaluate(mainPage, QStringLiteral("1"));
    QCOMPARE(api->webSingleController(QString()), nullptr);
}

QTEST_MAIN(TestWebSingleController)
#include "tst_websinglecontroller.moc"
