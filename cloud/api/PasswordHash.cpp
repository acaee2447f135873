#include "api/PasswordHash.h"

#include "api/RandomToken.h"

#include <openssl/evp.h>

#include <charconv>
#include <stdexcept>
#include <vector>

namespace orvane::cloud {

namespace {

constexpr std::string_view scheme = "pbkdf2-sha256";
constexpr int hashIterations = 210'000;
constexpr int maxIterations = 10'000'000; // a damaged hash must not compute for ever
constexpr std::size_t saltBytes = 16;
constexpr std::size_t keyBytes = 32;

// The salt goes in as its hex text.
std::string derivedKey(std::string_view password, std::string_view salt, int iterations)
{
    std::string key(keyBytes, '\0');
    if (PKCS5_PBKDF2_HMAC(password.data(), static_cast<int>(password.size()),
            reinterpret_cast<const unsigned char *>(salt.data()), static_cast<int>(salt.size()), iterations,
            EVP_sha256(), static_cast<int>(key.size()), reinterpret_cast<unsigned char *>(key.data()))
        != 1)
        throw std::runtime_error("deriving a password's key failed");
    return toHex(key);
}

std::string hashText(const std::string &salt, const std::string &key)
{
    return std::string(scheme) + '$' + std::to_string(hashIterations) + '$' + salt + '$' + key;
}

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

} // namespace

std::string hashPassword(std::string_view password)
{
    const std::string salt = randomToken(saltBytes);
    return hashText(salt, derivedKey(password, salt, hashIterations));
}

std::string decoyHash()
{
    return hashText(std::string(saltBytes * 2, '0'), std::string(keyBytes * 2, '0'));
}

bool passwordMatches(std::string_view password, std::string_view hash)
{
    const std::vector<std::string_view> parts = split(hash, '$');
    if (parts.size() != 4 || parts[0] != scheme)
        return false;
    int iterations = 0;
    const char *end = parts[1].data() + parts[1].size();
    const auto [rest, error] = std::from_chars(parts[1].data(), end, iterations);
    if (error != std::errc() || rest != end || iterations < 1 || iterations > maxIterations)
        return false;
    return equalSecrets(derivedKey(password, parts[2], iterations), parts[3]);
}

} // namespace orvane::cloud
