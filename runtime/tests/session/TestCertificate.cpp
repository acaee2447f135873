#include "TestCertificate.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace {

template <auto Free>
struct Freer
{
    template <typename T>
    void operator()(T *pointer) const
    {
        Free(pointer);
    }
};
using Key = std::unique_ptr<EVP_PKEY, Freer<EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Freer<X509_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Freer<X509_EXTENSION_free>>;
using File = std::unique_ptr<std::FILE, Freer<std::fclose>>;

void must(bool done, const char *what)
{
    if (!done)
        throw std::runtime_error(std::string("cannot make a test certificate: ") + what);
}

Certificate makeCertificate(EVP_PKEY *key, const std::string &ipAddress)
{
    Certificate certificate(X509_new());
    X509_set_version(certificate.get(), 2);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -3600);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600L * 24);
    X509_set_pubkey(certificate.get(), key);
    X509_NAME *name = X509_get_subject_name(certificate.get());
    const auto *commonName = reinterpret_cast<const unsigned char *>("Orvane test");
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, commonName, -1, -1, 0);
    X509_set_issuer_name(certificate.get(), name);
    const std::string alternative = "IP:" + ipAddress;
    const Extension extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, alternative.c_str()));
    must(extension && X509_add_ext(certificate.get(), extension.get(), -1) == 1, "extension");
    must(X509_sign(certificate.get(), key, EVP_sha256()) > 0, "signature");
    return certificate;
}

} // namespace

TestCertificate::TestCertificate(const std::string &ipAddress)
{
    std::string pattern = (std::filesystem::temp_directory_path() / "swplay-tls-XXXXXX").string();
    must(::mkdtemp(pattern.data()) != nullptr, "folder");
    m_folder = pattern;
    const Key key(EVP_EC_gen("P-256"));
    must(key != nullptr, "key");
    const Certificate certificate = makeCertificate(key.get(), ipAddress);
    const File certificateStream(std::fopen(certificateFile().c_str(), "w"));
    must(certificateStream && PEM_write_X509(certificateStream.get(), certificate.get()) == 1,
        "certificate file");
    const File keyStream(std::fopen(keyFile().c_str(), "w"));
    must(keyStream
            && PEM_write_PrivateKey(keyStream.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) == 1,
        "key file");
}

TestCertificate::~TestCertificate()
{
    std::error_code ignored; // a folder in /tmp that stays does no harm
    std::filesystem::remove_all(m_folder, ignored);
}
