#include "imageio/PendingFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace orrery::imageio {
namespace {

std::string systemError() {
    return std::strerror(errno);
}

} // namespace

std::unique_ptr<PendingFile> PendingFile::create(const std::string& path, std::string& error) {
    const std::filesystem::path target(path);
    if (std::filesystem::is_directory(target)) {
        error = "a folder is in the way";
        return nullptr;
    }
    const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
    std::string pattern = (folder / ("." + target.filename().string() + ".XXXXXX")).string();
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    const int descriptor = mkstemp(name.data());
    if (descriptor < 0) {
        error = systemError();
        return nullptr;
    }
    // mkstemp makes the file private; the finished file gets the usual permissions.
    const mode_t mask = umask(0);
    umask(mask);
    fchmod(descriptor, 0666 & ~mask);
    return std::unique_ptr<PendingFile>(new PendingFile(path, name.data(), descriptor));
}

PendingFile::PendingFile(std::string target, std::string temporary, int descriptor)
    : target_(std::move(target)), temporary_(std::move(temporary)), descriptor_(descriptor) {}

PendingFile::~PendingFile() {
    abandon();
}

std::string PendingFile::write(const void* data, std::size_t size) {
    const auto* bytes = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = ::write(descriptor_, bytes, size);
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return systemError();
        }
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return {};
}

std::string PendingFile::commit(Sync sync) {
    std::string error;
    if (sync == Sync::now && fsync(descriptor_) != 0)
        error = systemError();
    if (close(descriptor_) != 0 && error.empty())
        error = systemError();
    descriptor_ = -1;
    if (error.empty() && std::rename(temporary_.c_str(), target_.c_str()) != 0)
        error = systemError();
    if (!error.empty()) {
        abandon();
        return error;
    }
    done_ = true;
    return {};
}

void PendingFile::abandon() {
    if (done_)
        return;
    if (descriptor_ >= 0)
        close(descriptor_);
    descriptor_ = -1;
    unlink(temporary_.c_str());
    done_ = true;
}

} // namespace orrery::imageio
