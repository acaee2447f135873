#pragma once

#include <string>
#include <string_view>

namespace orvane::cloud {

// Salted password hashes, PBKDF2 with HMAC-SHA-256 (RFC 8018), as the text
// "pbkdf2-sha256$<iterations>$<salt>$<key>" with salt and key in hex. Any thread; each call computes for tens
// of milliseconds on purpose.

// Hash of a password with a new random salt. Throws std::runtime_error when the crypto library fails.
std::string hashPassword(std::string_view password);

// A hash that no known password belongs to; checking against it takes as long as against any other.
std::string decoyHash();

// Whether a password belongs to a hash; false for a text that is no such hash.
bool passwordMatches(std::string_view password, std::string_view hash);

} // namespace orvane::cloud
