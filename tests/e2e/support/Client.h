#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace e2e {

// The real client in a process of its own, with a home directory of its own that lasts over restarts.
class Client
{
public:
    // `program`: path of orvane.
    explicit Client(const QString &program);
    ~Client();

    // The service it talks to; before start.
    void setApiBaseUrl(const QString &apiBaseUrl);
    // A variable of its environment; before start.
    void setVariable(const QString &name, const QString &value);
    void start();
    // Throws StepFailed when it does not end by itself.
    void waitForExit(int timeoutMs = 30000);
    void kill();
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    int exitCode() const { return m_process.exitCode(); }
    qint64 pid() const { return m_process.processId(); }

    // Everything in the client's log of today.
    QString log() const;
    QString dataDir() const; // the application data directory
    QString output() const { return QString::fromUtf8(m_output); }

private:
    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QProcess m_process;
    QByteArray m_output;
};

} // namespace e2e
