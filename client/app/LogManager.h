#pragma once

#include <QDateTime>
#include <QFile>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <mutex>

// Sends everything that goes through the toolkit's message functions into one text file per start, named
// after the day of the start, and removes log files older than a week. A run that crosses midnight stays with
// its file; a second start on the same day appends to it.
//
// The process has one, made by instance() and kept to its end. Messages may come from any thread.
class LogManager
{
public:
    // The local time.
    using Clock = std::function<QDateTime()>;

    // The one of the process; the first call installs it as the toolkit's message handler, after which
    // nothing goes to the toolkit's default sink any more. Log files stand in AppPaths::logDir(). Any thread.
    static LogManager *instance();

    // A log of its own: removes old files from a directory (which must exist for that, and for the log to
    // work) and opens the day's file there for appending. It is not installed anywhere.
    LogManager(const QString &logDir, Clock clock);
    LogManager(const LogManager &) = delete;
    LogManager &operator=(const LogManager &) = delete;

    // Writes one line, "yyyy-MM-dd hh:mm:ss.zzz [DEBUG]: text" in UTF-8, in one piece; nothing if the file
    // could not be opened. An unknown type writes nothing. QtFatalMsg aborts the process at once, so that its
    // line need not reach the file. Any thread.
    void write(QtMsgType type, const QString &text);

    QString filePath() const { return m_file.fileName(); }

private:
    static void messageHandler(QtMsgType type, const QMessageLogContext &context, const QString &text);
    static void removeOldFiles(const QString &logDir, const QDateTime &now);

    const Clock m_clock;
    std::mutex m_mutex;
    QFile m_file; // under m_mutex once constructed; its name never changes
};
