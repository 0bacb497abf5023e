#include "core/app/AppPaths.h"

#include <cstdlib>
#include <fstream>
#include <system_error>

namespace orrery {
namespace {

std::filesystem::path homeFolder() {
    const char* home = std::getenv("HOME");
    return home && *home ? std::filesystem::path(home) : std::filesystem::path("/");
}

bool isFolder(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

// The documents entry of ~/.config/user-dirs.dirs, a line such as
// XDG_DOCUMENTS_DIR="$HOME/Documents".
std::filesystem::path xdgDocumentsEntry() {
    const char* configHome = std::getenv("XDG_CONFIG_HOME");
    const std::filesystem::path config = configHome && *configHome && configHome[0] == '/'
                                             ? std::filesystem::path(configHome)
                                             : homeFolder() / ".config";
    std::ifstream in(config / "user-dirs.dirs");
    std::string line;
    const std::string key = "XDG_DOCUMENTS_DIR=\"";
    while (std::getline(in, line)) {
        if (line.rfind(key, 0) != 0 || line.back() != '"')
            continue;
        std::string value = line.substr(key.size(), line.size() - key.size() - 1);
        if (value.rfind("$HOME", 0) == 0)
            return homeFolder().string() + value.substr(5);
        if (!value.empty() && value.front() == '/')
            return value;
    }
    return {};
}

} // namespace

AppPaths AppPaths::inFolder(const std::filesystem::path& applicationFolder) {
    AppPaths paths;
    paths.filePathA = applicationFolder;
    paths.filePathB = applicationFolder / "Presets";
    paths.filePath0 = applicationFolder / "Data0.data";
    paths.filePath1 = applicationFolder / "Data1.data";
    paths.filePath2 = applicationFolder / "Data2.data";
    paths.filePath3 = applicationFolder / "Data3.data";
    paths.filePath5 = applicationFolder / "package";
    return paths;
}

std::string appNameFromExecutable() {
    std::error_code error;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error || executable.filename().empty())
        return "orrery";
    return executable.filename().string();
}

std::filesystem::path userDataFolder() {
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    if (dataHome && dataHome[0] == '/')
        return dataHome;
    return homeFolder() / ".local" / "share";
}

std::filesystem::path documentsFolder() {
    if (const std::filesystem::path entry = xdgDocumentsEntry(); !entry.empty() && isFolder(entry))
        return entry;
    if (const std::filesystem::path documents = homeFolder() / "Documents"; isFolder(documents))
        return documents;
    return homeFolder();
}

void createAppFolder(const std::filesystem::path& folder) {
    std::error_code error;
    if (std::filesystem::exists(folder, error) || error)
        return;
    std::filesystem::create_directories(folder, error);
}

} // namespace orrery
