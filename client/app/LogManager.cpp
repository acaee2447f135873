#include "app/LogManager.h"

#include "base/AppPaths.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <atomic>
#include <cstdlib>
#include <utility>

namespace {

constexpr qint64 daysKept = 7;

// The log that messageHandler writes to; set before the handler is installed.
std::atomic<LogManager *> s_installed{nullptr};

QLatin1String tagOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QLatin1String(" [DEBUG]: ");
    case QtInfoMsg:
        return QLatin1String(" [INFO]: ");
    case QtWarningMsg:
        return QLatin1String(" [WARNING]: ");
    case QtCriticalMsg:
        return QLatin1String(" [CRITICAL]: ");
    case QtFatalMsg:
        return QLatin1String(" [FATAL]: ");
    }
    return {};
}

} // namespace

LogManager *LogManager::instance()
{
    static LogManager *const manager = [] {
        auto *created = new LogManager(AppPaths::logDir(), &QDateTime::currentDateTime);
        s_installed.store(created);
        qInstallMessageHandler(&LogManager::messageHandler);
        return created;
    }();
    return manager;
}

LogManager::LogManager(const QString &logDir, Clock clock)
    : m_clock(std::move(clock))
{
    const QDateTime now = m_clock();
    removeOldFiles(logDir, now);
    m_file.setFileName(logDir + now.toString(QStringLiteral("/yyyy-MM-dd")) + QStringLiteral(".log"));
    // A file that cannot be opened makes the messages disappear: there is no better place to tell.
    m_file.open(QIODevice::Append | QIODevice::Text);
}

void LogManager::removeOldFiles(const QString &logDir, const QDateTime &now)
{
    const QDir dir(logDir);
    if (!dir.exists())
        return;
    const auto files = dir.entryInfoList({QStringLiteral("*.log")}, QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files) {
        if (file.lastModified().daysTo(now) > daysKept && !QFile::remove(file.filePath()))
            qWarning().noquote() << "an old log file could not be removed:" << file.filePath();
    }
}

void LogManager::messageHandler(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    s_installed.load()->write(type, text);
}

void LogManager::write(QtMsgType type, const QString &text)
{
    const QLatin1String tag = tagOf(type);
    if (tag.isEmpty())
        return;
    // A message about what happened inside this function, as the crash handler writes it, would wait for
    // itself.
    static thread_local bool writing = false;
    if (writing)
        return;
    const QScopedValueRollback<bool> mark(writing, true);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_file.isOpen()) {
        const QString time = m_clock().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
        m_file.write((time + tag + text + QLatin1Char('\n')).toUtf8());
    }
    if (type == QtFatalMsg)
        std::abort();
    m_file.flush();
}
