#include "core/animate/FrameFiles.h"

#include "core/model/WholeNumber.h"

#include <cstdio>

namespace orrery {

std::string frameFileName(std::string_view stem, int frame) {
    char number[16];
    std::snprintf(number, sizeof number, "%04d", frame + 1);
    return std::string(stem) + "_" + number + ".png";
}

std::string frameStem(std::string_view folderPath) {
    while (!folderPath.empty() && folderPath.back() == '/')
        folderPath.remove_suffix(1);
    const std::size_t slash = folderPath.find_last_of('/');
    const std::string_view name =
        slash == std::string_view::npos ? folderPath : folderPath.substr(slash + 1);
    if (name.empty() || name == "." || name == "..")
        return "frame";
    return std::string(name);
}

std::optional<FrameRange> parseFrameRange(std::string_view text, int frames, std::string& error) {
    const std::size_t dash = text.find('-');
    const std::optional<int> first =
        dash == std::string_view::npos ? std::nullopt : wholeNumber<int>(text.substr(0, dash));
    const std::optional<int> last =
        dash == std::string_view::npos ? std::nullopt : wholeNumber<int>(text.substr(dash + 1));
    if (!first || !last || *first < 1 || *last < *first || *last > frames) {
        error = "--range needs FIRST-LAST with 1 <= FIRST <= LAST <= " + std::to_string(frames) +
                ", not \"" + std::string(text) + "\"";
        return std::nullopt;
    }
    return FrameRange{*first - 1, *last - 1};
}

} // namespace orrery
