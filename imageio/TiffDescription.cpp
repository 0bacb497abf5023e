#include "imageio/TiffDescription.h"

#include <algorithm>
#include <array>
#include <limits>

namespace orrery::imageio {
namespace {

constexpr std::uint16_t kDescriptionTag = 270;
constexpr std::uint16_t kAsciiType = 2;
constexpr std::size_t kEntryBytes = 12;
using Entry = std::array<std::uint8_t, kEntryBytes>;

// Numbers in the file's own byte order.
class Endian {
public:
    explicit Endian(bool little) : little_(little) {}

    std::uint32_t read(const std::uint8_t* from, int size) const {
        std::uint32_t value = 0;
        for (int i = 0; i < size; ++i)
            value |= std::uint32_t{from[i]} << (8 * (little_ ? i : size - 1 - i));
        return value;
    }
    std::uint32_t read(const std::vector<std::uint8_t>& b, std::size_t at, int size) const {
        return read(b.data() + at, size);
    }
    void put(std::uint8_t* to, std::uint32_t value, int size) const {
        for (int i = 0; i < size; ++i)
            to[i] = static_cast<std::uint8_t>(value >> (8 * (little_ ? i : size - 1 - i)));
    }

private:
    bool little_;
};

} // namespace

bool setTiffDescription(std::vector<std::uint8_t>& tiff, std::string_view text) {
    if (tiff.size() < 8 || !(tiff[0] == tiff[1] && (tiff[0] == 'I' || tiff[0] == 'M')))
        return false;
    const Endian endian(tiff[0] == 'I');
    const std::size_t directory = endian.read(tiff, 4, 4);
    if (endian.read(tiff, 2, 2) != 42 || directory > tiff.size() - 2)
        return false;
    const std::size_t count = endian.read(tiff, directory, 2);
    const std::size_t entriesEnd = directory + 2 + count * kEntryBytes;
    if (entriesEnd + 4 > tiff.size())
        return false;

    std::vector<Entry> entries;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = directory + 2 + i * kEntryBytes;
        if (endian.read(tiff, at, 2) == kDescriptionTag)
            continue; // replaced below
        auto& entry = entries.emplace_back();
        std::copy_n(tiff.begin() + static_cast<std::ptrdiff_t>(at), kEntryBytes, entry.begin());
    }
    const std::uint32_t nextDirectory = endian.read(tiff, entriesEnd, 4);
    const std::size_t grownSize =
        tiff.size() + 2 + text.size() + 2 + 2 + (entries.size() + 1) * kEntryBytes + 4;
    if (grownSize > std::numeric_limits<std::uint32_t>::max())
        return false;

    // The text (NUL-terminated) and then the new directory, each on a word boundary; a text
    // of four bytes or fewer sits in its entry.
    const auto alignToWord = [&tiff] {
        tiff.resize(tiff.size() + tiff.size() % 2);
    };
    auto& description = entries.emplace_back();
    endian.put(&description[0], kDescriptionTag, 2);
    endian.put(&description[2], kAsciiType, 2);
    endian.put(&description[4], static_cast<std::uint32_t>(text.size() + 1), 4);
    if (text.size() + 1 <= 4) {
        std::copy(text.begin(), text.end(), description.begin() + 8);
    } else {
        alignToWord();
        endian.put(&description[8], static_cast<std::uint32_t>(tiff.size()), 4);
        tiff.insert(tiff.end(), text.begin(), text.end());
        tiff.push_back(0);
    }
    alignToWord();
    const auto tag = [&endian](const Entry& entry) {
        return endian.read(entry.data(), 2);
    };
    // Readers expect the entries in ascending tag order.
    std::stable_sort(entries.begin(), entries.end(),
                     [&](const Entry& a, const Entry& b) { return tag(a) < tag(b); });

    const std::size_t newDirectory = tiff.size();
    std::array<std::uint8_t, 4> number{};
    endian.put(number.data(), static_cast<std::uint32_t>(entries.size()), 2);
    tiff.insert(tiff.end(), number.begin(), number.begin() + 2);
    for (const Entry& entry : entries)
        tiff.insert(tiff.end(), entry.begin(), entry.end());
    endian.put(number.data(), nextDirectory, 4);
    tiff.insert(tiff.end(), number.begin(), number.end());
    endian.put(&tiff[4], static_cast<std::uint32_t>(newDirectory), 4);
    return true;
}

} // namespace orrery::imageio
