#pragma once

#include <optional>
#include <string>
#include <string_view>

// A turntable written as a folder of pictures: one PNG a frame, named after the folder and
// numbered from 1 as in the whole loop, so that pieces of one loop drawn apart (a range each)
// fall into one folder as if drawn together.
namespace orrery {

// "name_0001.png" for frame 0 of a folder called "name": at least four digits.
std::string frameFileName(std::string_view stem, int frame);

// The name the frames of a folder path ("out/spin/", "spin/") take: the folder's own name,
// or "frame" for a path without one ("/", "./").
std::string frameStem(std::string_view folderPath);

// Frames first to last (0-based, both drawn).
struct FrameRange {
    int first = 0;
    int last = 0;
    int count() const { return last - first + 1; }
    friend bool operator==(const FrameRange&, const FrameRange&) = default;
};

// "FIRST-LAST" as the file names number them, from 1 to `frames`; none, with the reason in
// `error`, for anything else or a range beyond the loop.
std::optional<FrameRange> parseFrameRange(std::string_view text, int frames, std::string& error);

} // namespace orrery
