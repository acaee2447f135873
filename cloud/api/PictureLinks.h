#pragma once

#include <cstdint>
#include <string>

namespace orvane::cloud {

// What a picture link stands for.
struct PictureTarget
{
    std::string padCode;
    std::uint64_t version = 0; // of the screen, see DeviceFleet::screenVersion
    std::int64_t signInId = -1; // whose list the link was in
};

// Makes and checks the links of the device list's pictures. An <img> element cannot send the identity
// headers, so the link itself carries the right to see the picture: it is signed with HMAC-SHA-256 (RFC 2104)
// and a key of this process. Any thread. Owned by DeviceApi.
class PictureLinks
{
public:
    // Throws std::runtime_error when the random generator fails.
    PictureLinks();

    // Path and query below the API root.
    std::string link(const PictureTarget &target) const;
    // Whether a signature was made by link() for these values.
    bool isGenuine(const PictureTarget &target, const std::string &signature) const;

private:
    std::string signatureOf(const PictureTarget &target) const;

    const std::string m_key;
};

} // namespace orvane::cloud
