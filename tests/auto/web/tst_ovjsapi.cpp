#include "WebTestSupport.h"

#include "web/OvJsApi.h"

#include <QDesktopServices>
#include <QFile>
#include <QJsonArray>
#include <QMetaMethod>
#include <QProcess>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QWebEngineView>

#include <csignal>

using webtest::callText;
using webtest::evaluate;
using webtest::LogCapture;
using webtest::LogMessage;

// The bridge's call protocol, with a real page that receives the results.
class TestOvJsApi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void interfaceOrder();
    void getAppInfoAnswersThePage();
    void windowOperations_data();
    void windowOperations();
    void numbersAndTexts_data();
    void numbersAndTexts();
    void badCallsChangeNothing_data();
    void badCallsChangeNothing();
    void callsAreLogged();
    void everyOtherCallIsLogged_data();
    void everyOtherCallIsLogged();
    void callsAreLoggedAfterTheirOperation();
    void writeLogReachesTheLog();
    void resultTextIsAFunctionCall();
    void noCallbackRunsNoFunction();
    void noWebViewPublishesNothing();
    void execProcessArguments();
    void execProcessExitCode();
    void execProcessMissingProgram();
    void execProcessCrash();
    void execProcessOutputIsInTheLocalCodePage_data();
    void execProcessOutputIsInTheLocalCodePage();
    void finishedProcessIsDeleted();
    void processThatFailedToStartIsKept();
    void stopExecProcess();
    void resultKeepsPercentSigns();

private:
    QString script(const QString &name, const QByteArray &body);
    QJsonArray results();
    void waitForResults(int count);
    void exec(const QString &program);
    // Stands in for the system's browser.
    Q_INVOKABLE void browse(const QUrl &url) { m_browsed = url; }

    QTemporaryDir m_dir;
    QScopedPointer<QWebEngineView> m_view;
    OvJsApi *m_api = nullptr;
    QUrl m_browsed;
};

void TestOvJsApi::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

void TestOvJsApi::init()
{
    m_view.reset(new QWebEngineView);
    QSignalSpy loaded(m_view.data(), &QWebEngineView::loadFinished);
    m_view->setHtml(
        QStringLiteral("<script>var results = []; function got(o) { results.push(o); }</script>"));
    QVERIFY(loaded.wait(20000));
    m_api = new OvJsApi(m_view.data());
    m_browsed.clear();
}

