#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

// The text fields a picture file carries, read without decoding the picture: a PNG's
// tEXt, zTXt and iTXt chunks, a TIFF's image description, a JPEG's comment segments.
namespace orrery {

struct PictureText {
    std::string key; // the PNG keyword; for TIFF and JPEG the text before ": "
    std::string value;
};

enum class PictureKind { png, tiff, jpeg, other };

PictureKind pictureKind(std::span<const std::uint8_t> bytes);

// Every text field in file order. A damaged file gives the fields read before the damage;
// a compressed field that does not inflate, or would inflate beyond maxTextBytes, is left
// out.
std::vector<PictureText> pictureTexts(std::span<const std::uint8_t> bytes,
                                      std::size_t maxTextBytes);

} // namespace orrery
