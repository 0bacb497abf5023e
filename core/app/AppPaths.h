#pragma once

#include <filesystem>
#include <string>

namespace orrery {

// Where the program keeps its own files: one folder named after the executable inside the
// user's data folder ($XDG_DATA_HOME, by default ~/.local/share), so a renamed binary keeps
// settings of its own.
struct AppPaths {
    std::filesystem::path filePathA; // the application folder
    std::filesystem::path filePathB; // "Presets": reserved, nothing uses it
    std::filesystem::path filePath0; // "Data0.data": table Windows
    std::filesystem::path filePath1; // "Data1.data": table Preferences
    std::filesystem::path filePath2; // "Data2.data": table General
    std::filesystem::path filePath3; // "Data3.data": reserved
    std::filesystem::path filePath5; // "package": scratch folder of the save commands

    static AppPaths inFolder(const std::filesystem::path& applicationFolder);
};

// The file name of the running executable ("orrery" when installed).
std::string appNameFromExecutable();

// $XDG_DATA_HOME when it is an absolute path, else $HOME/.local/share.
std::filesystem::path userDataFolder();

// The user's documents folder: XDG_DOCUMENTS_DIR from user-dirs.dirs when it exists,
// else ~/Documents when it exists, else the home folder.
std::filesystem::path documentsFolder();

// Creates the folder with its parents when nothing exists at the path. Failure is silent:
// the settings files then cannot be created and the lists stay empty.
void createAppFolder(const std::filesystem::path& folder);

} // namespace orrery
