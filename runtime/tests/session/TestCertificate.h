#pragma once

#include <string>

// A self-signed certificate for one IP address, in two PEM files of a temporary folder that goes with it.
class TestCertificate
{
public:
    explicit TestCertificate(const std::string &ipAddress);
    ~TestCertificate();
    TestCertificate(const TestCertificate &) = delete;
    TestCertificate &operator=(const TestCertificate &) = delete;

    std::string certificateFile() const { return m_folder + "/certificate.pem"; }
    std::string keyFile() const { return m_folder + "/key.pem"; }

private:
    std::string m_folder;
};