QString TestOvJsApi::script(const QString &name, const QByteArray &body)
{
    const QString path = m_dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write("#!/bin/sh\n" + body + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

QJsonArray TestOvJsApi::results()
{
    const QString text = evaluate(m_view->page(), QStringLiteral("JSON.stringify(results)")).toString();
    return QJsonDocument::fromJson(text.toUtf8()).array();
}

void TestOvJsApi::waitForResults(int count)
{
    QTRY_VERIFY_WITH_TIMEOUT(results().size() >= count, 10000);
}

void TestOvJsApi::exec(const QString &program)
{
    m_api->callJsApi(callText(QStringLiteral("execProcess"),
        {{QStringLiteral("command"), program}, {QStringLiteral("callback"), QStringLiteral("got")}}));
}

void TestOvJsApi::interfaceOrder()
{
    const QStringList expected{QStringLiteral("sigSetWindowSize(int,int)"),
        QStringLiteral("sigMoveWindow(int,int)"), QStringLiteral("sigCloseWindow()"),
        QStringLiteral("sigMinimizeWindow()"), QStringLiteral("sigMaximizeWindow()"),
        QStringLiteral("sigRestoreWindow()"), QStringLiteral("sigSetLanguage(QString)"),
        QStringLiteral("callJsApi(QString)"), QStringLiteral("getAppInfo(Context)"),
        QStringLiteral("setWindowSize(Context)"), QStringLiteral("moveWindow(Context)"),
        QStringLiteral("closeWindow(Context)"), QStringLiteral("maximizeWindow(Context)"),
        QStringLiteral("restoreWindow(Context)"), QStringLiteral("minimizeWindow(Context)"),
        QStringLiteral("setLanguage(Context)"), QStringLiteral("openUrl(Context)"),
        QStringLiteral("openInnerBrowser(Context)"), QStringLiteral("execProcess(Context)"),
        QStringLiteral("stopExecProcess(Context)"), QStringLiteral("writeLog(Context)")};
    QStringList actual;
    const QMetaObject &meta = OvJsApi::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        actual << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(actual, expected);
}

void TestOvJsApi::getAppInfoAnswersThePage()
{
    m_api->callJsApi(
        callText(QStringLiteral("getAppInfo"), {{QStringLiteral("callback"), QStringLiteral("got")}}));
    waitForResults(1);
    QCOMPARE(
        results().at(0).toObject(), (QJsonObject{{QStringLiteral("appVersion"), QStringLiteral("1.2.5")}}));
}

void TestOvJsApi::windowOperations_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("close") << "closeWindow" << QByteArray(SIGNAL(sigCloseWindow()));
    QTest::newRow("maximize") << "maximizeWindow" << QByteArray(SIGNAL(sigMaximizeWindow()));
    QTest::newRow("restore") << "restoreWindow" << QByteArray(SIGNAL(sigRestoreWindow()));
    QTest::newRow("minimize") << "minimizeWindow" << QByteArray(SIGNAL(sigMinimizeWindow()));
}

void TestOvJsApi::windowOperations()
{
    QFETCH(QString, operation);
    QFETCH(QByteArray, signal);
    QSignalSpy spy(m_api, signal.constData());
    m_api->callJsApi(callText(operation));
    QCOMPARE(spy.count(), 1);
}

void TestOvJsApi::numbersAndTexts_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QVariantList>("arguments");
    const QByteArray size(SIGNAL(sigSetWindowSize(int, int)));
    const QByteArray moved(SIGNAL(sigMoveWindow(int, int)));
    const QByteArray language(SIGNAL(sigSetLanguage(QString)));
    QTest::newRow("size") << R"({"jsApiName":"setWindowSize","width":1120,"height":760})" << size
                          << QVariantList{1120, 760};
    QTest::newRow("size without members") << R"({"jsApiName":"setWindowSize"})" << size << QVariantList{0, 0};
    QTest::newRow("size of the wrong type")
        << R"({"jsApiName":"setWindowSize","width":"wide","height":[1]})" << size << QVariantList{0, 0};
    QTest::newRow("size out of range")
        << R"({"jsApiName":"setWindowSize","width":1e300,"height":2})" << size << QVariantList{0, 2};
    QTest::newRow("move") << R"({"jsApiName":"moveWindow","x":-3,"y":7})" << moved << QVariantList{-3, 7};
    QTest::newRow("language") << R"({"jsApiName":"setLanguage","lang":"jp"})" << language
                              << QVariantList{QStringLiteral("jp")};
    QTest::newRow("language missing")
        << R"({"jsApiName":"setLanguage"})" << language << QVariantList{QString()};
    QTest::newRow("size as text and fraction")
        << R"({"jsApiName":"setWindowSize","width":"800","height":600.5})" << size << QVariantList{800, 601};
    QTest::newRow("language as a number")
        << R"({"jsApiName":"setLanguage","lang":4})" << language << QVariantList{QStringLiteral("4")};
    QTest::newRow("language of the wrong type")
        << R"({"jsApiName":"setLanguage","lang":["en"]})" << language << QVariantList{QString()};
}

void TestOvJsApi::numbersAndTexts()
{
    QFETCH(QString, call);
    QFETCH(QByteArray, signal);
    QFETCH(QVariantList, arguments);
    QSignalSpy spy(m_api, signal.constData());
    m_api->callJsApi(call);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), arguments);
}

