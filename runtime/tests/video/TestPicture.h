#pragma once

#include <cstdint>
#include <vector>

struct VideoFrame;

// A synthetic I420 picture (BT.601, limited range) whose colours are known at every point.
struct TestPicture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> planes[3];
    int strides[3] = {0, 0, 0};

    // A smooth diagonal gradient; `phase` shifts it. Sides are even.
    static TestPicture gradient(int width, int height, int phase);
    // One grey everywhere.
    static TestPicture flat(int width, int height, std::uint8_t luma);

    // The gradient's colour channel (0 blue, 1 green, 2 red) at a point given as fractions of the sides.
    static double gradientChannel(int channel, double x, double y, int phase);
    // The 8-bit grey that a limited-range luma stands for.
    static int greyOf(std::uint8_t luma);

    // A frame whose planes are this picture's; valid as long as the picture.
    VideoFrame asFrame() const;
};
