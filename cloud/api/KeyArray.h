#pragma once

#include <string>

namespace orvane::cloud {

// The key array of a scheme, as clients send it: JSON text of an array with one object per key. `key` is the
// text of the keyboard key or true for the walking key, `x` and `y` are where it stands, in pixels of the
// client's picture; `remark` (text), `edit` (boolean), `isLockKey` (boolean) and `mouseDpi` (number) may be
// there. Other members are the client's own business.
//
// Throws ApiError with BadField and a text for the user when it is none or is too large. Any thread.
void checkKeyArray(const std::string &json);

} // namespace orvane::cloud
