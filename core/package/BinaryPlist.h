#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orrery {

// The object types of a binary property list ("bplist00") that the reader recognises.
enum class BinaryObjectKind {
    boolean,
    integer,
    real,
    date,
    data,
    asciiText,
    utf16Text,
    uid,
    array,
    dictionary
};

// Where one object's contents lie in the file.
struct BinaryObject {
    BinaryObjectKind kind = BinaryObjectKind::boolean;
    std::uint64_t contentAt = 0; // first byte after the marker and any long count
    // Elements of an array, entries of a dictionary, bytes of data and ASCII text, code
    // units of UTF-16 text, bytes of an integer, real, date or UID.
    std::uint64_t count = 0;
};

// A binary property list read in place: nothing is copied, every object is decoded from
// the bytes when asked for. The bytes must outlive the reader.
class BinaryPlist {
public:
    explicit BinaryPlist(std::string_view bytes) : bytes_(bytes) {}

    // Checks the header and the trailer: sizes, offset table and root inside the file, and
    // no more than maxObjects objects.
    bool readTrailer(std::uint64_t maxObjects, std::string& error);

    std::uint64_t objectCount() const { return objectCount_; }
    std::uint64_t top() const { return top_; }

    // Decodes the marker of object `index` and checks that its contents lie in the object
    // area (between the header and the offset table).
    bool object(std::uint64_t index, BinaryObject& out, std::string& error) const;

    // References a container holds: a dictionary's keys come first, then its values.
    static std::uint64_t referenceCount(const BinaryObject& container);
    std::uint64_t reference(const BinaryObject& container, std::uint64_t i) const;

    // The value of an integer (its low 64 bits, as an unsigned number) or a UID.
    std::uint64_t unsignedValue(const BinaryObject& object) const;
    // The raw contents of data or text: bytes, or big-endian UTF-16 code units.
    std::string_view contents(const BinaryObject& object) const;

private:
    bool readLongCount(std::uint64_t& pos, std::uint64_t& count, std::uint64_t index,
                       std::string& error) const;

    std::string_view bytes_;
    unsigned offsetSize_ = 0;
    unsigned refSize_ = 0;
    std::uint64_t objectCount_ = 0;
    std::uint64_t top_ = 0;
    std::uint64_t tableAt_ = 0;
};

// Big-endian UTF-16 code units as UTF-8; an unpaired surrogate becomes U+FFFD.
std::string utf8FromUtf16BigEndian(std::string_view units);

} // namespace orrery
