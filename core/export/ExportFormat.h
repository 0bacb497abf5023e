#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace orrery {

// The six picture formats, in the order of the format pop-up's rows.
enum class ExportFormat { bmp, gif, jpeg, jpeg2000, png, tiff };

struct ExportFormatInfo {
    ExportFormat format;
    std::string_view name;     // the pop-up's row title
    std::string_view fileType; // the extension the save panel allows
    // Only JPEG and JPEG 2000 take the compression slider; the others are written with
    // interlacing off and nothing else to choose.
    bool usesCompression;
};

inline constexpr std::array<ExportFormatInfo, 6> kExportFormats{{
    {ExportFormat::bmp, "BMP", "bmp", false},
    {ExportFormat::gif, "GIF", "gif", false},
    {ExportFormat::jpeg, "JPEG", "jpg", true},
    {ExportFormat::jpeg2000, "JPEG 2000", "jp2", true},
    {ExportFormat::png, "PNG", "png", false},
    {ExportFormat::tiff, "TIFF", "tif", false},
}};

const ExportFormatInfo& formatInfo(ExportFormat format);

// Row 0 to 5 of the pop-up; none outside.
std::optional<ExportFormat> formatForRow(long row);
inline int rowOf(ExportFormat format) {
    return static_cast<int>(format);
}

// The extension of a path's file name, in lower case, without the dot; empty when the name
// has none (a leading dot starts a hidden name, not an extension).
std::string lowercaseExtension(std::string_view path);

// The format a file name asks for by its extension, case-insensitively: .bmp .gif .jpg
// .jpeg .jp2 .png .tif .tiff. A name without one of these gives none.
std::optional<ExportFormat> formatForPath(std::string_view path);

} // namespace orrery
