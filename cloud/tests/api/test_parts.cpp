// The API's small parts by themselves.

#include "ApiFixture.h"

#include "api/PasswordHash.h"
#include "api/PictureLinks.h"
#include "api/RandomToken.h"
#include "api/SignInLimiter.h"
#include "api/program/ServiceOptions.h"

#include <chrono>
#include <set>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

TEST(PasswordHashTest, matchesOnlyItsPassword)
{
    const std::string hash = hashPassword("correct horse");
    EXPECT_TRUE(passwordMatches("correct horse", hash));
    EXPECT_FALSE(passwordMatches("correct horsf", hash));
    EXPECT_FALSE(passwordMatches("", hash));
    EXPECT_FALSE(passwordMatches("correct horse", decoyHash()));
    EXPECT_EQ(hash.find("correct"), std::string::npos);
}

TEST(PasswordHashTest, isSaltedAndSlow)
{
    const std::string one = hashPassword("same");
    EXPECT_NE(one, hashPassword("same"));
    EXPECT_EQ(one.rfind("pbkdf2-sha256$210000$", 0), 0u);
    EXPECT_EQ(decoyHash().size(), one.size());
}

// RFC 7914, section 11: PBKDF2-HMAC-SHA-256 with password "passwd", salt "salt", 1 iteration.
TEST(PasswordHashTest, agreesWithTheStandard)
{
    EXPECT_TRUE(passwordMatches(
        "passwd", "pbkdf2-sha256$1$salt$55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc"));
}

TEST(PasswordHashTest, damagedHashesMatchNothing)
{
    for (const char *hash : {"", "$", "$$$", "plain", "pbkdf2-sha256$210000$00", "pbkdf2-sha256$0$00$00",
             "pbkdf2-sha256$-1$00$00", "pbkdf2-sha256$99999999999999$00$00", "pbkdf2-sha256$1x$00$00",
             "md5$1$00$00"})
        EXPECT_FALSE(passwordMatches("x", hash)) << hash;
}

TEST(RandomTokenTest, isLongAndNeverTheSame)
{
    std::set<std::string> tokens;
    for (int i = 0; i < 1000; ++i)
        tokens.insert(randomToken(16));
    EXPECT_EQ(tokens.size(), 1000u);
    EXPECT_EQ(tokens.begin()->size(), 32u);
    EXPECT_EQ(tokens.begin()->find_first_not_of("0123456789abcdef"), std::string::npos);
    EXPECT_EQ(toHex(std::string("\x00\x7f\xff", 3)), "007fff");
    EXPECT_TRUE(equalSecrets("", ""));
    EXPECT_FALSE(equalSecrets("a", "ab"));
}

TEST(PictureLinksTest, signsEveryPart)
{
    const PictureLinks links;
    const PictureTarget target{"VM1", 7, 3};
    const std::string link = links.link(target);
    const std::string signature = link.substr(link.rfind('=') + 1);
    EXPECT_TRUE(links.isGenuine(target, signature));
    EXPECT_FALSE(links.isGenuine({"VM2", 7, 3}, signature));
    EXPECT_FALSE(links.isGenuine({"VM1", 8, 3}, signature));
    EXPECT_FALSE(links.isGenuine({"VM1", 7, 4}, signature));
    EXPECT_FALSE(links.isGenuine(target, ""));
    EXPECT_FALSE(PictureLinks().isGenuine(target, signature)); // a key of its own per process
    EXPECT_GE(signature.size(), 64u);
}

class SignInLimiterTest : public testing::Test
{
protected:
    void fail(const std::string &account, int times)
    {
        for (int i = 0; i < times; ++i)
            EXPECT_TRUE(m_limiter.settle(account, false));
    }

    ManualClocks m_time;
    SignInLimiter m_limiter{m_time.clocks()};
};

TEST_F(SignInLimiterTest, theWindowSlides)
{
    fail("a", 1);
    m_time.advance(std::chrono::seconds(40));
    fail("a", 4);
    EXPECT_FALSE(m_limiter.allows("a"));
    m_time.advance(std::chrono::seconds(21)); // the first failure is over a minute ago
    EXPECT_TRUE(m_limiter.allows("a"));
    fail("a", 1);
    EXPECT_FALSE(m_limiter.allows("a"));
}

TEST_F(SignInLimiterTest, attemptsSideBySideGainNothing)
{
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(m_limiter.allows("a"));
    fail("a", 5);
    EXPECT_FALSE(m_limiter.settle("a", false));
    EXPECT_FALSE(m_limiter.settle("a", true)); // the right password, but too late
}

TEST_F(SignInLimiterTest, madeUpAccountsDoNotFillTheMemory)
{
    fail("victim", 5);
    m_time.advance(std::chrono::seconds(1));
    for (std::size_t i = 0; i < SignInLimiter::maxAccounts - 1; ++i)
        fail("made up " + std::to_string(i), 1);
    EXPECT_FALSE(m_limiter.allows("victim"));
    fail("one more", 1); // the oldest makes way
    EXPECT_TRUE(m_limiter.allows("victim"));
}

QStringList arguments(const QStringList &options)
{
    return QStringList{"orvane-cloud"} + options;
}

TEST(ServiceOptionsTest, defaults)
{
    const ServiceOptions options = ServiceOptions::parse(arguments({}));
    EXPECT_EQ(options.listenAddress, "127.0.0.1");
    EXPECT_EQ(options.httpPort, 8180);
    EXPECT_EQ(options.gatewayPort, 8181);
    EXPECT_FALSE(options.deviceCount);
    EXPECT_EQ(options.screens, (std::vector<QSize>{{720, 1280}}));
    EXPECT_FALSE(options.dataFolder.empty());
    EXPECT_FALSE(options.helpWanted);
}

TEST(ServiceOptionsTest, everythingCanBeChosen)
{
    const ServiceOptions options
        = ServiceOptions::parse(arguments({"--http-port", "0", "--gateway-port=65535", "--data", "/tmp/x y",
            "--devices", "300", "--listen", "::1", "--screens", "720x1280,1080x1920,720x1600", "--help"}));
    EXPECT_EQ(options.listenAddress, "::1");
    EXPECT_EQ(options.httpPort, 0);
    EXPECT_EQ(options.gatewayPort, 65535);
    EXPECT_EQ(options.dataFolder, "/tmp/x y");
    EXPECT_EQ(options.deviceCount, 300);
    EXPECT_EQ(options.screens, (std::vector<QSize>{{720, 1280}, {1080, 1920}, {720, 1600}}));
    EXPECT_TRUE(options.helpWanted);
}

TEST(ServiceOptionsTest, nonsenseIsRefused)
{
    const QStringList wrong[] = {{"--http-port", "65536"}, {"--http-port", "-1"}, {"--gateway-port", "x"},
        {"--devices", "1001"}, {"--devices", ""}, {"--listen", "0.0.0.0"}, {"--listen", "localhost"},
        {"--data", ""}, {"--screens", ""}, {"--screens", "720x1280,"}, {"--screens", "719x1280"},
        {"--screens", "721x1400"}, {"--screens", "720x1278"}, {"--screens", "1442x2564"},
        {"--screens", "720x2562"}, {"--screens", "720*1280"}, {"--screens", "99999999999x1280"},
        {"--http-port"}, {"--unknown"}, {"stray"}};
    for (const QStringList &options : wrong)
        EXPECT_THROW(ServiceOptions::parse(arguments(options)), UsageError)
            << options.join(' ').toStdString();
}

} // namespace
