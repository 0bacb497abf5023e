#pragma once

#include "core/export/ExportFormat.h"

#include <optional>
#include <string>
#include <vector>

namespace orrery::cli {

inline constexpr double kMaxScale = 8.0;

// What `orrery render PACKAGE.kvx -o FILE [--scale S] [--include-background]
// [--quality N]` asks for; options may come in any order around the package.
struct RenderOptions {
    std::string package;
    std::string output;
    ExportFormat format = ExportFormat::png; // from the output's extension
    double scale = 1.0;                      // the backing scale factor, above 0 and at most 8
    bool includeBackground = false;
    int quality = 85; // 0 to 100, for JPEG and JPEG 2000
};

// The arguments after the verb. Every number is checked; gives none with a one-line reason.
std::optional<RenderOptions> parseRenderOptions(const std::vector<std::string>& arguments,
                                                std::string& error);

// A scale above 0 and at most 8; a quality from 0 to 100. None for any other text.
std::optional<double> parseScale(const std::string& text);
std::optional<int> parseQuality(const std::string& text);
inline const std::string kScaleRule = "--scale needs a number above 0 and at most 8";
inline const std::string kQualityRule = "--quality needs a whole number from 0 to 100";

// The pixel size of a side of the document at a scale, rounded to the nearest pixel.
int scaledSide(int side, double scale);

} // namespace orrery::cli
