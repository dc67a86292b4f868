// The figure of the splitting check: what h, he and a are, and which edge is the loaded one.
#pragma once

#include "spacing/sketch/Drawing.h"

namespace tarnvik {

// Width and height in pixels.
Drawing Draw_splitting(double width, double height);

} // namespace tarnvik
