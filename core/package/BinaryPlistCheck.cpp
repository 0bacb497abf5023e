#include "core/package/BinaryPlistCheck.h"

#include "core/package/BinaryPlist.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace orrery {
namespace {

std::uint64_t saturatingAdd(std::uint64_t a, std::uint64_t b) {
    return a > std::numeric_limits<std::uint64_t>::max() - b
               ? std::numeric_limits<std::uint64_t>::max()
               : a + b;
}

// Per object, once visited: the height of its subtree and its node count. A height of
// zero means "not visited yet"; kOnPath marks an object whose subtree is being walked.
constexpr std::uint16_t kOnPath = std::numeric_limits<std::uint16_t>::max();

struct Frame {
    std::uint64_t index;
    BinaryObject object;
    std::uint64_t next = 0;  // next reference to follow
    std::uint64_t nodes = 1; // this object and what it holds so far
    std::uint16_t height = 1;
};

} // namespace

bool checkBinaryPropertyList(std::string_view bytes, const ParseLimits& limits,
                             std::string& error) {
    if (bytes.size() > limits.maxBytes) {
        error = "the file is larger than " + std::to_string(limits.maxBytes) + " bytes";
        return false;
    }
    // Written honestly, every node of the tree stands for a reference of at least one
    // byte, as only texts, numbers and UIDs are shared; the slack allows a writer that
    // shares a container or two. Memory then stays proportional to the file.
    const std::uint64_t maxNodes =
        std::min<std::uint64_t>(limits.maxNodes, 4 * bytes.size() + 4096);
    BinaryPlist plist(bytes);
    // Every object of a sound file is reachable and counts as a node at least once.
    if (!plist.readTrailer(maxNodes, error))
        return false;

    const auto count = static_cast<std::size_t>(plist.objectCount());
    std::vector<std::uint16_t> height(count, 0);
    std::vector<std::uint32_t> nodes(count, 0);
    const auto tooDeep = [&] {
        error = "the property list is nested deeper than " + std::to_string(kMaxNestingDepth) +
                " levels";
        return false;
    };
    const auto tooLarge = [&] {
        error = "the property list expands to more than " + std::to_string(maxNodes) + " nodes";
        return false;
    };

    std::vector<Frame> path;
    const auto enter = [&](std::uint64_t index) {
        Frame frame{index, {}};
        if (!plist.object(index, frame.object, error))
            return false;
        if (path.size() >= kMaxNestingDepth)
            return tooDeep();
        height[index] = kOnPath;
        path.push_back(frame);
        return true;
    };
    if (!enter(plist.top()))
        return false;

    while (!path.empty()) {
        Frame& frame = path.back();
        if (frame.next < BinaryPlist::referenceCount(frame.object)) {
            const std::uint64_t i = frame.next++;
            const std::uint64_t child = plist.reference(frame.object, i);
            if (child >= plist.objectCount()) {
                error = "the binary property list is damaged: object " +
                        std::to_string(frame.index) + " refers to object " + std::to_string(child) +
                        ", but there are only " + std::to_string(plist.objectCount());
                return false;
            }
            if (frame.object.kind == BinaryObjectKind::dictionary && i < frame.object.count) {
                BinaryObject key;
                if (!plist.object(child, key, error))
                    return false;
                if (key.kind != BinaryObjectKind::asciiText &&
                    key.kind != BinaryObjectKind::utf16Text) {
                    error = "the binary property list is damaged: a key of object " +
                            std::to_string(frame.index) + " is not text";
                    return false;
                }
            }
            if (height[child] == kOnPath) {
                error = "the binary property list is damaged: object " + std::to_string(child) +
                        " contains itself";
                return false;
            }
            if (height[child] == 0) {
                if (!enter(child))
                    return false;
                continue;
            }
            // Already walked: a shared object, counted again here as the parser copies it.
            if (path.size() + height[child] > kMaxNestingDepth)
                return tooDeep();
            frame.nodes = saturatingAdd(frame.nodes, nodes[child]);
            frame.height = std::max(frame.height, static_cast<std::uint16_t>(height[child] + 1));
            if (frame.nodes > maxNodes)
                return tooLarge();
            continue;
        }
        const Frame done = frame;
        path.pop_back();
        height[done.index] = done.height;
        nodes[done.index] = static_cast<std::uint32_t>(
            std::min<std::uint64_t>(done.nodes, std::numeric_limits<std::uint32_t>::max()));
        if (!path.empty()) {
            Frame& parent = path.back();
            parent.nodes = saturatingAdd(parent.nodes, done.nodes);
            parent.height = std::max(parent.height, static_cast<std::uint16_t>(done.height + 1));
            if (parent.nodes > maxNodes)
                return tooLarge();
        }
    }
    return true;
}

} // namespace orrery
