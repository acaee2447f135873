// libFuzzer target: the input is split into access units that go through a whole StreamDecoder into a
// window's frame store. Build with clang and -DORVANE_FUZZ=ON, then run
//     bin/fuzz_decoder -max_len=20000 CORPUS_FOLDER

#include "Log.h"
#include "swplay/VideoDisplayWinBase.h"
#include "video/StreamDecoder.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

void swplay::log(LogLevel, const std::string &)
{ }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    // Between two units of an input; chosen so that it does not occur in Annex B.
    constexpr std::string_view Separator("\0\0\0\0FUZZ", 8);

    swplay::DecodePool pool; // never started: the stream is served by hand
    VideoDisplayWinBase display;
    display.setDstFormat(-1, 64, 64, 0);
    const auto stream = std::make_shared<swplay::StreamDecoder>("fuzz", pool);
    stream->setDisplay(&display);

    std::string_view rest(reinterpret_cast<const char *>(bytes), size);
    for (std::uint64_t id = 1; !rest.empty(); ++id) {
        const std::size_t end = rest.find(Separator);
        swplay::AccessUnit unit;
        unit.frameId = id;
        unit.keyFrame = true; // the stream itself looks whether it is one
        unit.data = rest.substr(0, end);
        stream->accessUnit(std::move(unit));
        while (stream->serve()) { }
        if (display.lockFrameBuffer())
            display.unlockFrameBuffer();
        rest = end == rest.npos ? std::string_view() : rest.substr(end + Separator.size());
    }
    stream->close();
    return 0;
}
