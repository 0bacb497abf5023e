#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orrery::imageio {

// The bytes of an encoded picture, or why there are none. Encoders work in memory, so a
// failure never leaves anything on disk.
struct EncodedImage {
    std::vector<std::uint8_t> bytes;
    std::string error; // empty on success; a short phrase that follows a file name

    bool ok() const { return error.empty(); }
    static EncodedImage failure(std::string why) { return {{}, std::move(why)}; }
};

} // namespace orrery::imageio
