#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

// File access for packages: reading with a bound, writing completely and durably. The
// messages say what went wrong, without the path; callers name the file.
namespace orrery {

// The whole regular file if it holds at most maxBytes. Never blocks on a pipe or device.
bool readFileBounded(const std::filesystem::path& path, std::size_t maxBytes, std::string& bytes,
                     std::string& error);

// Writes every byte to `fd`, resuming after partial writes and interruptions.
bool writeAll(int fd, std::string_view bytes, std::string& error);

// Creates `name` (which must not exist yet) inside the folder open as `folderFd`, writes
// `bytes` and flushes them to the disk before closing.
bool writeNewFileDurably(int folderFd, const std::string& name, std::string_view bytes,
                         std::string& error);

// Flushes a folder's entries (new names, renames) to the disk.
bool syncFolder(const std::filesystem::path& folder, std::string& error);

} // namespace orrery
