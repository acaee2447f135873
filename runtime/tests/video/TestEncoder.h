#pragma once

#include "TestPicture.h"
#include "VideoSink.h"

#include <cstdint>
#include <memory>

// Makes real H.264 for the tests, as the gateway sends it: one access unit per picture, no reordering,
// parameter sets before every key frame. Numbers the units from 1.
class TestEncoder
{
public:
    enum class Chroma { C420, C422, C444 };

    TestEncoder(int width, int height, Chroma chroma = Chroma::C420, bool fullRange = false);
    ~TestEncoder();

    // `picture` has the encoder's size. Its colour planes are spread where the chroma format has more
    // samples.
    swplay::AccessUnit encode(const TestPicture &picture, bool keyFrame);
    // The next unit: a gradient with its number as the phase.
    swplay::AccessUnit next(bool keyFrame);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
