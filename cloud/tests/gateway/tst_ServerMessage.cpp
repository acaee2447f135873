// The gateway's writing of the wire, pinned by literal bytes.
#include "gateway/ServerMessage.h"

#include "Bytes.h"

#include <gmock/gmock.h>

using namespace orvane::cloud;
using orvane::cloud::test::hex;
using orvane::cloud::test::toHex;

namespace {

void expectBytes(const std::string &message, const char *expected)
{
    EXPECT_EQ(toHex(message), toHex(hex(expected)));
}

} // namespace

TEST(ServerMessage, LoginResult)
{
    expectBytes(server::loginAccepted({720, 1280}, 1), "A2 01 08 18 D0 05 20 80 0A 28 01");
    expectBytes(server::loginAccepted({720, 1280}, 0), "A2 01 06 18 D0 05 20 80 0A");
    expectBytes(server::loginRefused(LoginCode::UnknownSession, "no"), "A2 01 06 08 01 12 02 6E 6F");
    expectBytes(server::loginRefused(LoginCode::Expired, ""), "A2 01 02 08 02");
    expectBytes(server::loginRefused(LoginCode::UnsupportedVersion, ""), "A2 01 02 08 03");
    expectBytes(server::loginRefused(LoginCode::Busy, ""), "A2 01 02 08 04");
}

TEST(ServerMessage, VideoFrame)
{
    expectBytes(server::videoFrame(5, 1000, true, std::string("\0\0\1", 3), 720, 1280),
        "AA 01 12 08 05 10 E8 07 18 01 22 03 00 00 01 28 D0 05 30 80 0A");
    expectBytes(server::videoFrame(300, 1, false, "x", 144, 218),
        "AA 01 0E 08 AC 02 10 01 22 01 78 28 90 01 30 DA 01");
}

TEST(ServerMessage, VideoLevelResult)
{
    LevelSelection::Effective effective;
    effective.row = 1;
    effective.automatic = true;
    expectBytes(server::videoLevelResult(effective),
        "B2 01 1B 0A 15 08 02 10 D0 05 18 80 0A 20 19 28 0F 30 80 30 38 64 50 64 58 32 10 01 18 01");
    effective.row = -1;
    effective.automatic = false;
    expectBytes(server::videoLevelResult(effective),
        "B2 01 22 0A 15 08 02 10 D0 05 18 80 0A 20 19 28 0F 30 80 30 38 64 50 64 58 32 "
        "18 FF FF FF FF FF FF FF FF FF 01");
}

TEST(ServerMessage, DeviceEvents)
{
    expectBytes(server::screenRotation(1), "BA 01 02 08 01");
    expectBytes(server::screenRotation(0), "BA 01 00");
    expectBytes(server::sensorRequest(212, 1, 720, 1280), "C2 01 0B 08 D4 01 10 01 18 D0 05 20 80 0A");
    expectBytes(server::sensorRequest(199, 0, 0, -1), "C2 01 03 08 C7 01");
    expectBytes(server::clipboard("hi"), "CA 01 04 0A 02 68 69");
}

TEST(ServerMessage, SessionEnd)
{
    expectBytes(server::sessionEnd(EndCode::ProtocolError, "x"), "E2 01 05 08 02 12 01 78");
    expectBytes(server::sessionEnd(EndCode::Closed, ""), "E2 01 00");
    expectBytes(server::sessionEnd(EndCode::Expired, ""), "E2 01 02 08 01");
    expectBytes(server::sessionEnd(EndCode::Shutdown, ""), "E2 01 02 08 03");
}

TEST(ServerMessage, PingAndPong)
{
    expectBytes(server::ping(1, 1000), "C2 02 05 08 01 10 E8 07");
    expectBytes(server::pong(1, 1000, 2000), "CA 02 08 08 01 10 E8 07 18 D0 0F");
}
