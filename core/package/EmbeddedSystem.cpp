#include "core/package/EmbeddedSystem.h"

#include "core/package/PackageJson.h"
#include "core/package/ProjectSettings.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace orrery {
namespace {

// A JPEG comment segment holds 65,533 bytes, and Qt's writer cuts a comment at 65,530,
// its key and ": " included.
constexpr std::size_t kPieceBytes = 60000;
// 100,000 planets take about 25 MB of JSON.
constexpr std::size_t kMaxSystemBytes = std::size_t{256} << 20;

std::string pieceKey(std::size_t number) {
    return number == 1 ? std::string(kSystemKeyword)
                       : std::string(kSystemKeyword) + "." + std::to_string(number);
}

// The piece number a key names; 0 for a key that is not ours.
std::size_t pieceNumber(std::string_view key) {
    if (!key.starts_with(kSystemKeyword))
        return 0;
    key.remove_prefix(kSystemKeyword.size());
    if (key.empty())
        return 1;
    std::size_t number = 0;
    if (key.front() != '.' ||
        std::from_chars(key.data() + 1, key.data() + key.size(), number).ptr !=
            key.data() + key.size())
        return 0;
    return number >= 2 ? number : 0;
}

// The pieces joined in order; empty when there are none or one is missing.
std::string joinedPieces(const std::vector<PictureText>& fields) {
    std::map<std::size_t, const std::string*> pieces;
    for (const PictureText& field : fields)
        if (const std::size_t number = pieceNumber(field.key); number != 0)
            pieces.emplace(number, &field.value);
    std::string joined;
    std::size_t expected = 1;
    for (const auto& [number, value] : pieces) {
        if (number != expected++)
            return {};
        joined += *value;
    }
    return joined;
}

} // namespace

std::vector<PictureText> systemTextFields(const OpenedProject& project, ExportFormat format) {
    std::string json = packageJson(project, false)
                           .dump(-1, ' ', true, nlohmann::ordered_json::error_handler_t::replace);
    if (format != ExportFormat::jpeg)
        return {{pieceKey(1), std::move(json)}};
    std::vector<PictureText> fields;
    for (std::size_t at = 0; at < json.size(); at += kPieceBytes)
        fields.push_back({pieceKey(fields.size() + 1), json.substr(at, kPieceBytes)});
    return fields;
}

bool systemFromPicture(std::span<const std::uint8_t> bytes, OpenedProject& project,
                       std::string& error) {
    if (pictureKind(bytes) == PictureKind::other) {
        error = "neither a package nor a PNG, TIFF or JPEG picture";
        return false;
    }
    const std::string json = joinedPieces(pictureTexts(bytes, kMaxSystemBytes));
    if (json.empty()) {
        error = "this picture carries no system";
        return false;
    }
    const std::optional<ProjectDocument> document = documentFromJsonText(json, error);
    if (!document) {
        error = "the system in this picture is damaged: " + error;
        return false;
    }
    project = openedProject(*document);
    return true;
}

} // namespace orrery
