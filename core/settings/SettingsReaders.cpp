#include "core/settings/SettingsReaders.h"

#include "core/model/TextNumber.h"

#include <algorithm>
#include <cmath>
#include <system_error>

namespace orrery {
namespace {

// The entry at a position, or the empty text when the list is too short.
std::string entry(const std::vector<std::string>& list, std::size_t position) {
    return position < list.size() ? list[position] : std::string();
}

bool isUnset(const std::string& value) {
    return value.empty() || value == "0";
}

std::filesystem::path folderOrDocuments(const std::string& value,
                                        const std::filesystem::path& documents) {
    std::error_code error;
    if (!isUnset(value) && std::filesystem::is_directory(value, error))
        return value;
    return documents;
}

int truncatedFloat(const std::vector<std::string>& list, std::size_t position) {
    const float value = floatValue(entry(list, position));
    if (!std::isfinite(value) || std::fabs(value) > 1.0e8f)
        return 0;
    return static_cast<int>(value);
}

// A frame as table Windows keeps it: width, height, left, top.
ScreenRect frameAt(const std::vector<std::string>& windows, std::size_t first) {
    ScreenRect frame;
    frame.width = truncatedFloat(windows, first);
    frame.height = truncatedFloat(windows, first + 1);
    frame.left = truncatedFloat(windows, first + 2);
    frame.top = truncatedFloat(windows, first + 3);
    return frame;
}

} // namespace

std::filesystem::path openFolder(const std::vector<std::string>& preferences,
                                 const std::filesystem::path& documents) {
    return folderOrDocuments(entry(preferences, 0), documents);
}

std::filesystem::path exportFolder(const std::vector<std::string>& preferences,
                                   const std::filesystem::path& documents) {
    return folderOrDocuments(entry(preferences, 1), documents);
}

int preferredFormatRow(const std::vector<std::string>& preferences) {
    const std::string value = entry(preferences, 2);
    if (isUnset(value))
        return 0;
    const std::int64_t row = integerValue(value);
    return row >= 0 && row < kExportFormatCount ? static_cast<int>(row) : 0;
}

int exportQuestionFormatRow(const std::vector<std::string>& preferences) {
    constexpr int png = 4;
    const std::string value = entry(preferences, 2);
    if (isUnset(value))
        return png;
    const std::int64_t row = integerValue(value) - 1;
    return row >= 0 && row < kExportFormatCount ? static_cast<int>(row) : png;
}

int compressionPercent(const std::vector<std::string>& preferences) {
    // A stored 0 never reads back as 0 ("0" is the unset row), so neither does text whose
    // whole number is 0, such as a damaged row's bytes: all give the default.
    const std::int64_t percent = integerValue(entry(preferences, 3));
    if (percent == 0)
        return kDefaultCompression;
    return static_cast<int>(std::clamp<std::int64_t>(percent, 0, 100));
}

std::size_t generalPosition(GeneralSwitch which) {
    return static_cast<std::size_t>(which);
}

std::string generalField(GeneralSwitch which) {
    const std::size_t number = generalPosition(which) + 1;
    return (number < 10 ? "Value0" : "Value") + std::to_string(number);
}

bool generalSwitch(const std::vector<std::string>& general, GeneralSwitch which) {
    return integerValue(generalText(general, which)) != 0;
}

std::string generalText(const std::vector<std::string>& general, GeneralSwitch which) {
    return entry(general, generalPosition(which));
}

WindowPlacement mainWindowPlacement(bool windowsFileExists, const std::vector<std::string>& windows,
                                    bool alwaysCentre) {
    WindowPlacement placement;
    if (!windowsFileExists)
        return placement;
    placement.main = frameAt(windows, 0);
    placement.gradation = frameAt(windows, 4);
    placement.search = frameAt(windows, 8);
    if (alwaysCentre)
        placement.kind = WindowPlacement::Kind::Centre;
    else if (!placement.main.hasSize())
        placement.kind = WindowPlacement::Kind::CentreAndStore;
    else
        placement.kind = WindowPlacement::Kind::Stored;
    return placement;
}

} // namespace orrery
