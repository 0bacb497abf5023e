#include "core/animate/AnimationFormat.h"

#include "core/export/ExportFormat.h"

#include <algorithm>
#include <array>

namespace orrery {
namespace {

constexpr std::array<AnimationFormatInfo, 6> kFormats{{
    {AnimationFormat::gif, "gif", true, false},
    {AnimationFormat::webp, "webp", true, true},
    {AnimationFormat::webm, "webm", true, true},
    {AnimationFormat::mp4, "mp4", false, true},
    {AnimationFormat::spriteSheet, "png", true, false},
    {AnimationFormat::frames, "", true, false},
}};

} // namespace

const AnimationFormatInfo& animationFormatInfo(AnimationFormat format) {
    return kFormats[static_cast<std::size_t>(format)];
}

std::optional<AnimationFormat> animationFormatForPath(std::string_view path) {
    if (path.empty())
        return std::nullopt;
    if (path.back() == '/')
        return AnimationFormat::frames;
    const std::string extension = lowercaseExtension(path);
    const auto* match =
        std::find_if(kFormats.begin(), kFormats.end(), [&](const AnimationFormatInfo& info) {
            return !info.extension.empty() && info.extension == extension;
        });
    if (match == kFormats.end())
        return std::nullopt;
    return match->format;
}

} // namespace orrery
