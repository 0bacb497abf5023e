#include "core/package/LightColorArchive.h"

#include "core/package/KeyedArchive.h"
#include "core/package/KeyedArchiveWriter.h"

#include <vector>

namespace orrery {
namespace {
constexpr std::size_t kStoredCopies = 5;
} // namespace

std::string encodeLightColorArchive(const Color& color) {
    KeyedArchiveWriter writer;
    // One colour object referred to five times: the five entries are equal, so they share it.
    const std::vector<KeyedArchiveWriter::Entry> copies(kStoredCopies, writer.color(color));
    const auto root = writer.array(copies, KeyedArchiveWriter::ArrayClass::array);
    std::string bytes;
    std::string error;
    // Five colours are a few hundred bytes, far inside the limits.
    writer.finish(root, kLightColorArchiveLimits, bytes, error);
    return bytes;
}

bool decodeLightColorArchive(const std::string& bytes, Color& color, std::string& error) {
    const auto archive = KeyedArchive::read(bytes, kLightColorArchiveLimits, error);
    if (!archive)
        return false;
    const auto* list = std::get_if<ArchivedArray>(&archive->object(archive->root()));
    if (list == nullptr || list->items.empty()) {
        error = "the archive does not hold a list of colours";
        return false;
    }
    const auto* first = std::get_if<Color>(&archive->object(list->items.front()));
    if (first == nullptr) {
        error = "the first light colour is not a colour";
        return false;
    }
    color = *first;
    return true;
}

} // namespace orrery
