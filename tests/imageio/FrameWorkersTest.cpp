#include "imageio/FrameWorkers.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <vector>

namespace orrery::testing {
namespace {

// Frames that take longer the earlier they come still reach the writer in order; the first
// failure to write stops the stream and is what the caller hears.
TEST(FrameWorkers, WritesInOrderAndStopsAtTheFirstFailure) {
    std::vector<int> written;
    imageio::FrameWorkers<int> workers([&](int frame) {
        written.push_back(frame);
        return frame == 6 ? std::string("disk full") : std::string();
    });
    std::string error;
    for (int frame = 0; frame < 10 && error.empty(); ++frame)
        error = workers.add([frame]() {
            std::this_thread::sleep_for(std::chrono::milliseconds(10 - frame));
            return frame;
        });
    if (error.empty())
        error = workers.finish();
    EXPECT_EQ(error, "disk full");
    EXPECT_EQ(written, (std::vector<int>{0, 1, 2, 3, 4, 5, 6}));
}

} // namespace
} // namespace orrery::testing
