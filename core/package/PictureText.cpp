#include "core/package/PictureText.h"

#include <zlib.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace orrery {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint8_t kPngSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};

std::uint32_t bigEndian(Bytes b, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value = (value << 8) | b[at + i];
    return value;
}

std::uint32_t littleEndian(Bytes b, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;)
        value = (value << 8) | b[at + i];
    return value;
}

std::string text(Bytes b) {
    return {reinterpret_cast<const char*>(b.data()), b.size()};
}

// A zlib stream inflated whole; false when it is broken or would grow beyond maxBytes.
bool inflated(Bytes compressed, std::size_t maxBytes, std::string& out) {
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return false;
    stream.next_in = const_cast<Bytef*>(compressed.data());
    stream.avail_in = static_cast<uInt>(compressed.size());
    char buffer[1 << 15];
    int status = Z_OK;
    while (status == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef*>(buffer);
        stream.avail_out = sizeof buffer;
        status = inflate(&stream, Z_NO_FLUSH);
        out.append(buffer, sizeof buffer - stream.avail_out);
        if (out.size() > maxBytes || (status == Z_BUF_ERROR && stream.avail_in == 0))
            status = Z_DATA_ERROR;
    }
    inflateEnd(&stream);
    return status == Z_STREAM_END;
}

// tEXt: keyword, NUL, text. zTXt: keyword, NUL, method, zlib stream. iTXt: keyword, NUL,
// compressed flag, method, language tag, NUL, translated keyword, NUL, text.
void pngText(std::string_view type, Bytes data, std::size_t maxBytes,
             std::vector<PictureText>& out) {
    const auto nul = std::find(data.begin(), data.end(), 0);
    if (nul == data.end())
        return;
    const std::size_t keyEnd = static_cast<std::size_t>(nul - data.begin());
    PictureText field{text(data.first(keyEnd)), {}};
    Bytes rest = data.subspan(keyEnd + 1);
    bool compressed = type == "zTXt";
    if (type == "zTXt") {
        if (rest.empty())
            return;
        rest = rest.subspan(1);
    } else if (type == "iTXt") {
        if (rest.size() < 2)
            return;
        compressed = rest[0] != 0;
        rest = rest.subspan(2);
        for (int skipped = 0; skipped < 2; ++skipped) {
            const auto end = std::find(rest.begin(), rest.end(), 0);
            if (end == rest.end())
                return;
            rest = rest.subspan(static_cast<std::size_t>(end - rest.begin()) + 1);
        }
    }
    if (!compressed)
        field.value = text(rest.first(std::min(rest.size(), maxBytes)));
    else if (!inflated(rest, maxBytes, field.value))
        return;
    out.push_back(std::move(field));
}

void pngTexts(Bytes b, std::size_t maxBytes, std::vector<PictureText>& out) {
    std::size_t at = sizeof kPngSignature;
    while (at + 12 <= b.size()) {
        const std::size_t length = bigEndian(b, at, 4);
        if (length > b.size() - at - 12)
            return;
        const std::string type = text(b.subspan(at + 4, 4));
        if (type == "tEXt" || type == "zTXt" || type == "iTXt")
            pngText(type, b.subspan(at + 8, length), maxBytes, out);
        if (type == "IEND")
            return;
        at += length + 12;
    }
}

// A comment segment as Qt writes it: "key: value"; a comment of another program is its
// value alone.
PictureText keyedText(std::string whole) {
    const std::size_t colon = whole.find(": ");
    if (colon == std::string::npos || whole.find_first_of(" \n{", 0) < colon)
        return {{}, std::move(whole)};
    return {whole.substr(0, colon), whole.substr(colon + 2)};
}

void jpegTexts(Bytes b, std::vector<PictureText>& out) {
    constexpr std::uint8_t kComment = 0xfe;
    constexpr std::uint8_t kStartOfScan = 0xda;
    std::size_t at = 2;
    while (at + 4 <= b.size() && b[at] == 0xff) {
        const std::uint8_t marker = b[at + 1];
        if (marker == 0xff) { // fill byte
            ++at;
            continue;
        }
        const std::size_t length = bigEndian(b, at + 2, 2);
        if (length < 2 || length > b.size() - at - 2)
            return;
        if (marker == kComment)
            out.push_back(keyedText(text(b.subspan(at + 4, length - 2))));
        if (marker == kStartOfScan)
            return;
        at += 2 + length;
    }
}

// The ImageDescription tag (270) of the first image file directory.
void tiffTexts(Bytes b, std::vector<PictureText>& out) {
    const bool little = b[0] == 'I';
    const auto number = [&](std::size_t at, std::size_t size) -> std::uint32_t {
        return little ? littleEndian(b, at, size) : bigEndian(b, at, size);
    };
    const std::size_t directory = number(4, 4);
    if (directory > b.size() - 2)
        return;
    const std::size_t entries = number(directory, 2);
    for (std::size_t i = 0; i < entries; ++i) {
        const std::size_t entry = directory + 2 + 12 * i;
        if (entry + 12 > b.size())
            return;
        constexpr std::uint32_t kDescription = 270;
        constexpr std::uint32_t kAscii = 2;
        if (number(entry, 2) != kDescription || number(entry + 2, 2) != kAscii)
            continue;
        const std::size_t count = number(entry + 4, 4);
        const std::size_t at = count <= 4 ? entry + 8 : number(entry + 8, 4);
        if (at > b.size() || count > b.size() - at)
            return;
        std::string value = text(b.subspan(at, count));
        value.erase(std::find(value.begin(), value.end(), '\0'), value.end());
        out.push_back(keyedText(std::move(value)));
        return;
    }
}

} // namespace

PictureKind pictureKind(Bytes bytes) {
    if (bytes.size() >= 8 && std::equal(bytes.begin(), bytes.begin() + 8, kPngSignature))
        return PictureKind::png;
    if (bytes.size() >= 8 &&
        ((bytes[0] == 'I' && bytes[1] == 'I' && bytes[2] == 42 && bytes[3] == 0) ||
         (bytes[0] == 'M' && bytes[1] == 'M' && bytes[2] == 0 && bytes[3] == 42)))
        return PictureKind::tiff;
    if (bytes.size() >= 4 && bytes[0] == 0xff && bytes[1] == 0xd8)
        return PictureKind::jpeg;
    return PictureKind::other;
}

std::vector<PictureText> pictureTexts(Bytes bytes, std::size_t maxTextBytes) {
    std::vector<PictureText> texts;
    switch (pictureKind(bytes)) {
    case PictureKind::png:
        pngTexts(bytes, maxTextBytes, texts);
        break;
    case PictureKind::tiff:
        tiffTexts(bytes, texts);
        break;
    case PictureKind::jpeg:
        jpegTexts(bytes, texts);
        break;
    case PictureKind::other:
        break;
    }
    return texts;
}

} // namespace orrery
