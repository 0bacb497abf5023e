#include "core/package/FolderReplace.h"

#include "core/package/PackageFiles.h"
#include "core/support/Log.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace orrery {
namespace {

namespace fs = std::filesystem;

std::string systemError() {
    return std::strerror(errno);
}

// An unused hidden name in `folder`: hidden, so that a file manager does not offer a
// half-written package, and in the destination's own folder, so that moving it into
// place is a rename on one file system (a staging folder elsewhere, such as in the
// application folder, could not be renamed across file systems).
fs::path freshSibling(const fs::path& folder, const std::string& purpose) {
    static thread_local std::mt19937_64 random{std::random_device{}()};
    char suffix[17];
    std::snprintf(suffix, sizeof suffix, "%016llx", static_cast<unsigned long long>(random()));
    return folder / (std::string(".orrery-") + purpose + "-" + suffix);
}

// A staging folder names the package it is for, so that the next save to that place can
// clear away what an interrupted save left there, and nothing else.
std::string stagingPurpose(const fs::path& target) {
    return "save-" + target.filename().string();
}

bool makeStagingFolder(const fs::path& parent, const fs::path& target, fs::path& staging,
                       std::string& error) {
    for (int attempt = 0; attempt < 16; ++attempt) {
        staging = freshSibling(parent, stagingPurpose(target));
        if (::mkdir(staging.c_str(), 0777) == 0)
            return true;
        if (errno != EEXIST) {
            error = "cannot create a folder in " + parent.string() + ": " + systemError();
            return false;
        }
    }
    error = "cannot find a free name for a folder in " + parent.string();
    return false;
}

bool writeStaging(const fs::path& staging, const std::vector<FileToWrite>& files,
                  std::string& error) {
    const int folder = ::open(staging.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) {
        error = "cannot open " + staging.string() + ": " + systemError();
        return false;
    }
    bool written = true;
    for (const FileToWrite& file : files) {
        if (!writeNewFileDurably(folder, file.name, file.bytes, error)) {
            error = "writing " + file.name + ": " + error;
            written = false;
            break;
        }
    }
    ::close(folder);
    if (written && !syncFolder(staging, error)) {
        error = "writing " + staging.string() + ": " + error;
        return false;
    }
    return written;
}

// Leftovers cost disk space but lose nothing, so failing to remove them is only logged.
void removeQuietly(const fs::path& path) {
    std::error_code failure;
    fs::remove_all(path, failure);
    if (failure)
        logMessage("Could not remove " + path.string() + ": " + failure.message());
}

bool unsupported(int code) {
    return code == EINVAL || code == ENOSYS || code == EOPNOTSUPP;
}

// Moves `from` to the free name `to`, refusing to overwrite whatever appeared there.
bool moveToFreeName(const fs::path& from, const fs::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (!unsupported(errno))
        return false;
    struct stat status {};
    if (::lstat(to.c_str(), &status) == 0) {
        errno = EEXIST;
        return false;
    }
    return ::rename(from.c_str(), to.c_str()) == 0;
}

// Without an atomic swap: the old content steps aside under a hidden name, the new takes
// its place, and if that fails the old comes back. For a moment nothing stands at the
// destination, but the old content never leaves the disk before the new is in place.
bool replaceByTwoRenames(const fs::path& staging, const fs::path& destination, std::string& error) {
    const fs::path aside = freshSibling(destination.parent_path(), "old");
    if (!moveToFreeName(destination, aside)) {
        error = "cannot move the old " + destination.string() + " aside: " + systemError();
        return false;
    }
    if (::rename(staging.c_str(), destination.c_str()) != 0) {
        error = "cannot move the new package into place: " + systemError();
        if (::rename(aside.c_str(), destination.c_str()) != 0)
            error += "; the old one is kept as " + aside.string();
        return false;
    }
    removeQuietly(aside);
    return true;
}

// Puts the complete staging folder at `destination`. On success nothing is left of the
// old content or the staging folder (except what could not be removed, which is logged).
bool moveIntoPlace(const fs::path& staging, const fs::path& destination,
                   const FolderReplaceHooks& hooks, std::string& error) {
    if (moveToFreeName(staging, destination))
        return true;
    if (errno != EEXIST && errno != ENOTEMPTY && errno != EISDIR && errno != ENOTDIR) {
        error = "cannot move the new package into place: " + systemError();
        return false;
    }
    if (!hooks.withoutExchange) {
        if (::renameat2(AT_FDCWD, staging.c_str(), AT_FDCWD, destination.c_str(),
                        RENAME_EXCHANGE) == 0) {
            removeQuietly(staging); // now the old content
            return true;
        }
        if (!unsupported(errno)) {
            error = "cannot replace " + destination.string() + ": " + systemError();
            return false;
        }
    }
    return replaceByTwoRenames(staging, destination, error);
}

void removeLeftoverStaging(const fs::path& parent, const fs::path& target) {
    const std::string prefix = ".orrery-" + stagingPurpose(target) + "-";
    std::error_code failure;
    for (fs::directory_iterator entry(parent, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const std::string name = entry->path().filename().string();
        if (name.size() == prefix.size() + 16 && name.rfind(prefix, 0) == 0)
            removeQuietly(entry->path());
    }
}

} // namespace

bool replaceFolder(const fs::path& destination, const std::vector<FileToWrite>& files,
                   std::string& error, const FolderReplaceHooks& hooks) {
    fs::path target = destination.lexically_normal();
    if (!target.has_filename())
        target = target.parent_path();
    if (target.filename() == "." || target.filename() == "..") {
        error = destination.string() + " does not name a package";
        return false;
    }
    const fs::path parent = target.has_parent_path() ? target.parent_path() : fs::path(".");
    struct stat status {};
    if (::stat(parent.c_str(), &status) != 0) {
        error = errno == ENOENT ? "the folder " + parent.string() + " does not exist"
                                : "cannot reach " + parent.string() + ": " + systemError();
        return false;
    }
    if (!S_ISDIR(status.st_mode)) {
        error = parent.string() + " is not a folder";
        return false;
    }
    removeLeftoverStaging(parent, target);
    fs::path staging;
    if (!makeStagingFolder(parent, target, staging, error))
        return false;
    const bool replaced = writeStaging(staging, files, error) &&
                          (!hooks.afterStaging || hooks.afterStaging(staging, error)) &&
                          moveIntoPlace(staging, target, hooks, error);
    if (!replaced) {
        removeQuietly(staging);
        return false;
    }
    std::string syncError;
    if (!syncFolder(parent, syncError))
        logMessage("Could not flush " + parent.string() + ": " + syncError);
    return true;
}

} // namespace orrery
