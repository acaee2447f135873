#include "video/AnnexB.h"
#include "TestEncoder.h"

#include <gtest/gtest.h>

#include <string>

using namespace std::string_view_literals;
using swplay::startsWithIdr;

TEST(AnnexB, FindsTheIdrSliceBehindParameterSets)
{
    // Sequence and picture parameter set (7, 8), a message (6), then an IDR slice (5).
    EXPECT_TRUE(startsWithIdr("\0\0\0\1\x67\x42\0\x0a\0\0\0\1\x68\xce\0\0\1\x06\x05\x01\0\0\1\x65\x88"sv));
}

TEST(AnnexB, OtherSlicesAreNoKeyPicture)
{
    EXPECT_FALSE(startsWithIdr("\0\0\0\1\x41\x9a"sv));
    EXPECT_FALSE(startsWithIdr("\0\0\0\1\x67\x42\0\x0a\0\0\1\x41\x9a\0\0\1\x65\x88"sv));
}

TEST(AnnexB, NeedsASlice)
{
    EXPECT_FALSE(startsWithIdr(""sv));
    EXPECT_FALSE(startsWithIdr("\0\0\1"sv));
    EXPECT_FALSE(startsWithIdr("\0\0\0\1\x67\x42\0\x0a\0\0\0\1\x68\xce"sv));
    EXPECT_FALSE(startsWithIdr("GIF89a"sv));
}

TEST(AnnexB, LooksAtABoundedHead)
{
    std::string unit(1000000, '\xff');
    unit.append("\0\0\1\x65\x88", 5);
    EXPECT_FALSE(startsWithIdr(unit));
}

TEST(AnnexB, AgreesWithAnEncoder)
{
    TestEncoder encoder(64, 64);
    EXPECT_TRUE(startsWithIdr(encoder.next(true).data));
    EXPECT_FALSE(startsWithIdr(encoder.next(false).data));
}
