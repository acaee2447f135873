// libFuzzer entry: any bytes as a message of the gateway. Built with clang and -DORVANE_FUZZ=ON.

#include "session/WireMessage.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    swplay::wire::StreamMessage message;
    std::string reason;
    const auto result = swplay::readGatewayMessage(data, size, message, reason);
    // Whatever is refused says why.
    if ((result == swplay::ReadResult::Malformed) == reason.empty())
        std::abort();
    return 0;
}
