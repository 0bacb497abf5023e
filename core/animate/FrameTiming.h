#pragma once

// When each frame of a loop shows. A format that counts time in coarse ticks (GIF in
// hundredths of a second, WebP and sprite atlases in milliseconds) rounds each frame's start,
// not its length, so that rounding never adds up: a loop of 48 frames at 24 per second lasts
// exactly two seconds, its frames alternating between the nearest tick lengths.
namespace orrery {

// The start of frame n (0 for the first; n may be the frame count, the loop's end) in ticks
// of 1 / ticksPerSecond second.
int frameStartTicks(int frame, int fps, int ticksPerSecond);
// How many ticks frame n shows for.
int frameLengthTicks(int frame, int fps, int ticksPerSecond);

} // namespace orrery
