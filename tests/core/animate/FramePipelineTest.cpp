#include "core/animate/FramePipeline.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <vector>

namespace orrery {
namespace {

// Frames that count how many of them are alive at once.
struct Census {
    std::atomic<int> alive{0};
    std::atomic<int> most{0};
    std::mutex mutex;
    std::vector<int> handed;

    FrameDrawer drawer() {
        return [this](int frame, std::string&) -> std::optional<Image> {
            const int now = ++alive;
            most = std::max(most.load(), now);
            Image image(1, 1);
            image.pixels[0] = static_cast<std::uint8_t>(frame);
            return image;
        };
    }
    FrameConsumer consumer(int failAt = -1) {
        return [this, failAt](Image frame) -> std::string {
            const int number = frame.pixels[0];
            {
                std::lock_guard lock(mutex);
                handed.push_back(number);
            }
            frame = Image();
            --alive;
            return number == failAt ? "disk full" : "";
        };
    }
};

TEST(FramePipeline, HandsOnEveryFrameInOrderWithAtMostTwoAlive) {
    Census census;
    std::vector<int> progress;
    const PipelineOutcome outcome =
        runFramePipeline({3, 12}, census.drawer(), census.consumer(), [&](int done, int total) {
            EXPECT_EQ(total, 10);
            progress.push_back(done);
            return true;
        });
    EXPECT_TRUE(outcome.ok());
    EXPECT_EQ(census.handed, (std::vector<int>{3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    EXPECT_LE(census.most, 2);
    EXPECT_EQ(progress.back(), 10);
}

TEST(FramePipeline, StopsAtTheFirstFailureOrWhenAsked) {
    Census failing;
    const PipelineOutcome failed =
        runFramePipeline({0, 9}, failing.drawer(), failing.consumer(4), {});
    EXPECT_EQ(failed.error, "disk full");
    EXPECT_LE(failing.handed.size(), 5u);

    Census drawFails;
    const PipelineOutcome undrawn =
        runFramePipeline({0, 9},
                         [](int frame, std::string& error) -> std::optional<Image> {
                             if (frame == 2) {
                                 error = "no context";
                                 return std::nullopt;
                             }
                             return Image(1, 1);
                         },
                         drawFails.consumer(), {});
    EXPECT_EQ(undrawn.error, "no context");

    Census stopped;
    const PipelineOutcome cancelled = runFramePipeline({0, 9}, stopped.drawer(), stopped.consumer(),
                                                       [](int done, int) { return done < 3; });
    EXPECT_TRUE(cancelled.stopped);
    EXPECT_EQ(stopped.handed.size(), 3u);
}

} // namespace
} // namespace orrery
