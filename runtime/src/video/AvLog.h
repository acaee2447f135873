#pragma once

#include <string>

namespace swplay {

// Sends libav's own warnings and errors to the runtime's log (at debug level, since the runtime reports what
// follows from them) instead of standard error. For the whole process, once. Any thread.
void redirectAvLog();

// libav's text for one of its error numbers.
std::string avErrorText(int error);

} // namespace swplay
