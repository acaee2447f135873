#include "Client.h"

#include "Waiting.h"

#include <QDir>
#include <QFile>

namespace e2e {

Client::Client(const QString &program)
    : m_environment(QProcessEnvironment::systemEnvironment())
{
    m_environment.insert(QStringLiteral("HOME"), m_home.path());
    m_environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.filePath(QStringLiteral("data")));
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.filePath(QStringLiteral("config")));
    m_environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_home.filePath(QStringLiteral("cache")));
    m_process.setProgram(program);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process,
        [this] { m_output += m_process.readAllStandardOutput(); });
}

Client::~Client()
{
    m_process.disconnect();
    kill();
}

void Client::setApiBaseUrl(const QString &apiBaseUrl)
{
    m_environment.insert(QStringLiteral("ORVANE_API_BASE_URL"), apiBaseUrl);
}

void Client::setVariable(const QString &name, const QString &value)
{
    m_environment.insert(name, value);
}

void Client::start()
{
    m_process.setProcessEnvironment(m_environment);
    m_process.start();
    if (!m_process.waitForStarted(10000))
        throw StepFailed(QStringLiteral("%1 did not start").arg(m_process.program()));
}

void Client::waitForExit(int timeoutMs)
{
    waitUntil(
        QStringLiteral("the client ends"), [this] { return !isRunning(); }, timeoutMs);
}

void Client::kill()
{
    m_process.kill();
    m_process.waitForFinished(5000);
}

QString Client::dataDir() const
{
    return m_home.filePath(QStringLiteral("data/orvane"));
}

QString Client::log() const
{
    QString text;
    const QDir dir(dataDir() + QStringLiteral("/log"));
    for (const QString &name : dir.entryList({QStringLiteral("[0-9]*.log")}, QDir::Files, QDir::Name)) {
        QFile file(dir.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            text += QString::fromUtf8(file.readAll());
    }
    return text;
}

} // namespace e2e
