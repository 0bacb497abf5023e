#include "core/package/BinaryPlistWriter.h"

#include <limits>

namespace orrery {
namespace {

// Marker nibbles of the object types we write.
constexpr unsigned kInteger = 0x1;
constexpr unsigned kData = 0x4;
constexpr unsigned kAsciiText = 0x5;
constexpr unsigned kUtf16Text = 0x6;
constexpr unsigned kUid = 0x8;
constexpr unsigned kArray = 0xA;
constexpr unsigned kDictionary = 0xD;

// Integer sizes are powers of two: other readers (Python's plistlib among them) accept
// only 1, 2, 4 and 8.
unsigned bytesFor(std::uint64_t value) {
    if (value <= 0xFF)
        return 1;
    if (value <= 0xFFFF)
        return 2;
    if (value <= 0xFFFFFFFF)
        return 4;
    return 8;
}

unsigned log2Of(unsigned size) {
    return size == 1 ? 0 : size == 2 ? 1 : size == 4 ? 2 : 3;
}

void appendBigEndian(std::string& out, std::uint64_t value, unsigned size) {
    for (unsigned i = size; i-- > 0;)
        out.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

// A marker with its element count: in the low nibble when below 15, else as an integer
// object that follows.
void appendMarker(std::string& out, unsigned type, std::uint64_t count) {
    if (count < 15) {
        out.push_back(static_cast<char>((type << 4) | count));
        return;
    }
    out.push_back(static_cast<char>((type << 4) | 0x0F));
    const unsigned size = bytesFor(count);
    out.push_back(static_cast<char>((kInteger << 4) | log2Of(size)));
    appendBigEndian(out, count, size);
}

bool isAscii(std::string_view text) {
    for (char c : text)
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    return true;
}

// UTF-8 to UTF-16 code units; a malformed sequence becomes U+FFFD, one per bad byte.
std::u16string utf16Of(std::string_view text) {
    std::u16string out;
    std::size_t i = 0;
    while (i < text.size()) {
        const auto byte = [&](std::size_t k) {
            return static_cast<unsigned char>(text[k]);
        };
        const unsigned lead = byte(i);
        unsigned length = lead < 0x80                   ? 1
                          : lead >= 0xC2 && lead < 0xE0 ? 2
                          : lead >= 0xE0 && lead < 0xF0 ? 3
                          : lead >= 0xF0 && lead < 0xF5 ? 4
                                                        : 0;
        char32_t code = length == 1   ? lead
                        : length == 2 ? lead & 0x1F
                        : length == 3 ? lead & 0x0F
                                      : lead & 0x07;
        for (unsigned k = 1; k < length; ++k) {
            if (i + k >= text.size() || (byte(i + k) & 0xC0) != 0x80) {
                length = 0;
                break;
            }
            code = (code << 6) | (byte(i + k) & 0x3F);
        }
        const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
        const bool invalid = code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF);
        if (length == 0 || overlong || invalid) {
            out.push_back(u'\uFFFD');
            ++i;
            continue;
        }
        if (code >= 0x10000) {
            code -= 0x10000;
            out.push_back(static_cast<char16_t>(0xD800 + (code >> 10)));
            out.push_back(static_cast<char16_t>(0xDC00 + (code & 0x3FF)));
        } else {
            out.push_back(static_cast<char16_t>(code));
        }
        i += length;
    }
    return out;
}

std::uint64_t saturatingAdd(std::uint64_t a, std::uint64_t b) {
    return a > std::numeric_limits<std::uint64_t>::max() - b
               ? std::numeric_limits<std::uint64_t>::max()
               : a + b;
}

} // namespace

BinaryPlistWriter::Ref BinaryPlistWriter::addLeaf(std::string_view encoded) {
    objects_.push_back({false, false, leafBytes_.size(), encoded.size()});
    nodes_.push_back(1);
    leafBytes_.append(encoded);
    return static_cast<Ref>(objects_.size() - 1);
}

BinaryPlistWriter::Ref BinaryPlistWriter::addContainer(bool dictionary, std::span<const Ref> refs,
                                                       std::uint64_t childNodes) {
    objects_.push_back({true, dictionary, refs_.size(), refs.size()});
    nodes_.push_back(saturatingAdd(childNodes, 1));
    refs_.insert(refs_.end(), refs.begin(), refs.end());
    return static_cast<Ref>(objects_.size() - 1);
}

BinaryPlistWriter::Ref BinaryPlistWriter::text(std::string_view value) {
    const auto found = texts_.find(std::string(value));
    if (found != texts_.end())
        return found->second;
    std::string encoded;
    if (isAscii(value)) {
        appendMarker(encoded, kAsciiText, value.size());
        encoded.append(value);
    } else {
        const std::u16string units = utf16Of(value);
        appendMarker(encoded, kUtf16Text, units.size());
        for (char16_t unit : units)
            appendBigEndian(encoded, unit, 2);
    }
    const Ref ref = addLeaf(encoded);
    texts_.emplace(value, ref);
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::integer(std::int64_t value) {
    std::string encoded;
    // Negative numbers take eight bytes in two's complement, as every writer does.
    const unsigned size = value < 0 ? 8 : bytesFor(static_cast<std::uint64_t>(value));
    encoded.push_back(static_cast<char>((kInteger << 4) | log2Of(size)));
    appendBigEndian(encoded, static_cast<std::uint64_t>(value), size);
    return addLeaf(encoded);
}

BinaryPlistWriter::Ref BinaryPlistWriter::uid(std::uint64_t value) {
    const auto found = uids_.find(value);
    if (found != uids_.end())
        return found->second;
    std::string encoded;
    const unsigned size = bytesFor(value);
    encoded.push_back(static_cast<char>((kUid << 4) | (size - 1)));
    appendBigEndian(encoded, value, size);
    const Ref ref = addLeaf(encoded);
    uids_.emplace(value, ref);
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::data(std::string_view bytes) {
    std::string encoded;
    appendMarker(encoded, kData, bytes.size());
    encoded.append(bytes);
    return addLeaf(encoded);
}

BinaryPlistWriter::Ref BinaryPlistWriter::array(std::span<const Ref> items) {
    std::uint64_t childNodes = 0;
    for (Ref item : items)
        childNodes = saturatingAdd(childNodes, nodes_[item]);
    return addContainer(false, items, childNodes);
}

BinaryPlistWriter::Ref BinaryPlistWriter::dictionary(std::span<const std::pair<Ref, Ref>> entries) {
    std::vector<Ref> refs;
    refs.reserve(2 * entries.size());
    std::uint64_t childNodes = 0;
    for (const auto& entry : entries) {
        refs.push_back(entry.first);
        childNodes = saturatingAdd(childNodes, nodes_[entry.first]);
    }
    for (const auto& entry : entries) {
        refs.push_back(entry.second);
        childNodes = saturatingAdd(childNodes, nodes_[entry.second]);
    }
    return addContainer(true, refs, childNodes);
}

std::string BinaryPlistWriter::finish(Ref top) const {
    const unsigned refSize = bytesFor(objects_.size());
    std::string out = "bplist00";
    std::vector<std::uint64_t> offsets;
    offsets.reserve(objects_.size());
    for (const Object& object : objects_) {
        offsets.push_back(out.size());
        if (!object.container) {
            out.append(leafBytes_, object.begin, object.size);
            continue;
        }
        appendMarker(out, object.dictionary ? kDictionary : kArray,
                     object.dictionary ? object.size / 2 : object.size);
        for (std::uint64_t i = 0; i < object.size; ++i)
            appendBigEndian(out, refs_[object.begin + i], refSize);
    }
    const std::uint64_t tableAt = out.size();
    const unsigned offsetSize = bytesFor(tableAt);
    for (std::uint64_t offset : offsets)
        appendBigEndian(out, offset, offsetSize);
    out.append(6, '\0');
    out.push_back(static_cast<char>(offsetSize));
    out.push_back(static_cast<char>(refSize));
    appendBigEndian(out, objects_.size(), 8);
    appendBigEndian(out, top, 8);
    appendBigEndian(out, tableAt, 8);
    return out;
}

} // namespace orrery