void TestOvJsApi::badCallsChangeNothing_data()
{
    QTest::addColumn<QString>("call");
    QTest::newRow("empty") << "";
    QTest::newRow("no JSON") << "close the window";
    QTest::newRow("cut off") << R"({"jsApiName":"closeWindow")";
    QTest::newRow("array") << R"(["closeWindow"])";
    QTest::newRow("unknown name") << R"({"jsApiName":"closeEverything"})";
    QTest::newRow("no name") << R"({"width":3})";
    QTest::newRow("name of the wrong type") << R"({"jsApiName":["closeWindow"]})";
    QTest::newRow("a slot of the toolkit") << R"({"jsApiName":"deleteLater"})";
    QTest::newRow("name with a signature") << R"js({"jsApiName":"closeWindow(Context)"})js";
    QTest::newRow("long name")
        << QStringLiteral(R"({"jsApiName":"%1"})").arg(QString(100000, QLatin1Char('x')));
    QTest::newRow("deep") << QString(5000, QLatin1Char('[')) + QString(5000, QLatin1Char(']'));
}

void TestOvJsApi::badCallsChangeNothing()
{
    QFETCH(QString, call);
    QSignalSpy closed(m_api, &OvJsApi::sigCloseWindow);
    QSignalSpy destroyed(m_api, &QObject::destroyed);
    const LogCapture log;
    m_api->callJsApi(call);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(closed.count(), 0);
    QCOMPARE(destroyed.count(), 0);
    QVERIFY(results().isEmpty());
}

void TestOvJsApi::callsAreLogged()
{
    const LogCapture log;
    const QString call = callText(QStringLiteral("minimizeWindow"));
    m_api->callJsApi(call);
    m_api->callJsApi(
        callText(QStringLiteral("moveWindow"), {{QStringLiteral("x"), 1}, {QStringLiteral("y"), 1}}));
    QCOMPARE(LogCapture::text().filter(QStringLiteral("called, params")),
        QStringList{QStringLiteral("minimizeWindow called, params ---> ") + call});
}

void TestOvJsApi::everyOtherCallIsLogged_data()
{
    QTest::addColumn<QString>("call");
    const QStringList names{"getAppInfo", "setWindowSize", "closeWindow", "maximizeWindow", "restoreWindow",
        "minimizeWindow", "setLanguage", "openInnerBrowser", "stopExecProcess", "writeLog", "noSuchOperation",
        ""};
    for (const QString &name : names)
        QTest::newRow(name.isEmpty() ? "no name" : qPrintable(name)) << callText(name);
    QTest::newRow("openUrl") << callText(
        QStringLiteral("openUrl"), {{QStringLiteral("url"), QStringLiteral("orvane-test:page")}});
    QTest::newRow("execProcess") << callText(
        QStringLiteral("execProcess"), {{QStringLiteral("command"), QStringLiteral("/nowhere/program")}});
}

void TestOvJsApi::everyOtherCallIsLogged()
{
    QFETCH(QString, call);
    QDesktopServices::setUrlHandler(QStringLiteral("orvane-test"), this, "browse");
    const auto reset = qScopeGuard([] { QDesktopServices::unsetUrlHandler(QStringLiteral("orvane-test")); });
    const LogCapture log;
    m_api->callJsApi(call);
    const QString name
        = QJsonDocument::fromJson(call.toUtf8()).object().value(QStringLiteral("jsApiName")).toString();
    QCOMPARE(LogCapture::text().filter(QStringLiteral("called, params")),
        QStringList{name + QStringLiteral(" called, params ---> ") + call});
    QCOMPARE(m_browsed.toString(),
        name == QLatin1String("openUrl") ? QStringLiteral("orvane-test:page") : QString());
}

void TestOvJsApi::callsAreLoggedAfterTheirOperation()
{
    const LogCapture log;
    connect(m_api, &OvJsApi::sigCloseWindow, this, [] { qDebug("the signal"); });
    const QStringList calls{callText(QStringLiteral("writeLog"), {{QStringLiteral("log"), 1}}),
        callText(QStringLiteral("getAppInfo")), callText(QStringLiteral("closeWindow"))};
    for (const QString &call : calls)
        m_api->callJsApi(call);
    QStringList begins;
    for (const LogMessage &message : LogCapture::messages()) {
        const QString begin
            = message.text.section(QLatin1Char('{'), 0, 0).section(QStringLiteral(" --->"), 0, 0);
        QVERIFY(message.type == QtInfoMsg || message.type == QtDebugMsg);
        begins << (message.type == QtInfoMsg ? "info: " : "debug: ") + begin;
    }
    QCOMPARE(begins,
        (QStringList{"info: webLog", "debug: writeLog called, params", "debug: publishResult:(",
            "debug: getAppInfo called, params", "debug: the signal", "debug: closeWindow called, params"}));
}

