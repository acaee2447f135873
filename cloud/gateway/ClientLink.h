#pragma once

#include "gateway/ServerMessage.h"

#include <string>

namespace orvane::cloud {

// The way back to one client, as the device side sees it. Implemented by ClientConnection; every operation
// may be called from any thread and returns at once. Messages of one kind arrive in the order in which they
// were given.
class ClientLink
{
public:
    virtual ~ClientLink() = default;

    // `message`: bytes of ServerMessage.h. Control messages overtake video that waits.
    virtual void sendControl(std::string message) = 0;
    virtual void sendVideo(std::string message) = 0;
    // Answers the login: `loginResult` is the first message that the client gets.
    virtual void accept(std::string loginResult) = 0;
    // Answers the login with a refusal and closes the connection once the client knows.
    virtual void refuse(LoginCode code, const std::string &reason) = 0;
    // Tells the client why and closes the connection once it knows.
    virtual void end(EndCode code, const std::string &reason) = 0;
};

} // namespace orvane::cloud
