#pragma once

#include "gateway/LevelSelection.h"

#include <QSize>

#include <cstdint>
#include <string>

namespace orvane::cloud {

enum class LoginCode { Ok = 0, UnknownSession = 1, Expired = 2, UnsupportedVersion = 3, Busy = 4 };
enum class EndCode { Closed = 0, Expired = 1, ProtocolError = 2, Shutdown = 3 };

// The messages of the gateway, ready to be sent: each function returns the bytes of one binary message. Any
// thread.
namespace server {

std::string loginRefused(LoginCode code, const std::string &reason);
std::string loginAccepted(QSize screen, int rotation);
// `capture`: microseconds of the service's clock.
std::string videoFrame(std::uint64_t frameId, std::int64_t captureUs, bool keyFrame, std::string accessUnit,
    int width, int height);
std::string videoLevelResult(const LevelSelection::Effective &effective);
std::string screenRotation(int rotation);
std::string sensorRequest(int inputType, int state, int width, int height);
std::string clipboard(const std::string &text);
std::string sessionEnd(EndCode code, const std::string &reason);
std::string ping(std::uint64_t id, std::int64_t sentUs);
std::string pong(std::uint64_t id, std::int64_t pingSentUs, std::int64_t repliedUs);

} // namespace server

} // namespace orvane::cloud
