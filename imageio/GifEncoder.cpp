#include "imageio/GifEncoder.h"

#include "imageio/GifPalette.h"

#include <gif_lib.h>

#include <cstring>

namespace orrery::imageio {

std::string gifErrorText(int code) {
    const char* text = GifErrorString(code);
    return std::string("the GIF writer failed: ") + (text ? text : "unknown error");
}

// giflib wants a colour map whose size is a power of two; the unused tail stays black.
ColorMapObject* makeGifColorMap(const std::vector<PaletteColor>& palette) {
    const int size = 1 << GifBitSize(static_cast<int>(palette.size()));
    ColorMapObject* map = GifMakeMapObject(size, nullptr);
    if (map == nullptr)
        return nullptr;
    for (int i = 0; i < size; ++i) {
        const PaletteColor c = i < static_cast<int>(palette.size())
                                   ? palette[static_cast<std::size_t>(i)]
                                   : PaletteColor{};
        map->Colors[i] = GifColorType{c.red, c.green, c.blue};
    }
    return map;
}

std::string putGifRows(GifFileType* gif, const std::vector<std::uint8_t>& indices, int width,
                       int height) {
    std::vector<GifPixelType> row(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        std::memcpy(row.data(), indices.data() + static_cast<std::size_t>(y) * row.size(),
                    row.size());
        if (EGifPutLine(gif, row.data(), width) == GIF_ERROR)
            return gifErrorText(gif->Error);
    }
    return {};
}

namespace {

int appendToBuffer(GifFileType* gif, const GifByteType* data, int length) {
    auto* bytes = static_cast<std::vector<std::uint8_t>*>(gif->UserData);
    bytes->insert(bytes->end(), data, data + length);
    return length;
}

// Writes the whole file; returns an empty text on success. The caller closes the file.
std::string writeGif(GifFileType* gif, const IndexedImage& indexed, int width, int height) {
    // The transparent index needs the GIF89a header and its graphics-control block.
    EGifSetGifVersion(gif, true);
    ColorMapObject* map = makeGifColorMap(indexed.palette);
    if (map == nullptr)
        return "out of memory for the GIF palette";
    const int screenStatus = EGifPutScreenDesc(gif, width, height, map->BitsPerPixel, 0, map);
    GifFreeMapObject(map);
    if (screenStatus == GIF_ERROR)
        return gifErrorText(gif->Error);

    GraphicsControlBlock control{};
    control.DisposalMode = DISPOSAL_UNSPECIFIED;
    control.DelayTime = 0;
    control.TransparentColor =
        indexed.transparentIndex ? *indexed.transparentIndex : NO_TRANSPARENT_COLOR;
    GifByteType extension[4];
    const std::size_t extensionLength = EGifGCBToExtension(&control, extension);
    if (EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(extensionLength),
                         extension) == GIF_ERROR ||
        EGifPutImageDesc(gif, 0, 0, width, height, false, nullptr) == GIF_ERROR)
        return gifErrorText(gif->Error);

    return putGifRows(gif, indexed.indices, width, height);
}

} // namespace

EncodedImage encodeGif(const Image& image) {
    if (image.isNull())
        return EncodedImage::failure("the picture is empty");
    if (image.width > kMaxGifSide || image.height > kMaxGifSide)
        return EncodedImage::failure("a GIF picture is at most 65535 pixels wide and high");

    std::string error;
    const std::optional<IndexedImage> indexed = quantizeForGif(image, error);
    if (!indexed)
        return EncodedImage::failure(error);

    std::vector<std::uint8_t> bytes;
    int openError = 0;
    GifFileType* gif = EGifOpen(&bytes, appendToBuffer, &openError);
    if (gif == nullptr)
        return EncodedImage::failure(gifErrorText(openError));
    error = writeGif(gif, *indexed, image.width, image.height);
    int closeError = 0;
    // EGifCloseFile frees the handle even when it reports an error.
    if (EGifCloseFile(gif, &closeError) == GIF_ERROR && error.empty())
        error = gifErrorText(closeError);
    if (!error.empty())
        return EncodedImage::failure(error);
    return {std::move(bytes), {}};
}

} // namespace orrery::imageio
