#include "core/package/BinaryPlist.h"

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

bool damaged(const std::string& what, std::string& error) {
    error = "the binary property list is damaged: " + what;
    return false;
}

bool fits(std::uint64_t size, std::uint64_t room, std::uint64_t index, std::string& error) {
    if (size <= room)
        return true;
    return damaged("object " + std::to_string(index) + " runs past the object area", error);
}

void appendUtf8(std::string& out, char32_t code) {
    if (code < 0x80) {
        out.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (code >> 6)));
        out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
    } else if (code < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (code >> 12)));
        out.push_back(static_cast<char>(0x80 | ((code >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (code >> 18)));
        out.push_back(static_cast<char>(0x80 | ((code >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((code >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
    }
}

} // namespace

bool BinaryPlist::readTrailer(std::uint64_t maxObjects, std::string& error) {
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

bool BinaryPlist::object(std::uint64_t index, BinaryObject& out, std::string& error) const {
    const std::uint64_t at = readBigEndian(bytes_, tableAt_ + index * offsetSize_, offsetSize_);
    if (at < kMagic.size() || at >= tableAt_)
        return damaged("object " + std::to_string(index) + " lies outside the object area", error);
    const unsigned marker = static_cast<unsigned char>(bytes_[at]);
    const unsigned type = marker >> 4;
    const unsigned low = marker & 0x0F;
    std::uint64_t pos = at + 1;
    const std::uint64_t room = tableAt_ - pos;
    out = BinaryObject{};
    out.contentAt = pos;
    const auto sized = [&](BinaryObjectKind kind, std::uint64_t size) {
        out.kind = kind;
        out.count = size;
        return fits(size, room, index, error);
    };
    switch (type) {
    case 0x0: // false, true
        if (low == 0x8 || low == 0x9)
            return sized(BinaryObjectKind::boolean, 0);
        break;
    case 0x1: // integer of 1, 2, 4, 8 or 16 bytes
        if (low <= 4)
            return sized(BinaryObjectKind::integer, std::uint64_t{1} << low);
        break;
    case 0x2: // real of 4 or 8 bytes
        if (low == 2 || low == 3)
            return sized(BinaryObjectKind::real, std::uint64_t{1} << low);
        break;
    case 0x3: // date
        if (low == 3)
            return sized(BinaryObjectKind::date, 8);
        break;
    case 0x8: // UID of 1 to 8 bytes
        if (low < 8)
            return sized(BinaryObjectKind::uid, low + 1);
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
            return damaged("object " + std::to_string(index) + " runs past the object area", error);
        out.kind = type == 0x4   ? BinaryObjectKind::data
                   : type == 0x5 ? BinaryObjectKind::asciiText
                   : type == 0x6 ? BinaryObjectKind::utf16Text
                   : type == 0xA ? BinaryObjectKind::array
                                 : BinaryObjectKind::dictionary;
        out.contentAt = pos;
        out.count = count;
        return true;
    }
    default:
        break;
    }
    error = "object " + std::to_string(index) + " has a type (marker " + std::to_string(marker) +
            ") that a package never holds";
    return false;
}

std::uint64_t BinaryPlist::referenceCount(const BinaryObject& container) {
    return container.kind == BinaryObjectKind::dictionary ? 2 * container.count
           : container.kind == BinaryObjectKind::array    ? container.count
                                                          : 0;
}

std::uint64_t BinaryPlist::reference(const BinaryObject& container, std::uint64_t i) const {
    return readBigEndian(bytes_, container.contentAt + i * refSize_, refSize_);
}

std::uint64_t BinaryPlist::unsignedValue(const BinaryObject& object) const {
    // A 16-byte integer keeps its low 64 bits last.
    const std::uint64_t size = object.count > 8 ? 8 : object.count;
    return readBigEndian(bytes_, object.contentAt + object.count - size,
                         static_cast<unsigned>(size));
}

std::string_view BinaryPlist::contents(const BinaryObject& object) const {
    const std::uint64_t unit = object.kind == BinaryObjectKind::utf16Text ? 2 : 1;
    return bytes_.substr(object.contentAt, object.count * unit);
}

bool BinaryPlist::readLongCount(std::uint64_t& pos, std::uint64_t& count, std::uint64_t index,
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

std::string utf8FromUtf16BigEndian(std::string_view units) {
    std::string out;
    out.reserve(units.size());
    const auto unitAt = [&](std::size_t i) {
        return static_cast<char16_t>((static_cast<unsigned char>(units[2 * i]) << 8) |
                                     static_cast<unsigned char>(units[2 * i + 1]));
    };
    const std::size_t count = units.size() / 2;
    for (std::size_t i = 0; i < count; ++i) {
        const char16_t unit = unitAt(i);
        const bool high = unit >= 0xD800 && unit < 0xDC00;
        const bool low = unit >= 0xDC00 && unit < 0xE000;
        if (high && i + 1 < count && unitAt(i + 1) >= 0xDC00 && unitAt(i + 1) < 0xE000) {
            appendUtf8(out, 0x10000 + ((char32_t{unit} - 0xD800) << 10) +
                                (char32_t{unitAt(i + 1)} - 0xDC00));
            ++i;
        } else {
            appendUtf8(out, high || low ? char32_t{0xFFFD} : char32_t{unit});
        }
    }
    return out;
}

} // namespace orrery