void TestOvJsApi::writeLogReachesTheLog()
{
    const LogCapture log;
    m_api->callJsApi(
        callText(QStringLiteral("writeLog"), {{QStringLiteral("log"), QStringLiteral("a \"b\" ü")}}));
    QVERIFY(LogCapture::text().contains(QStringLiteral("webLog ---> a \"b\" ü")));
}

void TestOvJsApi::resultTextIsAFunctionCall()
{
    const LogCapture log;
    m_api->callJsApi(
        callText(QStringLiteral("getAppInfo"), {{QStringLiteral("callback"), QStringLiteral("got")}}));
    QCOMPARE(LogCapture::text().filter(QStringLiteral("publishResult:")),
        QStringList{"publishResult:got({\n    \"appVersion\": \"1.2.5\"\n}\n)"});
}

void TestOvJsApi::noCallbackRunsNoFunction()
{
    const LogCapture log;
    m_api->callJsApi(callText(QStringLiteral("getAppInfo")));
    m_api->callJsApi(callText(QStringLiteral("getAppInfo"), {{QStringLiteral("callback"), 7}}));
    QVERIFY(results().isEmpty());
    // What runs is an object in parentheses.
    const QStringList published = LogCapture::text().filter(QStringLiteral("publishResult:"));
    QCOMPARE(published.size(), 2);
    QVERIFY2(published.at(0).startsWith(QStringLiteral("publishResult:({")), qPrintable(published.at(0)));
}

void TestOvJsApi::noWebViewPublishesNothing()
{
    const LogCapture log;
    OvJsApi api(nullptr);
    api.callJsApi(
        callText(QStringLiteral("getAppInfo"), {{QStringLiteral("callback"), QStringLiteral("got")}}));
    QVERIFY(LogCapture::text().filter(QStringLiteral("publishResult:")).isEmpty());
}

void TestOvJsApi::execProcessArguments()
{
    const QString program = script(QStringLiteral("arguments"), R"(printf '%s|' "$#" "$@")");
    m_api->callJsApi(callText(QStringLiteral("execProcess"),
        {{QStringLiteral("command"), program}, {QStringLiteral("params"), QStringLiteral(" one  two ")},
            {QStringLiteral("callback"), QStringLiteral("got")}}));
    waitForResults(1);
    const QJsonObject result = results().at(0).toObject();
    QCOMPARE(result.value(QStringLiteral("msg")).toString(), QStringLiteral("2|one|two|"));
    QCOMPARE(result.value(QStringLiteral("code")).toInt(-1), 0);
    // The call comes back with the result.
    QCOMPARE(result.value(QStringLiteral("jsApiName")).toString(), QStringLiteral("execProcess"));
    QCOMPARE(result.value(QStringLiteral("command")).toString(), program);
    QCOMPARE(result.value(QStringLiteral("params")).toString(), QStringLiteral(" one  two "));
}

void TestOvJsApi::execProcessExitCode()
{
    const QString program = script(QStringLiteral("three"), "echo said; echo not this >&2; exit 3");
    m_api->callJsApi(callText(QStringLiteral("execProcess"),
        {{QStringLiteral("command"), program}, {QStringLiteral("callback"), QStringLiteral("got")}}));
    waitForResults(1);
    QCOMPARE(results().at(0).toObject().value(QStringLiteral("code")).toInt(), 3);
    QCOMPARE(results().at(0).toObject().value(QStringLiteral("msg")).toString(), QStringLiteral("said\n"));
}

void TestOvJsApi::execProcessMissingProgram()
{
    m_api->callJsApi(callText(QStringLiteral("execProcess"),
        {{QStringLiteral("command"), m_dir.filePath(QStringLiteral("missing"))},
            {QStringLiteral("callback"), QStringLiteral("got")}}));
    waitForResults(1);
    QCOMPARE(results().at(0).toObject().value(QStringLiteral("code")).toInt(), 1);
    QCOMPARE(
        results().at(0).toObject().value(QStringLiteral("msg")).toString(), QStringLiteral("FailedToStart"));
    // A later call's result comes next: there was no second one for the missing program.
    m_api->callJsApi(
        callText(QStringLiteral("getAppInfo"), {{QStringLiteral("callback"), QStringLiteral("got")}}));
    waitForResults(2);
    QVERIFY(results().at(1).toObject().contains(QStringLiteral("appVersion")));
}

void TestOvJsApi::execProcessCrash()
{
    const QString program = script(QStringLiteral("crash"), "kill -SEGV $$");
    m_api->callJsApi(callText(QStringLiteral("execProcess"),
        {{QStringLiteral("command"), program}, {QStringLiteral("callback"), QStringLiteral("got")}}));
    waitForResults(2);
    QCOMPARE(results().at(0).toObject().value(QStringLiteral("code")).toInt(), 1);
    QCOMPARE(results().at(0).toObject().value(QStringLiteral("msg")).toString(), QStringLiteral("Crashed"));
    QCOMPARE(results().at(1).toObject().value(QStringLiteral("msg")).toString(), QString());
    QCOMPARE(results().at(1).toObject().value(QStringLiteral("code")).toInt(), SIGSEGV);
}

void TestOvJsApi::execProcessOutputIsInTheLocalCodePage_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QString>("text");
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QStringLiteral("\u00e9");
    QTest::newRow("Latin 1") << QByteArray("ISO-8859-1") << QStringLiteral("\u00c3\u00a9");
}

