#include "swplay/VideoDisplay.h"

VideoDisplay::~VideoDisplay() = default;
