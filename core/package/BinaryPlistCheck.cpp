#include "core/package/BinaryPlistCheck.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace orrery {
namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::uint64_t kTrailerSize = 32;

std::uint64_t readBigEndian(std::string_view bytes, std::uint64_t at, unsigned size) {
    std::uint64_t value = 0;
    for (unsigned i = 0; i < size; ++i)
        value = (value << 8) | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

std::uint64_t saturatingAdd(std::uint64_t a, std::uint64_t b) {
    return a > std::numeric_limits<std::uint64_t>::max() - b
               ? std::numeric_limits<std::uint64_t>::max()
               : a + b;
}

enum class ObjectKind { scalar, text, array, dictionary };

struct ObjectHeader {
    ObjectKind kind = ObjectKind::scalar;
    std::uint64_t refsAt = 0; // where a container's references start
    std::uint64_t count = 0;  // elements of an array, entries of a dictionary
};

class BinaryPlist {
public:
    explicit BinaryPlist(std::string_view bytes) : bytes_(bytes) {}

    bool readTrailer(std::uint64_t maxObjects, std::string& error) {
        if (bytes_.size() < kMagic.size() + kTrailerSize + 1 ||
            bytes_.substr(0, kMagic.size()) != kMagic) {
            error = "not a binary property list";
            return false;
        }
        const std::uint64_t trailer = bytes_.size() - kTrailerSize;
        offsetSize_ = static_cast<unsigned char>(bytes_[trailer + 6]);
        refSize_ = static_cast<unsigned char>(bytes_[trailer + 7]);
        objectCount_ = readBigEndian(bytes_, trailer + 8, 8);
        top_ = readBigEndian(bytes_, trailer + 16, 8);
        tableAt_ = readBigEndian(bytes_, trailer + 24, 8);
        if (offsetSize_ < 1 || offsetSize_ > 8 || refSize_ < 1 || refSize_ > 8)
            return damaged("impossible integer sizes in its trailer", error);
        if (tableAt_ < kMagic.size() || tableAt_ > trailer)
            return damaged("its offset table lies outside the file", error);
        if (objectCount_ == 0 || objectCount_ > (trailer - tableAt_) / offsetSize_)
            return damaged("its offset table does not fit in the file", error);
        if (top_ >= objectCount_)
            return damaged("its root object does not exist", error);
        if (objectCount_ > maxObjects) {
            error = "the property list holds more than " + std::to_string(maxObjects) +
                    " objects, more than any package needs";
            return false;
        }
        return true;
    }

    std::uint64_t objectCount() const { return objectCount_; }
    std::uint64_t top() const { return top_; }

    // Decodes the marker of object `index` and checks that its contents lie in the object
    // area (between the header and the offset table).
    bool header(std::uint64_t index, ObjectHeader& out, std::string& error) const {
        const std::uint64_t at = readBigEndian(bytes_, tableAt_ + index * offsetSize_, offsetSize_);
        if (at < kMagic.size() || at >= tableAt_)
            return damaged("object " + std::to_string(index) + " lies outside the object area",
                           error);
        const unsigned marker = static_cast<unsigned char>(bytes_[at]);
        const unsigned type = marker >> 4;
        const unsigned low = marker & 0x0F;
        std::uint64_t pos = at + 1;
        const std::uint64_t room = tableAt_ - pos;
        out = ObjectHeader{};
        switch (type) {
        case 0x0: // false, true
            if (low == 0x8 || low == 0x9)
                return true;
            break;
        case 0x1: // integer of 1, 2, 4, 8 or 16 bytes
            if (low <= 4)
                return fits(std::uint64_t{1} << low, room, index, error);
            break;
        case 0x2: // real of 4 or 8 bytes
            if (low == 2 || low == 3)
                return fits(std::uint64_t{1} << low, room, index, error);
            break;
        case 0x3: // date
            if (low == 3)
                return fits(8, room, index, error);
            break;
        case 0x8: // UID of 1 to 8 bytes
            if (low < 8)
                return fits(low + 1, room, index, error);
            break;
        case 0x4: // data
        case 0x5: // ASCII text
        case 0x6: // UTF-16 text
        case 0xA: // array
        case 0xD: // dictionary
        {
            std::uint64_t count = low;
            if (low == 0x0F && !readLongCount(pos, count, index, error))
                return false;
            const std::uint64_t unit = type == 0x4 || type == 0x5 ? 1
                                       : type == 0x6              ? 2
                                       : type == 0xA              ? refSize_
                                                                  : 2u * refSize_;
            if (count > (tableAt_ - pos) / unit)
                return damaged("object " + std::to_string(index) + " runs past the object area",
                               error);
            out.kind = type == 0x5 || type == 0x6 ? ObjectKind::text
                       : type == 0xA              ? ObjectKind::array
                       : type == 0xD              ? ObjectKind::dictionary
                                                  : ObjectKind::scalar;
            out.refsAt = pos;
            out.count = count;
            return true;
        }
        default:
            break;
        }
        error = "object " + std::to_string(index) + " has a type (marker " +
                std::to_string(marker) + ") that a package never holds";
        return false;
    }

    // Number of references a container holds: a dictionary's keys come first, then its
    // values.
    static std::uint64_t referenceCount(const ObjectHeader& h) {
        return h.kind == ObjectKind::dictionary ? 2 * h.count
               : h.kind == ObjectKind::array    ? h.count
                                                : 0;
    }

    std::uint64_t reference(const ObjectHeader& h, std::uint64_t i) const {
        return readBigEndian(bytes_, h.refsAt + i * refSize_, refSize_);
    }

private:
    bool readLongCount(std::uint64_t& pos, std::uint64_t& count, std::uint64_t index,
                       std::string& error) const {
        if (pos >= tableAt_)
            return damaged("object " + std::to_string(index) + " is cut short", error);
        const unsigned marker = static_cast<unsigned char>(bytes_[pos]);
        if ((marker >> 4) != 0x1 || (marker & 0x0F) > 3)
            return damaged("object " + std::to_string(index) + " has a malformed length", error);
        const unsigned size = 1u << (marker & 0x0F);
        if (size > tableAt_ - pos - 1)
            return damaged("object " + std::to_string(index) + " is cut short", error);
        count = readBigEndian(bytes_, pos + 1, size);
        pos += 1 + size;
        return true;
    }

    static bool fits(std::uint64_t size, std::uint64_t room, std::uint64_t index,
                     std::string& error) {
        if (size <= room)
            return true;
        return damaged("object " + std::to_string(index) + " runs past the object area", error);
    }

    static bool damaged(const std::string& what, std::string& error) {
        error = "the binary property list is damaged: " + what;
        return false;
    }

    std::string_view bytes_;
    unsigned offsetSize_ = 0;
    unsigned refSize_ = 0;
    std::uint64_t objectCount_ = 0;
    std::uint64_t top_ = 0;
    std::uint64_t tableAt_ = 0;
};

// Per object, once visited: the height of its subtree and its node count. A height of
// zero means "not visited yet"; kOnPath marks an object whose subtree is being walked.
constexpr std::uint16_t kOnPath = std::numeric_limits<std::uint16_t>::max();

struct Frame {
    std::uint64_t index;
    ObjectHeader header;
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
        if (!plist.header(index, frame.header, error))
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
        if (frame.next < BinaryPlist::referenceCount(frame.header)) {
            const std::uint64_t i = frame.next++;
            const std::uint64_t child = plist.reference(frame.header, i);
            if (child >= plist.objectCount()) {
                error = "the binary property list is damaged: object " +
                        std::to_string(frame.index) + " refers to object " + std::to_string(child) +
                        ", but there are only " + std::to_string(plist.objectCount());
                return false;
            }
            if (frame.header.kind == ObjectKind::dictionary && i < frame.header.count) {
                ObjectHeader key;
                if (!plist.header(child, key, error))
                    return false;
                if (key.kind != ObjectKind::text) {
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
