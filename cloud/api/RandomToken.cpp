#include "api/RandomToken.h"

#include <openssl/crypto.h>
#include <openssl/rand.h>

#include <stdexcept>

namespace orvane::cloud {

std::string randomToken(std::size_t bytes)
{
    std::string random(bytes, '\0');
    if (RAND_bytes(reinterpret_cast<unsigned char *>(random.data()), static_cast<int>(bytes)) != 1)
        throw std::runtime_error("the system's random generator failed");
    return toHex(random);
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
