#include "web/OvJsApi.h"

#include <QDebug>
#include <QDesktopServices>
#include <QJsonDocument>
#include <QProcess>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace {

// Texts and values that the page relies on.
namespace Contract {
const QLatin1String appVersion("1.2.5");
const QLatin1String unloggedCall("moveWindow"); // would flood the log while the page is dragged
constexpr int errorCode = 1; // "code" of a process that could not run to its end
} // namespace Contract

QString errorName(QProcess::ProcessError error)
{
    switch (error) {
    case QProcess::FailedToStart:
        return QStringLiteral("FailedToStart");
    case QProcess::Crashed:
        return QStringLiteral("Crashed");
    case QProcess::Timedout:
        return QStringLiteral("Timedout");
    case QProcess::ReadError:
        return QStringLiteral("ReadError");
    case QProcess::WriteError:
        return QStringLiteral("WriteError");
    case QProcess::UnknownError:
        break;
    }
    return QStringLiteral("UnknownError");
}

} // namespace

OvJsApi::OvJsApi(QWebEngineView *webView)
    : QObject(webView)
    , m_webView(webView)
{
    qRegisterMetaType<Context>("Context");
}

OvJsApi::~OvJsApi() = default;

QWebEngineView *OvJsApi::webView() const
{
    return m_webView;
}

void OvJsApi::callJsApi(const QString &callParams)
{
    const QJsonObject call = QJsonDocument::fromJson(callParams.toUtf8()).object();
    const QString name = call.value(QLatin1String("jsApiName")).toString();
    const Context context(call);
    QMetaObject::invokeMethod(this, name.toUtf8().constData(), Q_ARG(Context, context));
    if (name != Contract::unloggedCall)
        qDebug().noquote().nospace() << name << " called, params ---> " << callParams;
}

void OvJsApi::publishResult(const QString &callbackName, const QString &resultText)
{
    if (!m_webView)
        return;
    const QString script = QStringLiteral("%1(%2)").arg(callbackName, resultText);
    qDebug().noquote().nospace() << "publishResult:" << script;
    m_webView->page()->runJavaScript(script);
}

void OvJsApi::publishResult(const QString &callbackName, const QJsonObject &result)
{
    publishResult(callbackName, QString::fromUtf8(QJsonDocument(result).toJson()));
}

void OvJsApi::getAppInfo(const Context &context)
{
    publishResult(context.callback(), QJsonObject{{QStringLiteral("appVersion"), Contract::appVersion}});
}

void OvJsApi::setWindowSize(const Context &context)
{
    emit sigSetWindowSize(
        context.intValue(QStringLiteral("width")), context.intValue(QStringLiteral("height")));
}

void OvJsApi::moveWindow(const Context &context)
{
    emit sigMoveWindow(context.intValue(QStringLiteral("x")), context.intValue(QStringLiteral("y")));
}

void OvJsApi::closeWindow(const Context &)
{
    emit sigCloseWindow();
}

void OvJsApi::maximizeWindow(const Context &)
{
    emit sigMaximizeWindow();
}

void OvJsApi::restoreWindow(const Context &)
{
    emit sigRestoreWindow();
}

void OvJsApi::minimizeWindow(const Context &)
{
    emit sigMinimizeWindow();
}

void OvJsApi::setLanguage(const Context &context)
{
    emit sigSetLanguage(context.stringValue(QStringLiteral("lang")));
}

void OvJsApi::openUrl(const Context &context)
{
    const QString url = context.stringValue(QStringLiteral("url"));
    if (!QDesktopServices::openUrl(QUrl(url)))
        qWarning().noquote() << "openUrl: no program opens" << url;
}

void OvJsApi::openInnerBrowser(const Context &)
{ }

void OvJsApi::writeLog(const Context &context)
{
    qInfo().noquote().nospace() << "webLog ---> " << context.stringValue(QStringLiteral("log"));
}

void OvJsApi::execProcess(const Context &context)
{
    const QString command = context.stringValue(QStringLiteral("command"));
    const QStringList arguments
        = context.stringValue(QStringLiteral("params")).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QJsonObject call = context.object();

    auto *process = new QProcess(this);
    m_processes.append(process);
    connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
        [this, process, call](int exitCode, QProcess::ExitStatus status) {
            onProcessFinished(process, call, exitCode, status == QProcess::NormalExit);
        });
    connect(process, &QProcess::errorOccurred, this,
        [this, process, call](QProcess::ProcessError error) { onProcessError(process, call, error); });
    process->start(command, arguments, QIODevice::ReadWrite);
}

void OvJsApi::onProcessFinished(QProcess *process, const QJsonObject &call, int exitCode, bool normalExit)
{
    QJsonObject result = call;
    result.insert(QStringLiteral("code"), normalExit && exitCode == 0 ? 0 : exitCode);
    result.insert(QStringLiteral("msg"), QString::fromLocal8Bit(process->readAllStandardOutput()));
    publishResult(Context(call).callback(), result);
    m_processes.removeAll(process);
    process->deleteLater();
}

// A process that failed to start never finishes; it stays a child of this object until the page is gone. One
// that crashed finishes next, with a second result.
void OvJsApi::onProcessError(QProcess *process, const QJsonObject &call, int error)
{
    QJsonObject result = call;
    result.insert(QStringLiteral("code"), Contract::errorCode);
    result.insert(QStringLiteral("msg"), errorName(static_cast<QProcess::ProcessError>(error)));
    publishResult(Context(call).callback(), result);
    m_processes.removeAll(process);
}

void OvJsApi::stopExecProcess(const Context &)
{
    // Over a copy: a kill may report its result, and shorten the list, at once.
    const QList<QProcess *> processes = m_processes;
    for (QProcess *process : processes) {
        if (process->state() != QProcess::NotRunning)
            process->kill();
    }
}
