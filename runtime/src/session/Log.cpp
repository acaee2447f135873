#include "Log.h"

#include "session/LogFile.h"

#include <exception>

namespace swplay {

void log(LogLevel level, const std::string &text)
{
    try {
        LogFile::instance().write(level, text);
    } catch (const std::exception &) {
        // Out of memory while formatting a line: the line is lost, the stream goes on.
    }
}

} // namespace swplay
