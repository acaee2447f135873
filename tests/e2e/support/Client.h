#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace e2e {

// The real client in a process of its own, with a home directory of its own that lasts over restarts.
class Client
{
public:
    // `program`: path of orvane; `apiBaseUrl`: the service it talks to.
    Client(const QString &program, const QString &apiBaseUrl);
    ~Client();

    void start();
    // Asks it to end as a window manager does and waits. Throws StepFailed when it does not.
    void waitForExit(int timeoutMs = 10000);
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
    QProcess m_process;
    QByteArray m_output;
};

} // namespace e2e
