#include "core/export/ExportFormat.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace orrery {
namespace {

struct ExtensionName {
    std::string_view extension;
    ExportFormat format;
};

// Every extension that is accepted on a path; the save panel offers only the first of each.
constexpr std::array<ExtensionName, 8> kExtensions{{
    {"bmp", ExportFormat::bmp},
    {"gif", ExportFormat::gif},
    {"jpg", ExportFormat::jpeg},
    {"jpeg", ExportFormat::jpeg},
    {"jp2", ExportFormat::jpeg2000},
    {"png", ExportFormat::png},
    {"tif", ExportFormat::tiff},
    {"tiff", ExportFormat::tiff},
}};

} // namespace

const ExportFormatInfo& formatInfo(ExportFormat format) {
    return kExportFormats[static_cast<std::size_t>(rowOf(format))];
}

std::optional<ExportFormat> formatForRow(long row) {
    if (row < 0 || row >= static_cast<long>(kExportFormats.size()))
        return std::nullopt;
    return kExportFormats[static_cast<std::size_t>(row)].format;
}

std::string lowercaseExtension(std::string_view path) {
    const std::size_t slash = path.find_last_of('/');
    const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
    const std::size_t dot = name.find_last_of('.');
    if (dot == std::string_view::npos || dot == 0)
        return {};
    std::string extension(name.substr(dot + 1));
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

std::optional<ExportFormat> formatForPath(std::string_view path) {
    const std::string extension = lowercaseExtension(path);
    const auto* match =
        std::find_if(kExtensions.begin(), kExtensions.end(),
                     [&](const ExtensionName& e) { return e.extension == extension; });
    if (match == kExtensions.end())
        return std::nullopt;
    return match->format;
}

} // namespace orrery
