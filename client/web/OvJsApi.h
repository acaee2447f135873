#pragma once

#include "web/Context.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QProcess;
class QWebEngineView;

// What the embedded page can ask of the client. Published on the page's web channel; the page calls the one
// slot callJsApi with a JSON text that names an operation, and the result comes back by running a function of
// the page. Subclasses add operations by declaring further Q_INVOKABLE methods that take a Context.
//
// Lives on the GUI thread as a child of the web view that it serves. Unknown operations and malformed calls
// change nothing; missing integers read as 0 and missing texts as empty.
class OvJsApi : public QObject
{
    Q_OBJECT

public:
    // `webView`: where results are run, and the parent. May be none: then results go nowhere.
    explicit OvJsApi(QWebEngineView *webView);
    ~OvJsApi() override;

    // Reports the version text: {"appVersion": "1.2.5"}.
    Q_INVOKABLE void getAppInfo(const Context &context);
    // "width", "height": pixels.
    Q_INVOKABLE void setWindowSize(const Context &context);
    // "x", "y": offset in pixels. Called continuously while the page is dragged.
    Q_INVOKABLE void moveWindow(const Context &context);
    Q_INVOKABLE void closeWindow(const Context &context);
    Q_INVOKABLE void maximizeWindow(const Context &context);
    Q_INVOKABLE void restoreWindow(const Context &context);
    Q_INVOKABLE void minimizeWindow(const Context &context);
    // "lang": short language code.
    Q_INVOKABLE void setLanguage(const Context &context);
    // "url": opened in the system's browser.
    Q_INVOKABLE void openUrl(const Context &context);
    // Reserved for a browser inside the client.
    Q_INVOKABLE void openInnerBrowser(const Context &context);
    // "command": a program; "params": its arguments, separated by blanks. The result is the call with "code"
    // and "msg" added: the exit code and the program's output, or 1 and the name of the error.
    Q_INVOKABLE void execProcess(const Context &context);
    // Kills what execProcess started and is still running.
    Q_INVOKABLE void stopExecProcess(const Context &context);
    // "log": written to the client's log.
    Q_INVOKABLE void writeLog(const Context &context);

public slots:
    // One call of the page, as JSON text.
    void callJsApi(const QString &callParams);

signals:
    void sigSetWindowSize(int width, int height);
    void sigMoveWindow(int x, int y);
    void sigCloseWindow();
    void sigMinimizeWindow();
    void sigMaximizeWindow();
    void sigRestoreWindow();
    void sigSetLanguage(const QString &lang);

protected:
    // Runs "callbackName(resultText)" in the page. Does not wait.
    void publishResult(const QString &callbackName, const QString &resultText);
    void publishResult(const QString &callbackName, const QJsonObject &result);
    QWebEngineView *webView() const;

private:
    void onProcessFinished(QProcess *process, const QJsonObject &call, int exitCode, bool normalExit);
    void onProcessError(QProcess *process, const QJsonObject &call, int error);

    QPointer<QWebEngineView> m_webView;
    QList<QProcess *> m_processes; // started and not finished; children of this object
};
