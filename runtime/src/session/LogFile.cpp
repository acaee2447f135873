#include "session/LogFile.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace swplay {

namespace {

constexpr const char *FilePrefix = "swplay-";
constexpr const char *FileSuffix = ".log";

std::tm localTime(std::chrono::system_clock::time_point time)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
#ifdef _WIN32
    localtime_s(&parts, &seconds);
#else
    localtime_r(&seconds, &parts);
#endif
    return parts;
}

std::string formatted(const std::tm &time, const char *format)
{
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), format, &time);
    return std::string(text.data(), length);
}

std::string dayOf(std::chrono::system_clock::time_point time)
{
    return formatted(localTime(time), "%Y-%m-%d");
}

// Whether `name` is a log file's name; its day goes to `day`.
bool isLogFileName(const std::string &name, std::string &day)
{
    const std::string prefix = FilePrefix;
    const std::string suffix = FileSuffix;
    if (name.size() != prefix.size() + 10 + suffix.size() || name.compare(0, prefix.size(), prefix) != 0
        || name.compare(name.size() - suffix.size(), suffix.size(), suffix) != 0)
        return false;
    day = name.substr(prefix.size(), 10);
    return std::all_of(day.begin(), day.end(), [](char c) { return (c >= '0' && c <= '9') || c == '-'; });
}

char letterOf(LogLevel level)
{
    switch (level) {
    case LogLevel::Error:
        return 'E';
    case LogLevel::Info:
        return 'I';
    case LogLevel::Debug:
        break;
    }
    return 'D';
}

} // namespace

LogFile &LogFile::instance()
{
    static LogFile *const log = new LogFile;
    return *log;
}

LogFile::LogFile(Clock clock)
    : m_clock(std::move(clock))
{ }

bool LogFile::open(int level, const std::string &directory)
{
    const std::lock_guard lock(m_mutex);
    m_file.close();
    m_day.clear();
    m_level = 0;
    if (level <= 0 || directory.empty())
        return false;
    m_directory = directory;
    const auto now = m_clock();
    if (!openFileOf(dayOf(now))) {
        // The log itself cannot say so; the program's console can.
        std::fprintf(stderr, "swplay: cannot write a log file in %s\n", directory.c_str());
        return false;
    }
    removeOldFiles(now);
    m_level = level;
    return true;
}

void LogFile::close()
{
    const std::lock_guard lock(m_mutex);
    m_file.close();
    m_level = 0;
}

void LogFile::write(LogLevel level, const std::string &text)
{
    const std::lock_guard lock(m_mutex);
    if (m_level == 0 || (level == LogLevel::Debug && m_level < 2))
        return;
    const auto now = m_clock();
    const std::tm time = localTime(now);
    const std::string day = formatted(time, "%Y-%m-%d");
    // A full disk may have room again: a file in trouble is opened anew.
    if (day != m_day || !m_file.good()) {
        const bool newDay = day != m_day;
        if (!openFileOf(day))
            return;
        if (newDay)
            removeOldFiles(now);
    }
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch());
    std::array<char, 8> milliseconds{};
    std::snprintf(
        milliseconds.data(), milliseconds.size(), ".%03d", static_cast<int>(sinceEpoch.count() % 1000));
    std::string line
        = formatted(time, "%Y-%m-%d %H:%M:%S") + milliseconds.data() + ' ' + letterOf(level) + ' ' + text;
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
    line += '\n';
    m_file.write(line.data(), static_cast<std::streamsize>(line.size()));
    m_file.flush();
}

bool LogFile::openFileOf(const std::string &day)
{
    m_file.close();
    m_file.clear();
    m_file.open(fs::u8path(m_directory) / fs::u8path(FilePrefix + day + FileSuffix),
        std::ios::out | std::ios::app | std::ios::binary);
    m_day = m_file.is_open() ? day : std::string();
    return m_file.is_open();
}

void LogFile::removeOldFiles(std::chrono::system_clock::time_point now) const
{
    // Names compare like dates.
    const std::string oldestKept = dayOf(now - std::chrono::hours(24) * (KeptDays - 1));
    std::error_code error;
    std::string day;
    for (fs::directory_iterator file(fs::u8path(m_directory), error), end; !error && file != end;
         file.increment(error)) {
        if (!isLogFileName(file->path().filename().u8string(), day) || day >= oldestKept)
            continue;
        std::error_code removeError; // a file that another program holds open stays for the next time
        fs::remove(file->path(), removeError);
    }
}

} // namespace swplay
