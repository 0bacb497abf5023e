#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace orrery {

struct FileToWrite {
    std::string name;
    std::string bytes;
};

// Points in a replacement where tests step in.
struct FolderReplaceHooks {
    // Runs once the staging folder is complete and on disk, before anything at the
    // destination changes. Returning false (with a message) abandons the replacement,
    // as a failure at that moment would.
    std::function<bool(const std::filesystem::path& staging, std::string& error)> afterStaging;
    // Behave as on a file system that cannot swap two folders atomically.
    bool withoutExchange = false;
};

// Makes `destination` a folder holding exactly `files`, whatever stood there before (a
// folder with other files, a file). The new folder is written completely, each file
// flushed to disk, in a staging folder beside the destination, and only then takes the
// destination's place, so a failure at any moment leaves the old content or the new,
// never neither. False and a message when it fails; the old content is then untouched.
bool replaceFolder(const std::filesystem::path& destination, const std::vector<FileToWrite>& files,
                   std::string& error, const FolderReplaceHooks& hooks = {});

} // namespace orrery
