#include "session/LogFile.h"

#include "swplay/SWRuntime.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

using namespace swplay;
namespace fs = std::filesystem;

namespace {

class LogFileTest : public testing::Test
{
protected:
    LogFileTest()
    {
        std::string pattern = (fs::temp_directory_path() / "swplay-log-XXXXXX").string();
        folder = ::mkdtemp(pattern.data());
        setDay(10);
    }
    ~LogFileTest() override { fs::remove_all(folder); }

    // Noon of a day of March 2026, local time.
    void setDay(int day)
    {
        std::tm parts{};
        parts.tm_year = 126;
        parts.tm_mon = 2;
        parts.tm_mday = day;
        parts.tm_hour = 12;
        parts.tm_isdst = -1;
        now = std::chrono::system_clock::from_time_t(std::mktime(&parts)) + std::chrono::milliseconds(7);
    }

    std::string contents(const std::string &name) const
    {
        std::ifstream file(folder / name);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::set<std::string> names() const
    {
        std::set<std::string> result;
        for (const auto &entry : fs::directory_iterator(folder))
            result.insert(entry.path().filename().string());
        return result;
    }

    void touch(const std::string &name) const { std::ofstream(folder / name) << "old\n"; }

    fs::path folder;
    std::chrono::system_clock::time_point now;
    LogFile log{[this] { return now; }};
};

using Names = std::set<std::string>;

} // namespace

TEST_F(LogFileTest, LinesOfTheLevel)
{
    ASSERT_TRUE(log.open(1, folder.string()));
    log.write(LogLevel::Error, "broken");
    log.write(LogLevel::Info, "said");
    log.write(LogLevel::Debug, "detail");
    EXPECT_EQ(contents("swplay-2026-03-10.log"),
        "2026-03-10 12:00:00.007 E broken\n2026-03-10 12:00:00.007 I said\n");
    ASSERT_TRUE(log.open(2, folder.string()));
    log.write(LogLevel::Debug, "detail");
    EXPECT_NE(contents("swplay-2026-03-10.log").find("D detail\n"), std::string::npos);
}

TEST_F(LogFileTest, LevelNoneAndUnusableFolders)
{
    EXPECT_FALSE(log.open(0, folder.string()));
    EXPECT_FALSE(log.open(1, ""));
    EXPECT_FALSE(log.open(1, (folder / "missing").string()));
    log.write(LogLevel::Error, "nobody sees this");
    EXPECT_EQ(names(), Names{});
}

TEST_F(LogFileTest, NewDayNewFileAndSevenDaysStay)
{
    touch("swplay-2026-03-03.log");
    touch("swplay-2026-03-04.log");
    touch("2026-03-01.log"); // the client's own log
    touch("swplay-notadate!.log");
    ASSERT_TRUE(log.open(1, folder.string()));
    EXPECT_EQ(names(),
        (Names{"2026-03-01.log", "swplay-2026-03-04.log", "swplay-2026-03-10.log", "swplay-notadate!.log"}));
    setDay(11);
    log.write(LogLevel::Info, "next day");
    EXPECT_EQ(names(),
        (Names{"2026-03-01.log", "swplay-2026-03-10.log", "swplay-2026-03-11.log", "swplay-notadate!.log"}));
    EXPECT_EQ(contents("swplay-2026-03-11.log"), "2026-03-11 12:00:00.007 I next day\n");
}

TEST_F(LogFileTest, LinesCannotBeForged)
{
    ASSERT_TRUE(log.open(1, folder.string()));
    log.write(LogLevel::Info, "from afar\n2026-03-10 E forged\r");
    EXPECT_EQ(
        contents("swplay-2026-03-10.log"), "2026-03-10 12:00:00.007 I from afar 2026-03-10 E forged \n");
}

TEST_F(LogFileTest, AppendsAndStopsWhenClosed)
{
    touch("swplay-2026-03-10.log");
    ASSERT_TRUE(log.open(1, folder.string()));
    log.write(LogLevel::Info, "one");
    log.close();
    log.write(LogLevel::Info, "two");
    EXPECT_EQ(contents("swplay-2026-03-10.log"), "old\n2026-03-10 12:00:00.007 I one\n");
}

TEST_F(LogFileTest, RuntimeWritesThere)
{
    ASSERT_EQ(SWRuntime::getInstance()->init(1, folder.c_str()), 0);
    SWRuntime::getInstance()->deinit();
    const auto files = names();
    ASSERT_EQ(files.size(), 1U);
    const std::string text = contents(*files.begin());
    EXPECT_NE(text.find("I Runtime started\n"), std::string::npos);
    EXPECT_NE(text.find("I Runtime ended\n"), std::string::npos);
}
