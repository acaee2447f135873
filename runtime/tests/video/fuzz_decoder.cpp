// libFuzzer target: a damaged stream goes through a whole StreamDecoder into a window's buffers. The input is
// read as a list of edits of a good stream, so that it reaches deep into the decoder without a corpus. Build
// with clang and -DORVANE_FUZZ=ON, then run
//     bin/fuzz_decoder -max_total_time=600 CORPUS_FOLDER

#include "Log.h"
#include "TestEncoder.h"
#include "swplay/VideoDisplayWinBase.h"
#include "video/StreamDecoder.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

using swplay::AccessUnit;

void swplay::log(LogLevel, const std::string &)
{ }

namespace {

constexpr int Side = 32;
constexpr std::size_t EditBytes = 4;

std::vector<AccessUnit> makeGoodUnits()
{
    TestEncoder encoder(Side, Side);
    std::vector<AccessUnit> units;
    units.reserve(8);
    for (int i = 0; i < 8; ++i)
        units.push_back(encoder.next(i % 4 == 0));
    return units;
}

// One edit: what to do, where (two bytes), and a value.
void edit(std::string &data, const std::uint8_t *bytes)
{
    const std::size_t at = data.empty() ? 0 : (bytes[1] * 256U + bytes[2]) % data.size();
    const char value = static_cast<char>(bytes[3]);
    switch (bytes[0] % 4) {
    case 0:
        data.insert(at, 1, value);
        break;
    case 1:
        data.erase(at, bytes[3]);
        break;
    case 2:
        data.insert(at, std::string("\0\0\1", 3) + value);
        break;
    default:
        if (!data.empty())
            data[at] = value;
        break;
    }
}

// Sees every picture that a window would paint.
class Window : public VideoDisplayWinBase
{
public:
    Window() { setDstFormat(-1, 2 * Side, Side, 0); }
    void onFrameArrival() override
    {
        ++arrivals;
        if (lockFrameBuffer())
            unlockFrameBuffer();
    }
    int arrivals = 0;
};

void feed(swplay::StreamDecoder &stream, AccessUnit unit, std::uint64_t id)
{
    unit.frameId = id;
    stream.accessUnit(std::move(unit));
    while (stream.serve()) { }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    static const std::vector<AccessUnit> good = makeGoodUnits();
    swplay::DecodePool pool; // never started: the stream is served by hand
    Window window;
    const auto stream = std::make_shared<swplay::StreamDecoder>("fuzz", pool);
    stream->setDisplay(&window);
    std::uint64_t id = 0;
    for (std::size_t at = 0; at + EditBytes <= size; ++id) {
        AccessUnit unit = good[id % good.size()];
        // An edit whose first byte has the high bit is the unit's last.
        bool last = false;
        for (; !last && at + EditBytes <= size; at += EditBytes) {
            edit(unit.data, bytes + at);
            last = (bytes[at] & 0x80) != 0;
        }
        feed(*stream, std::move(unit), id + 1);
    }
    // Whatever came before, a good key frame has a picture.
    const int before = window.arrivals;
    feed(*stream, good.front(), id + 1);
    if (window.arrivals != before + 1)
        std::abort();
    stream->close();
    return 0;
}
