#include "cli/RenderOptions.h"

#include "core/model/WholeNumber.h"

#include <cmath>

namespace orrery::cli {

std::optional<double> parseScale(const std::string& text) {
    const std::optional<double> scale = wholeNumber<double>(text);
    if (!scale || !std::isfinite(*scale) || *scale <= 0.0 || *scale > kMaxScale)
        return std::nullopt;
    return scale;
}

std::optional<int> parseQuality(const std::string& text) {
    const std::optional<int> quality = wholeNumber<int>(text);
    if (!quality || *quality < 0 || *quality > 100)
        return std::nullopt;
    return quality;
}

namespace {

// -o FILE, --scale S or --quality N.
bool applyValue(const std::string& option, const std::string& value, RenderOptions& options,
                std::string& error) {
    if (option == "-o") {
        options.output = value;
    } else if (option == "--scale") {
        const std::optional<double> scale = parseScale(value);
        if (!scale) {
            error = kScaleRule + ", not \"" + value + "\"";
            return false;
        }
        options.scale = *scale;
    } else {
        const std::optional<int> quality = parseQuality(value);
        if (!quality) {
            error = kQualityRule + ", not \"" + value + "\"";
            return false;
        }
        options.quality = *quality;
    }
    return true;
}

} // namespace

int scaledSide(int side, double scale) {
    return static_cast<int>(std::lround(side * scale));
}

std::optional<RenderOptions> parseRenderOptions(const std::vector<std::string>& arguments,
                                                std::string& error) {
    RenderOptions options;
    bool haveOutput = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "-o" || argument == "--scale" || argument == "--quality") {
            if (i + 1 == arguments.size()) {
                error = argument + " needs a value";
                return std::nullopt;
            }
            if (!applyValue(argument, arguments[++i], options, error))
                return std::nullopt;
            haveOutput = haveOutput || argument == "-o";
        } else if (argument == "--include-background") {
            options.includeBackground = true;
        } else if (argument.size() > 1 && argument.front() == '-') {
            error = "render has no option " + argument;
            return std::nullopt;
        } else if (options.package.empty()) {
            options.package = argument;
        } else {
            error = "render takes one package, not also \"" + argument + "\"";
            return std::nullopt;
        }
    }
    if (options.package.empty()) {
        error = "render needs a package: orrery render PACKAGE.kvx -o FILE";
        return std::nullopt;
    }
    if (!haveOutput || options.output.empty()) {
        error = "render needs an output file: -o FILE";
        return std::nullopt;
    }
    const std::optional<ExportFormat> format = formatForPath(options.output);
    if (!format) {
        error = options.output + ": the picture type comes from the extension: .bmp .gif .jpg "
                                 ".jpeg .jp2 .png .tif .tiff";
        return std::nullopt;
    }
    options.format = *format;
    return options;
}

} // namespace orrery::cli
