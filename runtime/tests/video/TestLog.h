#pragma once

#include "Log.h"

#include <string>
#include <vector>

// The runtime's log in tests of the video half: lines are kept in memory. Any thread.
namespace testlog {

void clear();
// The lines of Error and Info level since clear.
std::vector<std::string> lines();
// How many of them hold this text.
int count(const std::string &text);

} // namespace testlog
