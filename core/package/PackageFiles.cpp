#include "core/package/PackageFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orrery {
namespace {

std::string systemError() {
    return std::strerror(errno);
}

// Closes on every path out; close errors matter only for written files and are checked
// there explicitly.
class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : fd_(fd) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (fd_ >= 0)
            ::close(fd_);
    }
    int get() const { return fd_; }
    int release() {
        const int fd = fd_;
        fd_ = -1;
        return fd;
    }

private:
    int fd_;
};

} // namespace

bool readFileBounded(const std::filesystem::path& path, std::size_t maxBytes, std::string& bytes,
                     std::string& error) {
    // O_NONBLOCK: opening a named pipe would otherwise wait for a writer forever.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.get() < 0) {
        error = errno == ENOENT ? "the file is missing" : systemError();
        return false;
    }
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) {
        error = systemError();
        return false;
    }
    if (S_ISDIR(status.st_mode)) {
        error = "it is a folder, not a file";
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        error = "it is not a regular file";
        return false;
    }
    const auto tooLarge = [&] {
        error = "the file is larger than " + std::to_string(maxBytes) + " bytes";
        return false;
    };
    if (static_cast<std::uint64_t>(status.st_size) > maxBytes)
        return tooLarge();
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t filled = 0;
    // The file may grow or shrink while it is read; read to its end, never past the bound.
    for (;;) {
        if (filled == content.size()) {
            if (content.size() > maxBytes)
                return tooLarge();
            content.resize(std::min(maxBytes + 1, content.size() + 4096));
        }
        const ssize_t got = ::read(file.get(), content.data() + filled, content.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            error = systemError();
            return false;
        }
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
    }
    content.resize(filled);
    bytes = std::move(content);
    return true;
}

bool writeAll(int fd, std::string_view bytes, std::string& error) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0) {
            error = systemError();
            return false;
        }
        if (written == 0) {
            error = "the disk accepts no more data";
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool writeNewFileDurably(int folderFd, const std::string& name, std::string_view bytes,
                         std::string& error) {
    FileDescriptor file(
        ::openat(folderFd, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (file.get() < 0) {
        error = systemError();
        return false;
    }
    if (!writeAll(file.get(), bytes, error))
        return false;
    if (::fsync(file.get()) != 0) {
        error = systemError();
        return false;
    }
    // Some file systems report a failed write only when the file is closed.
    if (::close(file.release()) != 0) {
        error = systemError();
        return false;
    }
    return true;
}

bool syncFolder(const std::filesystem::path& folder, std::string& error) {
    const FileDescriptor fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd.get() < 0 || ::fsync(fd.get()) != 0) {
        error = systemError();
        return false;
    }
    return true;
}

} // namespace orrery
