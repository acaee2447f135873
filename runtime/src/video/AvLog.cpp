#include "video/AvLog.h"

#include "Log.h"

extern "C" {
#include <libavutil/error.h>
#include <libavutil/log.h>
}

#include <array>
#include <cstdarg>
#include <mutex>

namespace swplay {

namespace {

void writeAvLine(void *context, int level, const char *format, va_list arguments)
{
    if (level > AV_LOG_WARNING)
        return;
    std::array<char, 512> line{};
    int printPrefix = 1;
    av_log_format_line2(
        context, level, format, arguments, line.data(), static_cast<int>(line.size()), &printPrefix);
    std::string text(line.data());
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    log(LogLevel::Debug, "libav: " + text);
}

} // namespace

void redirectAvLog()
{
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_callback(&writeAvLine); });
}

std::string avErrorText(int error)
{
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(error, text.data(), text.size());
    return text.data();
}

} // namespace swplay
