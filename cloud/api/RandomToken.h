#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane::cloud {

// `bytes` random bytes from the system's cryptographic generator, as lower-case hex digits. Any thread.
// Throws std::runtime_error when the generator fails.
std::string randomToken(std::size_t bytes);

// `length` random characters from the same generator, for people to read and type: capital letters and
// digits without those that look alike (0 and O, 1 and I). Any thread. Throws as above.
std::string randomCode(std::size_t length);

// Lower-case hex digits of bytes. Any thread.
std::string toHex(std::string_view bytes);

// Compares secrets in a time that depends on their length only. Any thread.
bool equalSecrets(std::string_view one, std::string_view other);

} // namespace orvane::cloud
