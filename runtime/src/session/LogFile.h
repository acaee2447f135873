#pragma once

#include "Log.h"

#include <chrono>
#include <fstream>
#include <functional>
#include <mutex>
#include <string>

namespace swplay {

// The runtime's log: one file per local day, "swplay-yyyy-MM-dd.log", files older than KeptDays removed.
// Every line is written at once, so that it survives a crash. Owned by the process (instance) or a test.
//
// Any thread may call any method.
class LogFile
{
public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    static constexpr int KeptDays = 7; // today included

    // The process's log, which swplay::log writes to; never destroyed.
    static LogFile &instance();

    explicit LogFile(Clock clock = std::chrono::system_clock::now);
    LogFile(const LogFile &) = delete;
    LogFile &operator=(const LogFile &) = delete;

    // Starts the log. `level`: 0 none, 1 errors and information, 2 debug as well. `directory`: UTF-8 path of
    // an existing directory. Returns whether lines can be written there; false leaves the log closed.
    bool open(int level, const std::string &directory);
    // Ends the log; later lines are dropped.
    void close();

    // Adds one line. Line ends within `text` become spaces: text from the network cannot forge lines.
    void write(LogLevel level, const std::string &text);

private:
    // With m_mutex held.
    bool openFileOf(const std::string &day);
    void removeOldFiles(std::chrono::system_clock::time_point now) const;

    const Clock m_clock;
    std::mutex m_mutex;
    int m_level = 0; // m_mutex
    std::string m_directory; // m_mutex
    std::string m_day; // m_mutex; yyyy-MM-dd of the open file
    std::ofstream m_file; // m_mutex
};

} // namespace swplay
