#pragma once

#include "core/app/ScreenRect.h"

#include <filesystem>
#include <string>
#include <vector>

// The settings lists are read by position. Every reader returns the documented default when
// the list is shorter than expected or holds something unusable, so a damaged or foreign
// settings file can never crash the program.
namespace orrery {

inline constexpr int kDefaultCompression = 85;
inline constexpr int kExportFormatCount = 6; // BMP, GIF, JPEG, JPEG 2000, PNG, TIFF

// Preferences 0 and 1: the folder offered when opening a project and the export folder;
// the documents folder when the entry is "0", empty, missing or no longer a folder.
std::filesystem::path openFolder(const std::vector<std::string>& preferences,
                                 const std::filesystem::path& documents);
std::filesystem::path exportFolder(const std::vector<std::string>& preferences,
                                   const std::filesystem::path& documents);

// Preferences 2 as the Preferences sheet shows it: a row 0 to 5 ("0" or empty: 0, BMP).
int preferredFormatRow(const std::vector<std::string>& preferences);

// Preferences 2 as the export question reads it: the stored number is taken as row + 1,
// and "0" or empty selects PNG (row 4). The two readers differ on purpose.
int exportQuestionFormatRow(const std::vector<std::string>& preferences);

// Preferences 3: compression in per cent, 0 to 100; "0", empty or text without a number
// means 85.
int compressionPercent(const std::vector<std::string>& preferences);

// General 0 to 11: the twelve general switches, by number 1 to 12.
bool generalSwitch(const std::vector<std::string>& general, int number);

// Where the main window goes at start, and the frames the secondary windows had, from the
// Windows values (Width, Height, Left, Top of windows 0, 1 and 2).
struct WindowPlacement {
    enum class Kind { Centre, CentreAndStore, Stored } kind = Kind::Centre;
    ScreenRect main;
    ScreenRect gradation;
    ScreenRect search;
};
WindowPlacement mainWindowPlacement(bool windowsFileExists, const std::vector<std::string>& windows,
                                    bool alwaysCentre);

} // namespace orrery
