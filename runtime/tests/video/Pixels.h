#pragma once

#include "swplay/VideoDisplayWinBase.h"

// Mean distance of the colour bytes of a buffer from the test gradient of that phase.
double gradientError(const FrameBuffer &buffer, int phase);
// Whether every pixel's alpha is 255.
bool isOpaque(const FrameBuffer &buffer);
// The grey of a buffer of one grey, with an error of at most 2 for each byte; -1 if it has several.
int onlyGrey(const FrameBuffer &buffer);
