#pragma once

#include <string_view>

namespace swplay {

// Whether the first coded slice of an access unit (H.264 Annex B byte stream, ITU-T H.264 section 7.3.1 and
// annex B) belongs to an IDR picture, the only kind that decoding can begin with. False for anything that is
// not such a stream. Looks at the parameter sets before the slice only. Any thread.
bool startsWithIdr(std::string_view accessUnit);

} // namespace swplay
