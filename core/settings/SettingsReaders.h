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

// The twelve general switches, in the order of their rows "Value01" to "Value12" of table
// General. The first five change what the program does; the others are stored and shown.
enum class GeneralSwitch {
    centreAtStart,       // the main window opens centred at its size, not at its stored frame
    skipTour,            // the introduction tour does not open at start
    deleteWithoutAsking, // Delete removes the selected planet with no question
    includeBackground,   // the export's include-background box starts on
    clearWithoutAsking,  // New clears the system with no question of its own
    storedOnly6,
    storedOnly7,
    storedOnly8,
    storedOnly9,
    storedOnly10,
    storedOnly11,
    storedOnly12,
};
inline constexpr std::size_t kGeneralSwitchCount = 12;

// The switch's position in the General list, and the field of its row ("Value02").
std::size_t generalPosition(GeneralSwitch which);
std::string generalField(GeneralSwitch which);

// Whether a switch is on: its value is a whole number other than 0.
bool generalSwitch(const std::vector<std::string>& general, GeneralSwitch which);
// The stored text of a switch, for the one rule that wants exactly "1".
std::string generalText(const std::vector<std::string>& general, GeneralSwitch which);

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
