#include "imageio/OpenJpegSupport.h"

#include <algorithm>
#include <cstring>

namespace orrery::imageio::openjpeg {
namespace {

MemoryCursor& cursorOf(void* user) {
    return *static_cast<MemoryCursor*>(user);
}

OPJ_SIZE_T writeBytes(void* buffer, OPJ_SIZE_T length, void* user) {
    MemoryCursor& cursor = cursorOf(user);
    if (cursor.bytes->size() < cursor.position + length)
        cursor.bytes->resize(cursor.position + length);
    std::memcpy(cursor.bytes->data() + cursor.position, buffer, length);
    cursor.position += length;
    return length;
}

OPJ_SIZE_T readBytes(void* buffer, OPJ_SIZE_T length, void* user) {
    MemoryCursor& cursor = cursorOf(user);
    if (cursor.position >= cursor.bytes->size())
        return static_cast<OPJ_SIZE_T>(-1); // end of stream, as OpenJPEG expects it
    const std::size_t count = std::min<std::size_t>(length, cursor.bytes->size() - cursor.position);
    std::memcpy(buffer, cursor.bytes->data() + cursor.position, count);
    cursor.position += count;
    return count;
}

OPJ_OFF_T skipBytes(OPJ_OFF_T length, void* user) {
    MemoryCursor& cursor = cursorOf(user);
    if (length < 0 && static_cast<std::size_t>(-length) > cursor.position)
        return -1;
    cursor.position = static_cast<std::size_t>(static_cast<OPJ_OFF_T>(cursor.position) + length);
    return length;
}

OPJ_BOOL seekTo(OPJ_OFF_T position, void* user) {
    if (position < 0)
        return OPJ_FALSE;
    cursorOf(user).position = static_cast<std::size_t>(position);
    return OPJ_TRUE;
}

void appendMessage(const char* message, void* user) {
    auto& errors = *static_cast<std::string*>(user);
    if (!errors.empty())
        return;
    errors = message;
    while (!errors.empty() && (errors.back() == '\n' || errors.back() == ' '))
        errors.pop_back();
}

void ignoreMessage(const char*, void*) {}

StreamPtr makeStream(MemoryCursor& cursor, bool input) {
    StreamPtr stream(opj_stream_create(OPJ_J2K_STREAM_CHUNK_SIZE, input ? OPJ_TRUE : OPJ_FALSE));
    if (!stream)
        return stream;
    if (input) {
        opj_stream_set_read_function(stream.get(), readBytes);
        opj_stream_set_user_data_length(stream.get(), cursor.bytes->size());
    } else {
        opj_stream_set_write_function(stream.get(), writeBytes);
    }
    opj_stream_set_skip_function(stream.get(), skipBytes);
    opj_stream_set_seek_function(stream.get(), seekTo);
    opj_stream_set_user_data(stream.get(), &cursor, nullptr);
    return stream;
}

} // namespace

StreamPtr writeStream(MemoryCursor& cursor) {
    return makeStream(cursor, false);
}
StreamPtr readStream(MemoryCursor& cursor) {
    return makeStream(cursor, true);
}

void collectErrors(opj_codec_t* codec, std::string& errors) {
    opj_set_error_handler(codec, appendMessage, &errors);
    opj_set_warning_handler(codec, ignoreMessage, nullptr);
    opj_set_info_handler(codec, ignoreMessage, nullptr);
}

} // namespace orrery::imageio::openjpeg
