#include "Mutator.h"
#include "TestEncoder.h"
#include "TestEnds.h"
#include "video/StreamDecoder.h"

#include <gtest/gtest.h>

#include <vector>

using swplay::AccessUnit;
using swplay::DecodePool;
using swplay::StreamDecoder;

namespace {

// The thread sanitizer has nothing to find in a test of one thread, and makes it slow.
#if defined(__SANITIZE_THREAD__)
constexpr int Units = 10000;
#else
constexpr int Units = 200000;
#endif

} // namespace

// Many damaged units, always the same ones: nothing crashes, and a good key frame always gets a picture.
TEST(DamagedStream, GoodKeyFramesGetTheirPictureAmongDamagedUnits)
{
    constexpr int GoodEvery = 500;
    TestEncoder encoder(32, 32);
    std::vector<AccessUnit> good;
    good.reserve(60);
    for (int i = 0; i < 60; ++i)
        good.push_back(encoder.next(i % 6 == 0));

    DecodePool pool; // served by hand
    TestDisplay display;
    const auto feedback = std::make_shared<TestFeedback>();
    const auto stream = std::make_shared<StreamDecoder>("damaged", pool);
    stream->setFeedback(feedback);
    stream->setDisplay(&display);
    Mutator mutator(20240607);
    std::uint64_t id = 0;
    for (int i = 1; i <= Units; ++i) {
        const bool clean = i % GoodEvery == 0;
        AccessUnit unit = good[clean ? 0 : mutator.below(good.size())];
        unit.frameId = ++id;
        if (!clean)
            mutator.mutate(unit.data);
        stream->accessUnit(std::move(unit));
        while (stream->serve()) { }
        if (clean) {
            ASSERT_FALSE(display.shown().empty());
            ASSERT_EQ(display.shown().back().frameId, id) << "no picture from a good key frame";
        }
    }
    EXPECT_GT(feedback->requests(), 0);
    stream->close();
}
