#include "api/RandomToken.h"

#include <openssl/crypto.h>
#include <openssl/rand.h>

#include <stdexcept>

namespace orvane::cloud {

namespace {

std::string randomBytes(std::size_t count)
{
    std::string random(count, '\0');
    if (RAND_bytes(reinterpret_cast<unsigned char *>(random.data()), static_cast<int>(count)) != 1)
        throw std::runtime_error("the system's random generator failed");
    return random;
}

} // namespace

std::string randomToken(std::size_t bytes)
{
    return toHex(randomBytes(bytes));
}

std::string randomCode(std::size_t length)
{
    constexpr std::string_view characters = "23456789ABCDEFGHJKLMNPQRSTUVWXYZ";
    static_assert(256 % characters.size() == 0, "every character is as likely as any other");
    std::string code = randomBytes(length);
    for (char &character : code)
        character = characters[static_cast<unsigned char>(character) % characters.size()];
    return code;
}

std::string toHex(std::string_view bytes)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string hex;
    hex.reserve(bytes.size() * 2);
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        hex += digits[value >> 4];
        hex += digits[value & 15];
    }
    return hex;
}

bool equalSecrets(std::string_view one, std::string_view other)
{
    return one.size() == other.size() && CRYPTO_memcmp(one.data(), other.data(), one.size()) == 0;
}

} // namespace orvane::cloud
