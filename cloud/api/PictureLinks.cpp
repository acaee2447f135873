#include "api/PictureLinks.h"

#include "api/RandomToken.h"

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <stdexcept>

namespace orvane::cloud {

PictureLinks::PictureLinks()
    : m_key(randomToken(32))
{ }

std::string PictureLinks::link(const PictureTarget &target) const
{
    return "/apiv1/device/picture?pad=" + target.padCode + "&v=" + std::to_string(target.version)
        + "&s=" + std::to_string(target.signInId) + "&t=" + signatureOf(target);
}

bool PictureLinks::isGenuine(const PictureTarget &target, const std::string &signature) const
{
    return equalSecrets(signatureOf(target), signature);
}

std::string PictureLinks::signatureOf(const PictureTarget &target) const
{
    const std::string message
        = target.padCode + '\n' + std::to_string(target.version) + '\n' + std::to_string(target.signInId);
    std::string digest(EVP_MAX_MD_SIZE, '\0');
    unsigned int size = 0;
    if (!HMAC(EVP_sha256(), m_key.data(), static_cast<int>(m_key.size()),
            reinterpret_cast<const unsigned char *>(message.data()), message.size(),
            reinterpret_cast<unsigned char *>(digest.data()), &size))
        throw std::runtime_error("signing a picture link failed");
    digest.resize(size);
    return toHex(digest);
}

} // namespace orvane::cloud
