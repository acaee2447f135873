#include "TestLog.h"

#include <algorithm>
#include <mutex>

namespace {

std::mutex s_mutex;
std::vector<std::string> s_lines; // s_mutex

} // namespace

void swplay::log(LogLevel level, const std::string &text)
{
    if (level == LogLevel::Debug)
        return;
    const std::lock_guard lock(s_mutex);
    s_lines.push_back(text);
}

void testlog::clear()
{
    const std::lock_guard lock(s_mutex);
    s_lines.clear();
}

std::vector<std::string> testlog::lines()
{
    const std::lock_guard lock(s_mutex);
    return s_lines;
}

int testlog::count(const std::string &text)
{
    const std::vector<std::string> all = lines();
    return static_cast<int>(std::count_if(
        all.begin(), all.end(), [&](const std::string &line) { return line.find(text) != line.npos; }));
}
