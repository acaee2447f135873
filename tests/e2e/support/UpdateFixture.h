#pragma once

#include "Service.h"
#include "Waiting.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QMutex>
#include <QRandomGenerator>
#include <QStringList>
#include <QTemporaryDir>

// What the tests of updates share: a release that the service publishes, what the client has of it, and its
// log.
namespace e2e {

// Bytes that cannot be mistaken for others.
inline QByteArray randomBytes(int count, quint32 seed)
{
    QByteArray bytes(count, Qt::Uninitialized);
    QRandomGenerator generator(seed);
    for (char &byte : bytes)
        byte = static_cast<char>(generator.bounded(256));
    return bytes;
}

inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(bytes) != bytes.size())
        throw StepFailed(QStringLiteral("%1 could not be written").arg(path));
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A folder with the files of a release.
class ReleaseFiles
{
public:
    // Puts a file into the folder.
    void add(const QString &name, const QByteArray &bytes) { writeFile(m_dir.filePath(name), bytes); }
    void remove(const QString &name) { QFile::remove(m_dir.filePath(name)); }
    // Has the service offer the folder.
    void publish(const Service &service, const QString &version = QStringLiteral("1.3.0")) const
    {
        service.admin(QStringLiteral("POST"), QStringLiteral("/admin/release"),
            {{QStringLiteral("version"), version}, {QStringLiteral("version_code"), 1200},
                {QStringLiteral("folder"), m_dir.path()}});
    }
    static void setFaults(const Service &service, const QJsonObject &faults)
    {
        service.admin(QStringLiteral("POST"), QStringLiteral("/admin/release/faults"), faults);
    }
    // How often a file was asked for since it was published.
    static int requests(const Service &service, const QString &name)
    {
        return service.admin(QStringLiteral("GET"), QStringLiteral("/admin/release/requests"))
            .value(QLatin1String("requests"))
            .toObject()
            .value(name)
            .toInt();
    }
    // What the service tells a client that asks for updates, as the page hands it on. `identity`: of a
    // sign-in.
    static QJsonObject updateInfo(const Service &service, const QJsonObject &identity)
    {
        return service
            .call(QStringLiteral("GET"), QStringLiteral("/apiv1/client/update"), {},
                {{QStringLiteral("access-token"), identity.value(QLatin1String("access_token"))},
                    {QStringLiteral("login-id"), identity.value(QLatin1String("login_id"))},
                    {QStringLiteral("pc-version"), QStringLiteral("1130")}})
            .value(QLatin1String("data"))
            .toObject()
            .value(QLatin1String("pc_update_info"))
            .toObject();
    }

private:
    QTemporaryDir m_dir;
};

// Collects everything that is logged while it lives; one at a time.
class LogCapture
{
public:
    LogCapture()
    {
        lines().clear();
        m_previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            const QMutexLocker lock(&mutex());
            lines() << text;
        });
    }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    static QStringList text()
    {
        const QMutexLocker lock(&mutex());
        return lines();
    }
    static bool hasLine(const QString &line) { return text().contains(line); }
    static bool hasLineFrom(const QString &begin)
    {
        for (const QString &line : text()) {
            if (line.startsWith(begin))
                return true;
        }
        return false;
    }

private:
    static QStringList &lines()
    {
        static QStringList all;
        return all;
    }
    static QMutex &mutex()
    {
        static QMutex lock;
        return lock;
    }

    QtMessageHandler m_previous;
};

} // namespace e2e
