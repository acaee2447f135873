#pragma once

#include <string>

namespace swplay {

enum class LogLevel {
    Error, // something failed that a user or a developer should know of
    Info, // rare events of a normal run, such as a new picture size
    Debug, // detail, may be frequent
};

// Adds one line to the runtime's log: UTF-8, without a line end. Lines above the level given to
// SWRuntime::init, and all lines while there is no log, are dropped. Any thread; never throws.
void log(LogLevel level, const std::string &text);

} // namespace swplay
