#pragma once

#include "api/KeyMapStore.h"

#include <vector>

namespace orvane::cloud {

// The key-map schemes that the demo account begins with: the game Arena with the screen upright and with the
// screen on its side.
std::vector<KeyMapScheme> demoSchemes();

} // namespace orvane::cloud