void TestOvJsApi::execProcessOutputIsInTheLocalCodePage()
{
    QFETCH(QByteArray, codePage);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(codePage));
    const auto reset = qScopeGuard([] { QTextCodec::setCodecForLocale(nullptr); });
    exec(script(QStringLiteral("accent"), R"(printf '\303\251')"));
    waitForResults(1);
    QTEST(results().at(0).toObject().value(QStringLiteral("msg")).toString(), "text");
}

void TestOvJsApi::finishedProcessIsDeleted()
{
    exec(script(QStringLiteral("short"), "exit 0"));
    const QList<QProcess *> processes = m_api->findChildren<QProcess *>();
    QCOMPARE(processes.size(), 1);
    const QPointer<QProcess> process = processes.constFirst();
    waitForResults(1);
    QTRY_VERIFY(process.isNull());
}

// It never finishes; it goes with the page.
void TestOvJsApi::processThatFailedToStartIsKept()
{
    exec(m_dir.filePath(QStringLiteral("missing")));
    waitForResults(1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QList<QProcess *> processes = m_api->findChildren<QProcess *>();
    QCOMPARE(processes.size(), 1);
    const QPointer<QProcess> process = processes.constFirst();
    m_view.reset();
    QVERIFY(process.isNull());
}

void TestOvJsApi::stopExecProcess()
{
    const QString program = script(QStringLiteral("endless"), "exec sleep 600");
    for (int i = 0; i < 2; ++i) {
        m_api->callJsApi(callText(QStringLiteral("execProcess"),
            {{QStringLiteral("command"), program}, {QStringLiteral("callback"), QStringLiteral("got")}}));
    }
    m_api->callJsApi(callText(QStringLiteral("stopExecProcess")));
    // Each is killed: an error result and a finished one.
    waitForResults(4);
}

void TestOvJsApi::resultKeepsPercentSigns()
{
    const QString program = script(QStringLiteral("percent"), "printf '%%1 %%2'");
    m_api->callJsApi(callText(QStringLiteral("execProcess"),
        {{QStringLiteral("command"), program}, {QStringLiteral("callback"), QStringLiteral("got")}}));
    waitForResults(1);
    QCOMPARE(results().at(0).toObject().value(QStringLiteral("msg")).toString(), QStringLiteral("%1 %2"));
}

QTEST_MAIN(TestOvJsApi)
#include "tst_ovjsapi.moc"
