#include "core/animate/FrameTiming.h"

namespace orrery {

int frameStartTicks(int frame, int fps, int ticksPerSecond) {
    // Rounded to the nearest tick in whole numbers.
    const long long scaled = static_cast<long long>(frame) * ticksPerSecond;
    return static_cast<int>((2 * scaled + fps) / (2LL * fps));
}

int frameLengthTicks(int frame, int fps, int ticksPerSecond) {
    return frameStartTicks(frame + 1, fps, ticksPerSecond) -
           frameStartTicks(frame, fps, ticksPerSecond);
}

} // namespace orrery
