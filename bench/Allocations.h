// How often the program has asked for memory.
#pragma once

namespace tarnvik {

long Allocations();

} // namespace tarnvik
