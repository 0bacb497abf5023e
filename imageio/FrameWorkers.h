#pragma once

#include <algorithm>
#include <cstddef>
#include <deque>
#include <functional>
#include <future>
#include <string>
#include <thread>

namespace orrery::imageio {

// Runs the costly part of encoding a frame that needs that frame alone (quantising,
// compressing) on threads of its own, several frames at once, and hands the results on in
// frame order to the part that must be serial (writing them into one file). A writer whose
// encoding is slower than the drawing would otherwise leave all but one core waiting. At most
// `inFlight` frames are being encoded at any time, however long the loop is, so memory stays
// flat; each result is the same whichever thread made it.
template <typename Encoded> class FrameWorkers {
public:
    using Encode = std::function<Encoded()>;
    using Write = std::function<std::string(Encoded)>;

    // One frame a core: at least two, so that one is encoded while the oldest is written, and
    // at most four, since every frame on its way is held whole (a large one is tens of MiB).
    explicit FrameWorkers(Write write)
        : write_(std::move(write)),
          inFlight_(std::clamp<std::size_t>(std::thread::hardware_concurrency(), 2, 4)) {}

    // Starts encoding a frame, first writing the oldest when `inFlight` frames are on their
    // way. An empty text, or why a frame could not be written.
    std::string add(Encode encode) {
        if (pending_.size() >= inFlight_)
            if (std::string error = writeOldest(); !error.empty())
                return error;
        pending_.push_back(std::async(std::launch::async, std::move(encode)));
        return {};
    }

    // Writes every frame still on its way, in order.
    std::string finish() {
        while (!pending_.empty())
            if (std::string error = writeOldest(); !error.empty())
                return error;
        return {};
    }

    // Waits for the frames on their way and drops them.
    void abandon() { pending_.clear(); }

private:
    std::string writeOldest() {
        Encoded encoded = pending_.front().get();
        pending_.pop_front();
        return write_(std::move(encoded));
    }

    Write write_;
    std::size_t inFlight_;
    std::deque<std::future<Encoded>> pending_;
};

} // namespace orrery::imageio
