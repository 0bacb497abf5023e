#pragma once

#include <openjpeg.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The plumbing that OpenJPEG needs for work in memory: streams over a byte vector and
// handles that free themselves.
namespace orrery::imageio::openjpeg {

struct CodecDeleter {
    void operator()(opj_codec_t* p) const { opj_destroy_codec(p); }
};
struct StreamDeleter {
    void operator()(opj_stream_t* p) const { opj_stream_destroy(p); }
};
struct ImageDeleter {
    void operator()(opj_image_t* p) const { opj_image_destroy(p); }
};
using CodecPtr = std::unique_ptr<opj_codec_t, CodecDeleter>;
using StreamPtr = std::unique_ptr<opj_stream_t, StreamDeleter>;
using ImagePtr = std::unique_ptr<opj_image_t, ImageDeleter>;

// A position in a byte vector; the stream reads from it or writes into it (growing it).
struct MemoryCursor {
    std::vector<std::uint8_t>* bytes = nullptr;
    std::size_t position = 0;
};

StreamPtr writeStream(MemoryCursor& cursor);
StreamPtr readStream(MemoryCursor& cursor);

// Collects the codec's error messages (the first one says most); warnings and
// information are dropped.
void collectErrors(opj_codec_t* codec, std::string& errors);

} // namespace orrery::imageio::openjpeg
